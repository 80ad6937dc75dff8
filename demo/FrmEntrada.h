// Entrada: who uses the program. The names are chosen from a list that begins at the last one who entered; a
// wrong password is told and asked again.
//
//     auto* form = NewForm<TFrmEntrada>(this, &FEntrada, FData);
//     if (form->ShowModal() == TFrmEnt_Master::kConfirmed) Use(form->Usuario());
#pragma once

#include "demo/dados/Usuarios.h"
#include "demo/DmComercial.h"
#include "forms/masters/UEnt_Master.h"

class TComboBox;
class TEdit;

class TFrmEntrada : public TFrmEnt_Master {
  public:
    TFrmEntrada(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData);

    // Who entered; meaningful once the form was confirmed.
    const TUsuario& Usuario() const { return FUsuario; }

    void BtnConfirmarClick(TComponent* Sender) override;

  protected:
    void CreateControls() override;

  private:
    TDM_Comercial* FData;
    TComboBox* FNome = nullptr;
    TEdit* FSenha = nullptr;
    TUsuario FUsuario;
};
