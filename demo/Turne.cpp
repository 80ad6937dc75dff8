#include "demo/Turne.h"

#include <QPixmap>

#include "demo/FrmClientes.h"
#include "demo/FrmPrincipal.h"
#include "platform/data/DataSet.h"
#include "platform/rtl/DateTime.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "platform/ui/DBGrid.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class TTour {
  public:
    TTour(TFrmPrincipal& main, const UnicodeString& folder) : FMain(main), FFolder(folder) {}

    void Shoot(const UnicodeString& name) {
        Settle();
        const UnicodeString path = JoinPath(FFolder, name + u".png"_s);
        FMain.Widget()->window()->grab().save(path);
        fprintf(stdout, "%s\n", qPrintable(path));
    }

    void MainWindow() { Shoot(u"01-janela-principal"_s); }

    void Customers() {
        FMain.OpenClientes();
        Shoot(u"02-clientes"_s);
        Clientes()->Perform(WM_SYSCOMMAND, SC_MAXIMIZE, 0);
        Shoot(u"03-clientes-maximizada"_s);
        Search(u"ma"_s);
        Shoot(u"04-clientes-pesquisando"_s);
        OrderBy(u"CIDADE"_s);
        Shoot(u"05-clientes-por-cidade"_s);
        OrderBy(u"VL_LIMITE"_s);
        Clientes()->EdtPesquisa->SetFocus();
        Shoot(u"06-clientes-faixa-de-valores"_s);
        OrderBy(u"DT_CAD"_s);
        Clientes()->DpPesq1->SetDate(EncodeDate(2024, 1, 1));
        Clientes()->DpPesq2->SetDate(EncodeDate(2024, 12, 31));
        Clientes()->RefreshData();
        Shoot(u"07-clientes-periodo"_s);
        OrderBy(u"TF_ATIVO"_s);
        Shoot(u"08-clientes-lista-de-valores"_s);
        OrderBy(u"NM_CLI"_s);
        Clientes()->ExibirRegistrosExcludos1Click(nullptr);
        Clientes()->MainDS->DataSet()->Locate(u"TF_DEL"_s, u"S"_s);
        Shoot(u"09-clientes-excluidos"_s);
        Clientes()->ExibirRegistrosExcludos1Click(nullptr);
    }

    void Registration() {
        Clientes()->CreateCad(2);
        Shoot(u"10-cliente-alterando"_s);
        dynamic_cast<TFrmCad_Master*>(Clientes()->ChildForm())->BtnTabSet->SetTabIndex(1);
        Shoot(u"11-cliente-segunda-pagina"_s);
        CloseChild();
        Clientes()->CreateCad(1);
        Shoot(u"12-cliente-incluindo"_s);
        CloseChild();
        Clientes()->CreateCad(4);
        Shoot(u"13-cliente-visualizando"_s);
        CloseChild();
        Clientes()->CreateCad(3);
        Shoot(u"14-cliente-excluindo"_s);
        CloseChild();
    }

    void Towns() {
        FMain.OpenMunicipios();
        Shoot(u"15-municipios"_s);
    }

    void LargeScreen() {
        FMain.SetBounds(0, 0, 1920, 1080);
        Clientes()->Ativa();
        Clientes()->Perform(WM_SYSCOMMAND, SC_MAXIMIZE, 0);
        Shoot(u"16-tela-grande"_s);
        Clientes()->CreateCad(2);
        Shoot(u"17-tela-grande-alterando"_s);
        CloseChild();
    }

  private:
    TFrmClientes* Clientes() const {
        for (TFrmBase* form : FMain.OpenForms()) {
            if (auto* found = dynamic_cast<TFrmClientes*>(form)) return found;
        }
        return nullptr;
    }

    void Search(const UnicodeString& text) {
        Clientes()->EdtPesquisa->SetFocus();
        Clientes()->EdtPesquisa->SetText(text);
        Clientes()->FinishSearch();
    }

    void OrderBy(const UnicodeString& fieldName) {
        TDBGridColumns& columns = Clientes()->DBGrd->Columns();
        for (int i = 0; i < columns.Count(); ++i) {
            if (columns[i]->FieldName() == fieldName) Clientes()->DBGrdTitleClick(columns[i]);
        }
    }

    void CloseChild() {
        Clientes()->ChildForm()->Close();
        Settle();
    }

    // Queued messages, timers of the next step and the paints they lead to.
    void Settle() {
        for (int i = 0; i < 20; ++i) Application->ProcessMessages();
    }

    TFrmPrincipal& FMain;
    UnicodeString FFolder;
};

}  // namespace

int WriteTour(TFrmPrincipal& main, const UnicodeString& folder) {
    EnsureFolder(folder);
    main.SetBounds(0, 0, 1024, 768);
    TTour tour(main, folder);
    tour.MainWindow();
    tour.Customers();
    tour.Registration();
    tour.Towns();
    tour.LargeScreen();
    return 0;
}
