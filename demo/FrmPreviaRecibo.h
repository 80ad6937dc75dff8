// The receipt as it will be printed, with the ways out: the printer or a PDF file.
//
//     auto* form = NewForm<TFrmPreviaRecibo>(this, Module, recibo);
//     if (form->ShowModal() == TFrmPreviaRecibo::kImpresso) …      // it was printed or saved
#pragma once

#include <functional>

#include "demo/ReciboRegras.h"
#include "forms/base/UFrmBase.h"

class QPrinter;
class TButton;

class TFrmPreviaRecibo : public TFrmBase {
  public:
    static constexpr int kImpresso = 1;  // modal result

    TFrmPreviaRecibo(TComponent* AOwner, TModuleInstance* AModule, const TRecibo& ARecibo);

    void FormClose(TComponent* Sender, TCloseAction& Action) override;

    // Ask the user: for a file's name, given a proposal, empty when the user gives up; and for a printer,
    // which is set up by it. The toolkit's dialogs at first.
    std::function<UnicodeString(const UnicodeString& proposal)> OnAskFile;
    std::function<bool(QPrinter& printer)> OnAskPrinter;

  protected:
    void CreateControls() override;

  private:
    TButton* AddButton(const UnicodeString& name, const UnicodeString& caption, int left,
                       const std::function<void()>& click);
    void Print();
    void SavePdf();

    TRecibo FRecibo;
    bool FImpresso = false;
};
