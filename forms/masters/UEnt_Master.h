// The entry master: base of small dialogs of a fixed size that ask for a few values. A strip with "Confirmar"
// and "Cancelar" stands at the top, the host's controls below it; the keyboard works as on the registration
// master (EditKeys.h).
//
//     class TFrmRecibo : public TFrmEnt_Master { … CreateControls makes the controls, and sets the size … };
//     auto* form = NewForm<TFrmRecibo>(this, Module, Module->Info(), u""_s);
//     if (form->ShowModal() == 1) Use(form->Valor());      // 1: confirmed
//     form->Free();
//
// Controls begin below kStripBottom. The host chooses a client area from 334 × 191 up to a height of 517; the
// create event fixes the size. A window of its own, centred over its opener; nothing is remembered.
#pragma once

#include "forms/base/HeaderStrip.h"
#include "forms/base/UFrmBase.h"
#include "forms/masters/EditKeys.h"
#include "platform/ui/ToolBar.h"

class TIceTab;

class TFrmEnt_Master : public TFrmBase {
  public:
    static constexpr int kStripBottom = THeaderStrip::kHeight;
    static constexpr int kConfirmed = 1;  // modal result

    TFrmEnt_Master(TComponent* Owner, TModuleInstance* Module, const TModuleInfo& Info,
                   const UnicodeString& TagStr);

    // Loads the strip's pictures and the icons of the two buttons.
    void LoadBitmaps();
    // Makes the bar lay its buttons out again.
    void FixButtons();

    TToolBar* TBButtons = nullptr;
    TToolButton* BtnConfirmar = nullptr;
    TToolButton* BtnCancelar = nullptr;

    // Handlers of the form and its controls.
    void FormCreate(TComponent* Sender) override;
    void FormKeyPress(TComponent* Sender, WideChar& Key) override;
    virtual void FormShortCut(TShortCutKey& Key, bool& Handled);
    virtual void FormKeyDown(TComponent* Sender, int& Key, TShiftState Shift);
    virtual void FormPaint(QPainter& Painter);
    virtual void FormResize(TComponent* Sender);
    // Closes with kConfirmed; a host that checks what was typed overrides it and throws before.
    virtual void BtnConfirmarClick(TComponent* Sender);
    virtual void BtnCancelarClick(TComponent* Sender);
    void BtnTabSetTabSelected(TIceTab* Tab);

  protected:
    void CreateControls() override;
    void Construct() override;

  private:
    TToolButton* AddButton(const UnicodeString& name, const UnicodeString& caption,
                           void (TFrmEnt_Master::*click)(TComponent*));
    void LockSize();

    TEditKeys FKeys{this};
    THeaderStrip FHeader{THeaderStrip::ButtonsRight};
};
