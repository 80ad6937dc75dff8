// What the tests of the masters work on: a main window, a module, a database with a table of customers, a
// view master and a registration form for it.
//
//     TEST_F(Bancada, Deletes) {
//         TFrmTesteClientes* view = View(vtList);
//         Press(VK_INSERT); …
//     }
#pragma once
#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "forms/masters/UCad_Master.h"
#include "forms/masters/UViz_Master.h"
#include "platform/data/Connection.h"
#include "platform/data/Query.h"
#include "platform/ui/DBCtrls.h"
#include "tests/support/Screen.h"
#include "tests/support/ScreenScript.h"

// How the registration form of a case gets its data.
enum TDados { PropriaConsulta, DadosDaLista };

struct TCaso {
    TFDConnection* Connection = nullptr;
    TDados Dados = PropriaConsulta;
    bool ReadOnly = false;      // no registration form
    bool SelectDeleted = true;  // the queries have TF_DEL
    UnicodeString NotSearched;  // a field of the list whose origin is "#0"
};

class TFrmTesteCliente : public TFrmCad_Master {
  public:
    TFrmTesteCliente(TComponent* owner, TModuleInstance* module, unsigned char mode, TKeyType keyType,
                     bool load, const TCaso& caso)
        : TFrmCad_Master(owner, module, mode, keyType, load), FCaso(caso) {}
    using TFrmCad_Master::FConfirmToPost;

    TTabSheet* Comercial = nullptr;
    TDBEdit* Id = nullptr;
    TDBEdit* Nome = nullptr;
    TDBEdit* Cpf = nullptr;
    TDBEdit* Limite = nullptr;
    TDBComboBox* Uf = nullptr;

  protected:
    void CreateControls() override;

  private:
    TDBEdit* Edit(TTabSheet* page, const UnicodeString& field, int top);
    const TCaso& FCaso;
};

class TFrmTesteClientes : public TFrmViz_Master {
  public:
    TFrmTesteClientes(TComponent* owner, TModuleInstance* module, const TCaso& caso,
                      TVizsualizationType visType, TKeyType keyType = ktFieldProviderFlag);
    using TFrmBase::ImgLst;
    using TFrmGrid_Master::FOrderFieldIndex;

    TFDQuery* Query = nullptr;

  protected:
    void CreateControls() override;

  private:
    const TCaso& FCaso;
};

class THospedeiro : public TModuleInterface {
  public:
    int GetCountActiveModules() const override { return 2; }
    void ExecuteProcEx(TForm*, const std::function<void()>& procedure, TFrmBase*) override { procedure(); }
    UnicodeString HostResources() const override { return QStringLiteral(":/fichario"); }
    int StateFileNumber() const override { return 1; }
    void FormCreated(TFrmBase*) override {}
    void FormDestroyed(TFrmBase*) override {}
};

class Bancada : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    // Runs tables/<table>.txt. "Case" starts over with every right; "View" opens a view master, Vista.
    void Run(const char* table, TTextFunctions own = {});
    // A view master on the customers, all rows shown, the grid focused.
    TFrmTesteClientes* View(TVizsualizationType visType, TKeyType keyType = ktFieldProviderFlag);
    // The registration form that is open on a view; null without.
    TFrmTesteCliente* Ficha(const TFrmBase* view) const {
        return dynamic_cast<TFrmTesteCliente*>(view->ChildForm());
    }
    UnicodeString Scalar(const char* sql) {
        return Caso.Connection->ExecSQLScalar(QString::fromUtf8(sql)).ToText();
    }

    QTemporaryDir Folder;
    THospedeiro Host;
    TModuleInstance Module{&Host, {QStringLiteral("CLIENTES"), QStringLiteral("Clientes"), {}}};
    TForm* Main = nullptr;
    TFrmTesteClientes* Vista = nullptr;
    TCaso Caso;

  private:
    int Databases = 0;
};
