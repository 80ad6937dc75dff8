// The base form: every screen of a host derives from it, directly or through a master.
//
// It binds the form to a module of the host, remembers window geometry and any other properties of the form's
// class in a window-state file, emulates maximising inside the main window's client area, and links a form to
// the form that opened it: the child either takes its opener's place on screen or is centred over it while
// the opener is disabled.
//
//     class TFrmAvisos : public TFrmBase { … CreateControls makes its controls … };
//     NewForm<TFrmAvisos>(Application, &module);          // a form of its own
//     NewForm<TFrmAvisos>(otherForm, &module);            // a child of otherForm
//
// The window-state file is "Temp/<number>ws.dat" in the program's folder: an INI file with one section for
// each form class, shared by all forms of the class. A state file that cannot be written is reported once and
// never stops a screen; what cannot be read counts as absent.
//
// Two oddities are kept on purpose: a second maximise command restores the form only when its height is the
// main client height less 99, although maximising sets it less 100; and with fewer than two active modules
// the cascade offset is negative.
//
// A form without an opener stands at its place in the cascade. While no size of its class is remembered, it
// takes no more than the room that the main window has there; a remembered size is kept as it is.
#pragma once

#include <memory>

#include "modules/Umoduleinterface.h"
#include "platform/rtl/IniFile.h"
#include "platform/ui/Form.h"
#include "platform/ui/ImageList.h"

class TToolButton;
class TMenuItem;

// Kinds of image resources that AddIcon takes.
enum TIcoType { rtBMP = 0, rtICO = 1, rtPNG = 2 };

// Private messages between the forms and the main window.
inline constexpr int MSG_PESQUISA = 32022;  // a search result is ready (view master)
inline constexpr int MSG_ATIVADO =
    32023;  // a form was activated (main form); a column drag ended (grid master)
inline constexpr int MSG_ATIVA = 32024;     // activate the form
inline constexpr int MSG_DOWN_BTN = 32025;  // pressed state of the form's window-bar button

class TFrmBase : public TForm {
  public:
    // AOwner may be another TFrmBase: then this form becomes its single child. HideParent: the opener is
    // hidden while this form lives (else it is disabled and this form is centred over it). LoadWindowConfig:
    // the geometry is restored on create and saved on close. ATagStr is kept for the derived form. A null
    // AModule raises "You must assign a module for any form." when the form is built.
    TFrmBase(TComponent* AOwner, TModuleInstance* AModule, const TModuleInfo& AModuleInfo, bool HideParent,
             bool LoadWindowConfig, const UnicodeString& ATagStr = {});

    // Adds an image resource to ImgLst (made on first use) and returns its index. Ex takes it from the
    // module's own resources (rtICO always does), else from the host's. Raises EResNotFound when there is
    // none of that name.
    int AddIcon(const UnicodeString& ResName, TIcoType ResType, bool Ex);

    // Loads the form's own icon: "ICO16_" + the module's name, else "ICO16_TFRMBASE" of the host.
    void GetIcon();

    // Brings the form forward: presses its window-bar button, then shows it, or its child when it has one.
    void Ativa();

    // Between the two the form draws nothing; EndUpdate forces a full new layout.
    void BeginUpdate();
    void EndUpdate();

    // Height, then width, in one drawing.
    void SetSize(int AHeigth, int AWidth);

    // What emulated maximising takes: the main form's client height less 100, its client width less 4.
    int GetMainFormHeight() const;
    int GetMainFormWidth() const;

    // Width taken by the caption buttons, in pixels.
    int GetButtonsSize() const;

    // Window geometry in the state file ("Height", "Width", "Maximized"). Only a form inside the main window
    // is cascaded and maximised.
    void SaveWindowState();
    void LoadWindowState();

    // Properties of the form's class in the state file; each write is through at once.
    int GetIntWindowProp(const UnicodeString& PropName, int Default) const;
    UnicodeString GetStrWindowProp(const UnicodeString& PropName, const UnicodeString& Default) const;
    bool GetBoolWindowProp(const UnicodeString& PropName, bool Default) const;
    double GetFloatWindowProp(const UnicodeString& PropName, double Default) const;
    void SetIntWindowProp(const UnicodeString& PropName, int Value);
    void SetStrWindowProp(const UnicodeString& PropName, const UnicodeString& Value);
    void SetBoolWindowProp(const UnicodeString& PropName, bool Value);
    void SetFloatWindowProp(const UnicodeString& PropName, double Value);
    void DeleteProp(const UnicodeString& PropName);
    void ClearProps();  // erases the whole section, what derived forms wrote included
    // Runs `writes`, whose changes of properties reach the file together.
    void UpdateProps(const std::function<void()>& writes);

    // For the host's window-list menu item.
    void MenuClick(TComponent* Sender);

    bool Maximized() const { return FMaximized; }
    bool LooksMaximized() const override { return FMaximized; }
    TFrmBase* ChildForm() const { return FChildForm; }
    TFrmBase* Opener() const { return FMainForm; }
    bool HidesParent() const { return FHideParent; }
    const UnicodeString& TagStr() const { return FTagStr; }

    TModuleInstance* Module;  // never null once the form is built; not owned
    TModuleInfo ModuleInfo;

    // Left to the host.
    UnicodeString ResultPesq;
    UnicodeString ResultPesqDesc;
    TToolButton* FBtn = nullptr;           // its button in the window bar
    TToolButton* FBtnSeparator = nullptr;  // the separator beside it
    TMenuItem* FMenuItem = nullptr;        // its item in the window-list menu

    virtual void FormCreate(TComponent* Sender);
    virtual void FormClose(TComponent* Sender, TCloseAction& Action);
    virtual void FormDestroy(TComponent* Sender);
    virtual void FormActivate(TComponent* Sender);
    virtual void FormDeactivate(TComponent* Sender);
    virtual void FormKeyPress(TComponent* Sender, WideChar& Key);

  protected:
    ~TFrmBase() override = default;
    void CreateControls() override;
    void Construct() override;
    void PlaceForm() override;
    void DoDestroy() override;
    void BeforeDeath() override;
    void ShieldClick() override { Ativa(); }
    void WndProc(TMessage& Message) override;

    // The area of the main form in which the forms live; null without a main form.
    static TControl* MainClient();

    // The name of the form's section: the class name of the concrete form.
    UnicodeString SectionName() const;

    TImageList* ImgLst = nullptr;
    TFrmBase* FChildForm = nullptr;
    TFrmBase* FMainForm = nullptr;

  private:
    void OpenWindowConfig();
    void LinkToOpener();
    void ReleaseOpener();
    void Cascade();
    void FitIntoClientArea();
    void RememberGeometry();
    void RestoreGeometry();
    void Maximize();
    bool CountsAsMaximized() const;
    void WMSysCommand(TMessage& Message);
    void WMSize(TMessage& Message);
    void WMEnterSizeMove(TMessage& Message);
    void LeaveMaximizedByMove();
    void WriteState(const std::function<void(TIniFile&)>& write);

    bool FMaximized = false;
    int FOrgLeft = 0;
    int FOrgTop = 0;
    int FOrgHeight = 0;
    int FOrgWidth = 0;
    bool FHideParent;
    std::unique_ptr<TIniFile> FConfig;
    bool FLoadWindowConfig;
    UnicodeString FTagStr;
    bool FRegistered = false;  // the module knows of the form
};
