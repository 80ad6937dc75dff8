// A program that knows the installed package only: a database of its own, the README's forms, a record found.
#include <QApplication>
#include <QTemporaryDir>

#include "forms/main/UFrmMain.h"
#include "forms/masters/Ficha.h"
#include "forms/masters/UCad_Master.h"
#include "forms/masters/UViz_Master.h"
#include "platform/data/Connection.h"
#include "platform/data/Query.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "platform/ui/Palette.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class TDados {
  public:
    explicit TDados(const UnicodeString& file) : FConnection(new TFDConnection(Application)) {
        FConnection->Params()->SetText(u"DriverID=FB\nProtocol=Local\nUser_Name=SYSDBA"_s);
        FConnection->Params()->SetValue(u"Database"_s, file);
        FConnection->CreateDatabase();
        FConnection->ExecSQL(
            u"CREATE TABLE PRODUTO (CD_PRO INTEGER NOT NULL PRIMARY KEY, NM_PRO VARCHAR(60), VL_PRO NUMERIC(15,2), TF_DEL CHAR(1) DEFAULT 'N')"_s);
        FConnection->ExecSQL(u"INSERT INTO PRODUTO VALUES (1, 'Parafuso', 0.35, 'N')"_s);
    }
    TFDQuery* NewQuery(TComponent* owner, const UnicodeString& sql) const {
        auto* query = new TFDQuery(owner);
        query->SetConnection(FConnection);
        query->SQL()->SetText(sql);
        query->DescribeFields();
        return query;
    }

  private:
    TFDConnection* FConnection;
};

TDados* Dados = nullptr;

void Label(TDataSet* dataset, const UnicodeString& field, const UnicodeString& caption) {
    dataset->FieldByName(field)->SetDisplayLabel(caption);
}

#include "Exemplo.inc"

int Run(const UnicodeString& folder) {
    SetProgramFolder(folder);
    TDados dados(folder + u"/host.fdb"_s);
    Dados = &dados;
    auto* main = NewForm<TFrmMain>(Application, u"Hospedeiro"_s);
    TModuleInstance produtos(main, {u"PRODUTOS"_s, u"Produtos"_s, u"1.0"_s});
    auto* view = NewForm<TFrmProdutos>(Application, &produtos);
    view->Locate({});
    view->CreateCad(kAlterar);
    const UnicodeString price = view->MainDS->DataSet()->FieldByName(u"VL_PRO"_s)->DisplayText();
    const bool right = view->ChildForm() && price == u"0,35"_s && CPF(u"52998224725"_s);
    view->Free();
    return right ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    ApplyLooks(app);
    const QTemporaryDir folder;
    TApplication application;
    try {
        return Run(folder.path());
    } catch (const Exception& e) {
        qCritical("%s", e.what());
        return 2;
    }
}
