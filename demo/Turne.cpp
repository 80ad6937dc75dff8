#include "demo/Turne.h"

#include <QPixmap>

#include "demo/FrmClientes.h"
#include "demo/FrmPedidos.h"
#include "demo/FrmPrincipal.h"
#include "demo/FrmProdutos.h"
#include "demo/FrmRecibo.h"
#include "demo/FrmVendedores.h"
#include "forms/base/UWaitScreen.h"
#include "forms/browse/UPesq_Master.h"
#include "forms/browse/UPesquisa.h"
#include "platform/data/DataSet.h"
#include "platform/rtl/DateTime.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "platform/ui/DBCtrls.h"
#include "platform/ui/DBGrid.h"
#include "platform/ui/ListBoxes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kTextoRico =
    uR"({\rtf1\ansi\ansicpg1252{\colortbl;\red31\green95\blue168;}\pard\b Cuidados\b0\par )"
    uR"(\pard Guardar em lugar \ul seco\ul0 , sobre \i paletes\i0 .\par \pard\qc\cf1 V\'e1lido por 90 dias\par})"_s;

class TTour {
  public:
    TTour(TFrmPrincipal& main, const UnicodeString& folder) : FMain(main), FFolder(folder) {}

    void Shoot(const UnicodeString& name) { Shoot(name, *FMain.Widget()->window()); }

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
        Clientes()->ExibirRegistrosExcludos1->Click();
        Clientes()->MainDS->DataSet()->Locate(u"TF_DEL"_s, u"S"_s);
        Shoot(u"09-clientes-excluidos"_s);
        Clientes()->ExibirRegistrosExcludos1->Click();
    }

    void Filters() {
        Clientes()->Filtros1Click(nullptr);
        auto* dialog = dynamic_cast<TFrmPesquisa*>(Clientes()->ChildForm());
        dialog->LstCampos->SetItemIndex(dialog->LstCampos->Items()->IndexOf(u"Cidade"_s));
        dialog->CbOperador->SetItemIndex(6);
        dialog->CbOperadorChange(nullptr);
        dialog->EValor1->SetText(u"cur"_s);
        dialog->AdicionarClick(nullptr);
        dialog->LstCampos->SetItemIndex(dialog->LstCampos->Items()->IndexOf(u"Cadastro"_s));
        dialog->CbOperador->SetItemIndex(8);
        dialog->CbOrdem->SetItemIndex(2);
        dialog->CbOperadorChange(nullptr);
        dialog->DpValor1->SetDate(EncodeDate(2020, 1, 1));
        dialog->AdicionarClick(nullptr);
        Shoot(u"10-clientes-filtros"_s);
        dialog->LimparClick(nullptr);
        CloseChild();
        Clientes()->RefreshData();
    }

    void Fields() {
        ShootModal({u"11-clientes-campos"_s}, [this] { Clientes()->Campos1Click(nullptr); });
    }

    void Entries() {
        ShootModal({u"21-configurar-conexao"_s}, [this] { FMain.OpenConexao(); });
        Application->OnMessageBox = [](const TBox&) { return IDYES; };  // what was typed is given up
        ShootModal(
            {u"22-recibo"_s, u"23-recibo-procurar-cliente"_s, u"24-recibo-visualizar"_s},
            [this] { FMain.OpenRecibo(); },
            [](TForm* form) {
                if (auto* receipt = dynamic_cast<TFrmRecibo*>(form)) FillReceipt(*receipt);
                if (auto* lookup = dynamic_cast<TFrmPesq_Master*>(form)) lookup->FinishSearch();
            });
        Application->OnMessageBox = nullptr;
    }

    void Login() {
        ShootModal({u"25-entrada"_s}, [this] { FMain.Identifica(); });
    }

    void Products() {
        FMain.OpenProdutos();
        Shoot(u"26-produtos"_s);
        auto* products = dynamic_cast<TFrmProdutos*>(FMain.OpenForms().back());
        products->CreateCad(2);
        Shoot(u"27-produto-alterando"_s);
        auto* form = dynamic_cast<TFrmCad_Master*>(products->ChildForm());
        ShootModal({u"36-calcular-preco"_s},
                   [form] { dynamic_cast<TButton*>(form->FindComponent(u"BtnVL_VENDA"_s))->Click(); });
        form->BtnTabSet->SetTabIndex(1);
        form->MainDS->DataSet()->FieldByName(u"OBS"_s)->SetAsString(kTextoRico);
        Shoot(u"28-produto-texto-rico"_s);
        form->MainDS->DataSet()->Cancel();
        End(form);
        End(products);
    }

    void Orders() {
        FMain.OpenPedidos();
        Shoot(u"29-pedidos"_s);
        auto* orders = dynamic_cast<TFrmPedidos*>(FMain.OpenForms().back());
        orders->CreateCad(2);
        Settle();
        auto* form = dynamic_cast<TFrmCadPedido*>(orders->ChildForm());
        form->GrdItens->SetFocus();
        Shoot(u"30-pedido-alterando"_s);
        int key = VK_F2;
        form->GrdItens->OnKeyDown(form->GrdItens, key, 0);
        Settle();
        dynamic_cast<TFrmPesq_Master*>(form->ChildForm())->FinishSearch();
        Shoot(u"31-procurar-produto"_s);
        End(form->ChildForm());
        End(form);
        orders->CreateCad(1);
        Shoot(u"32-pedido-incluindo"_s);
        End(orders->ChildForm());
        End(orders);
    }

    void Sellers() {
        FMain.OpenVendedores();
        Shoot(u"33-vendedores"_s);
        auto* sellers = dynamic_cast<TFrmVendedores*>(FMain.OpenForms().back());
        sellers->CreateCad(2);
        Shoot(u"34-vendedor-alterando"_s);
        End(sellers->ChildForm());
        End(sellers);
    }

    void Waiting() {
        auto* wait = NewForm<TFrmWaitScreen>(Application);
        Shoot(u"35-aguarde"_s, *wait->Widget());
        wait->Free();
    }

    void TownLookup() {
        Clientes()->CreateCad(2);
        Settle();
        auto* town = dynamic_cast<TDBEdit*>(Clientes()->ChildForm()->FindComponent(u"DbCIDADE"_s));
        town->SetFocus();
        int key = VK_F2;
        town->OnKeyDown(town, key, 0);
        auto* lookup = dynamic_cast<TFrmPesq_Master*>(Clientes()->ChildForm()->ChildForm());
        Settle();
        lookup->FinishSearch();
        Shoot(u"17-procurar-municipio"_s);
        End(lookup);
        CloseChild();
    }

    void Registration() {
        Clientes()->CreateCad(2);
        Shoot(u"12-cliente-alterando"_s);
        dynamic_cast<TFrmCad_Master*>(Clientes()->ChildForm())->BtnTabSet->SetTabIndex(1);
        Shoot(u"13-cliente-segunda-pagina"_s);
        CloseChild();
        const std::pair<unsigned char, UnicodeString> others[] = {{1, u"14-cliente-incluindo"_s},
                                                                  {4, u"15-cliente-visualizando"_s},
                                                                  {3, u"16-cliente-excluindo"_s}};
        for (const auto& [mode, name] : others) {
            Clientes()->CreateCad(mode);
            Shoot(name);
            CloseChild();
        }
    }

    void Towns() {
        FMain.OpenMunicipios();
        Shoot(u"18-municipios"_s);
    }

    void LargeScreen() {
        FMain.SetBounds(0, 0, 1920, 1080);
        Clientes()->Ativa();
        Clientes()->Perform(WM_SYSCOMMAND, SC_MAXIMIZE, 0);
        Shoot(u"19-tela-grande"_s);
        Clientes()->CreateCad(2);
        Shoot(u"20-tela-grande-alterando"_s);
        CloseChild();
    }

  private:
    void Shoot(const UnicodeString& name, QWidget& what) {
        Settle();
        const UnicodeString path = JoinPath(FFolder, name + u".png"_s);
        what.grab().save(path);
        fprintf(stdout, "%s\n", qPrintable(path));
    }

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

    // Opens modal forms and ends them: each takes the next name. `act` brings a form into the state to look
    // at.
    void ShootModal(QStringList names, const std::function<void()>& open,
                    const std::function<void(TForm*)>& act = nullptr) {
        Application->OnModal = [&](TForm* form) {
            const UnicodeString name = names.takeFirst();
            if (act) act(form);
            Shoot(name, *form->Widget());
            form->Close();
        };
        open();
        Application->OnModal = nullptr;
    }

    static void FillReceipt(TFrmRecibo& receipt) {
        dynamic_cast<TEdit*>(receipt.FindComponent(u"EdtPagador"_s))->SetText(u"jo"_s);
        dynamic_cast<TButton*>(receipt.FindComponent(u"BtnPagador"_s))->Click();
        const std::pair<const char16_t*, const char16_t*> texts[] = {
            {u"EdtPagador", u"João Antônio de Souza & Cia. Ltda."},
            {u"EdtValor", u"127.654,32"},
            {u"EdtReferente", u"parcela 3 de 12 da venda de materiais de construção, nota fiscal 4.512"},
            {u"EdtCidade", u"São José dos Campos"}};
        for (const auto& [name, text] : texts)
            dynamic_cast<TEdit*>(receipt.FindComponent(UnicodeString::fromUtf16(name)))
                ->SetText(UnicodeString::fromUtf16(text));
        receipt.BtnConfirmarClick(nullptr);
    }

    void CloseChild() { End(Clientes()->ChildForm()); }

    void End(TForm* form) {
        form->Close();
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

int WriteTour(TFrmPrincipal& main, const UnicodeString& folder, const QSize& size) {
    EnsureFolder(folder);
    main.SetBounds(0, 0, size.width(), size.height());
    TTour tour(main, folder);
    tour.Shoot(u"01-janela-principal"_s);
    tour.Customers();
    tour.Filters();
    tour.Fields();
    tour.Entries();
    tour.Registration();
    tour.TownLookup();
    tour.Login();
    tour.Products();
    tour.Orders();
    tour.Sellers();
    tour.Waiting();
    tour.Towns();
    tour.LargeScreen();
    return 0;
}
