// The ready main window: a menu bar, a tool bar for the host's modules, the client area in which the forms
// live, and a window bar with a button for each open form. It is also the host's side of the module
// framework.
//
//     auto* main = NewForm<TFrmMain>(Application, u"Comercial"_s);
//     TMenuItem* cadastros = main->MainMenu()->Items()->AddNew(u"&Cadastros"_s);
//     main->AddModule(cadastros, u"&Clientes..."_s, u"ICO24_CLIENTES"_s, [&] { NewForm<TFrmClientes>(…); });
//
// Tool bar and window bar take 96 pixels of the client height together, so that a maximised form just fills
// the client area. The "Janelas" menu lists the open forms. The main window counts itself among the active
// modules, so the first form stands at 0, 0.
#pragma once

#include <vector>

#include "modules/Umoduleinterface.h"
#include "platform/ui/Form.h"
#include "platform/ui/Menus.h"
#include "platform/ui/ToolBar.h"

class TImageList;

class TFrmMain : public TForm, public TModuleInterface {
  public:
    TFrmMain(TComponent* AOwner, const UnicodeString& caption);

    TMainMenu* MainMenu() const { return FMenu; }

    // Adds an item to `menu` and a button to the tool bar that both run `open`. `icon` names a resource of
    // the host.
    void AddModule(TMenuItem* menu, const UnicodeString& caption, const UnicodeString& icon,
                   const std::function<void()>& open);

    // Number in the window-state file's name; 0 until set.
    void SetStateFileNumber(int number) { FStateFileNumber = number; }

    int GetCountActiveModules() const override { return int(FForms.size()) + 1; }
    void ExecuteProcEx(TForm* waitScreen, const std::function<void()>& procedure, TFrmBase* form) override;
    UnicodeString HostResources() const override;
    int StateFileNumber() const override { return FStateFileNumber; }
    void FormCreated(TFrmBase* form) override;
    void FormDestroyed(TFrmBase* form) override;

    // The open forms, oldest first.
    const std::vector<TFrmBase*>& OpenForms() const { return FForms; }

  protected:
    void CreateControls() override;
    void WndProc(TMessage& Message) override;

  private:
    void CreateBars();
    TToolButton* NewWindowButton(TFrmBase* form);
    void ShowActive(intptr_t form);
    void RefreshCaptions();

    TMainMenu* FMenu = nullptr;
    TMenuItem* FWindows = nullptr;
    TToolBar* FToolBar = nullptr;
    TToolBar* FWindowBar = nullptr;
    TImageList* FModuleIcons = nullptr;
    TImageList* FWindowIcons = nullptr;
    std::vector<TFrmBase*> FForms;
    int FStateFileNumber = 0;
};
