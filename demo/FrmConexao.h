// Configurar conexão: where the database is and who connects to it. "Testar" tries what stands in the edits;
// confirming tries it too, and saves it when it works or when the user wants it all the same.
//
//     auto* form = NewForm<TFrmConexao>(this, &FConexao);
//     if (form->ShowModal() == TFrmConexao::kConfirmed) …      // Config.ini has the new settings
#pragma once

#include <vector>

#include "demo/ConexaoRegras.h"
#include "forms/masters/UEnt_Master.h"

class TEdit;

class TFrmConexao : public TFrmEnt_Master {
  public:
    TFrmConexao(TComponent* AOwner, TModuleInstance* AModule);

    void FormCreate(TComponent* Sender) override;
    // Closes only when the settings are saved.
    void BtnConfirmarClick(TComponent* Sender) override;

  protected:
    void CreateControls() override;

  private:
    struct TCampo {
        UnicodeString TDadosConexao::*Valor;
        TEdit* Edit;
    };

    TEdit* Add(UnicodeString TDadosConexao::*valor, const UnicodeString& name, const UnicodeString& caption,
               const QRect& place);
    void CreateEdits();
    TDadosConexao Digitados() const;
    bool Valid();
    void Test();

    std::vector<TCampo> FCampos;
    TDadosConexao FLidos;
};
