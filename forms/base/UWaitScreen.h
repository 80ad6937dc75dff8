// The wait screen: a small window that the user cannot close, shown while a long piece of work runs.
//
//     auto* wait = NewForm<TFrmWaitScreen>(Application);
//     Module->Interface()->ExecuteProcEx(wait, [this] { PrintGrid(); }, this);   // shows and ends it
//
// Whoever shows it by hand sets its Tag to 1 and closes it, which frees it.
#pragma once

#include "platform/ui/Form.h"
#include "platform/ui/StdCtrls.h"

class TFrmWaitScreen : public TForm {
  public:
    explicit TFrmWaitScreen(TComponent* AOwner);

    // What is going on, below "Por favor, aguarde…"; shown at once.
    void SetText(const UnicodeString& text);

    TImage* Image1 = nullptr;
    TLabel* Label1 = nullptr;
    TLabel* Label2 = nullptr;

    // Closing is allowed only with Tag 1.
    void FormCloseQuery(TComponent* Sender, bool& CanClose);
    void FormClose(TComponent* Sender, TCloseAction& Action);

  protected:
    ~TFrmWaitScreen() override = default;
    void CreateControls() override;
};
