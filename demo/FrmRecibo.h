// Recibo: asks for payer, amount, reference, town and date, writes the amount out in words while it is typed,
// and shows the receipt for printing. It closes when the receipt was printed or saved; else what was typed
// stays.
//
//     NewForm<TFrmRecibo>(this, &FRecibo, FData)->ShowModal();
#pragma once

#include "demo/DmComercial.h"
#include "demo/FrmProcura.h"
#include "demo/ReciboRegras.h"
#include "forms/masters/UEnt_Master.h"

class TDateTimePicker;
class TEdit;
class TLabel;

class TFrmRecibo : public TFrmEnt_Master {
  public:
    TFrmRecibo(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData);

    // Fills in what is known already, for the user to check; it counts as typed.
    void Propor(const UnicodeString& pagador, Currency valor, const UnicodeString& referente);

    void FormCreate(TComponent* Sender) override;
    void BtnConfirmarClick(TComponent* Sender) override;

  protected:
    void CreateControls() override;

  private:
    TEdit* Add(const UnicodeString& name, const UnicodeString& caption, const QRect& place, int length);
    void CreatePayer();
    void CreateAmount();
    void CreateRest();
    void ShowWords();
    void FindPayer();
    // A box with `fault`, and the focus in `edit`; answers whether there is a fault.
    bool Refused(TEdit* edit, const UnicodeString& fault);
    bool Valid();
    TRecibo Typed() const;
    bool NothingTyped() const;

    TDM_Comercial* FData;
    TResearchResult FPayer;
    TEdit* FPagador = nullptr;
    TEdit* FValor = nullptr;
    TEdit* FReferente = nullptr;
    TEdit* FCidade = nullptr;
    TDateTimePicker* FEmissao = nullptr;
    TLabel* FExtenso = nullptr;
};

// The lookup of a customer from the receipt: a window of its own, shown modally over it.
class TFrmPesqPagador : public TFrmProcura {
  public:
    // `AResult` receives the name (0); `AStart` is the text to search first.
    TFrmPesqPagador(TComponent* AOwner, TModuleInstance* AModule, TResearchResult* AResult,
                    const UnicodeString& AStart, TDM_Comercial* AData);

  protected:
    void CreateControls() override;
};
