#include "forms/masters/UCad_Master.h"

#include "platform/ui/Application.h"
#include "tests/forms/masters/Bancada.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kAviso = 48, kPergunta = 36;
const UnicodeString kCancelar = u"Você tem certeza que deseja cancelar?"_s;
const UnicodeString kConfirma = u"Confirma os dados?"_s;
const UnicodeString kExcluir = u"Tem certeza que deseja excluir esse registro?"_s;

class CadMaster : public Bancada {
  protected:
    // The registration form that `key` opens on the grid.
    TFrmTesteCliente* Open(TVizsualizationType type, int key) {
        ViewForm = View(type);
        Press(key);
        return Ficha(ViewForm);
    }
    bool Closed() {
        return Until([this] { return !ViewForm->ChildForm(); });
    }
    void Ask(const UnicodeString& question, int answer) {
        ExpectBox(question, u"Confirmação"_s, kPergunta, answer);
    }

    TFrmTesteClientes* ViewForm = nullptr;
};

TEST_F(CadMaster, ChangesTheRecordOfTheView) {
    for (const TDados data : {PropriaConsulta, DadosDaLista}) {
        SCOPED_TRACE(data);
        Caso.Dados = data;
        TFrmTesteCliente* form = Open(vtFilter, VK_RETURN);
        ASSERT_TRUE(form);
        EXPECT_EQ(form->Nome->Text(), u"ANA"_s);
        EXPECT_TRUE(form->Nome->Focused());
        TypeText(u"José"_s);
        Press(VK_F12);
        ASSERT_TRUE(Closed());
        EXPECT_EQ(Scalar("SELECT NM_CLI FROM CLIENTE WHERE ID_CLI = 1"), u"José"_s);
        EXPECT_EQ(ViewForm->Query->FieldByName(u"NM_CLI"_s)->AsString(), u"José"_s);
        EXPECT_TRUE(ViewForm->DBGrd->Focused());
        Caso.Connection->ExecSQL(u"UPDATE CLIENTE SET NM_CLI = 'ANA' WHERE ID_CLI = 1"_s);
        ViewForm->Free();
    }
}

TEST_F(CadMaster, IncludesAfterAskingAndShowsTheNewRecord) {
    for (const TVizsualizationType type : {vtFilter, vtList}) {
        SCOPED_TRACE(type);
        TFrmTesteCliente* form = Open(type, VK_INSERT);
        ASSERT_TRUE(form);
        EXPECT_EQ(form->MainDS->DataSet()->RecordCount(), 0);
        TypeText(u"Davi"_s);
        Ask(kConfirma, IDNO);
        Press(VK_F12);
        EXPECT_TRUE(ViewForm->ChildForm());
        Ask(kConfirma, IDYES);
        Press(VK_F12);
        ASSERT_TRUE(Closed());
        EXPECT_EQ(Scalar("SELECT NM_CLI FROM CLIENTE WHERE ID_CLI = 50"), u"Davi"_s);
        EXPECT_EQ(ViewForm->Query->FieldByName(u"ID_CLI"_s)->AsInteger(), 50);
        EXPECT_EQ(ViewForm->LbRegCount->Caption(), type == vtFilter ? u"1 Registro"_s : u"4 Registros"_s);
        Caso.Connection->ExecSQL(u"DELETE FROM CLIENTE WHERE ID_CLI = 50"_s);
        ViewForm->Free();
    }
}

// The host posts its items in AfterPost; with them the record is saved as a whole or not at all.
TEST_F(CadMaster, SavesWithTheHostsOwnRowsOrNotAtAll) {
    for (const int key : {VK_INSERT, VK_RETURN}) {
        SCOPED_TRACE(key);
        TFrmTesteCliente* form = Open(vtFilter, key);
        bool fails = true;
        form->FOnConfirm = [&](TDataSet*, unsigned char) {
            Caso.Connection->ExecSQL(
                u"INSERT INTO CLIENTE (ID_CLI, NM_CLI) VALUES (%1, 'ITEM')"_s.arg(800 + key));
        };
        form->MainDS->DataSet()->AfterPost = [&](TDataSet*) {
            if (std::exchange(fails, false)) throw Exception(u"Sem estoque."_s);
        };
        if (key == VK_INSERT) form->MainDS->DataSet()->FieldByName(u"ID_CLI"_s)->SetAsInteger(60);
        form->Nome->SetFocus();
        Press('A', ssCtrl);
        TypeText(u"Eva"_s);
        form->FConfirmToPost = false;
        ExpectBox(u"Sem estoque."_s, u"Erro"_s, MB_ICONERROR);
        Press(VK_F12);
        ASSERT_EQ(Ficha(ViewForm), form);
        EXPECT_EQ(form->MainDS->DataSet()->State(), key == VK_INSERT ? dsInsert : dsEdit);
        EXPECT_EQ(form->Nome->Text(), u"Eva"_s);
        EXPECT_EQ(Scalar("SELECT COUNT(*) FROM CLIENTE WHERE NM_CLI IN ('Eva', 'ITEM')"), u"0"_s);
        Press(VK_F12);
        EXPECT_TRUE(Closed());
        EXPECT_EQ(Scalar("SELECT COUNT(*) FROM CLIENTE WHERE NM_CLI IN ('Eva', 'ITEM')"), u"2"_s);
        Caso.Connection->ExecSQL(u"DELETE FROM CLIENTE WHERE NM_CLI IN ('Eva', 'ITEM')"_s);
        Caso.Connection->ExecSQL(u"UPDATE OR INSERT INTO CLIENTE (ID_CLI, NM_CLI) VALUES (1, 'ANA')"_s);
        ViewForm->Free();
    }
}

TEST_F(CadMaster, AsksBeforeThrowingChangesAway) {
    TFrmTesteCliente* form = Open(vtFilter, VK_RETURN);
    TypeText(u"X"_s);  // still in the edit only
    Ask(kCancelar, IDNO);
    Press(VK_ESCAPE);
    ASSERT_EQ(Ficha(ViewForm), form);
    Ask(kCancelar, IDYES);
    Click(form->BtnCancelar);
    ASSERT_TRUE(Closed());
    EXPECT_EQ(Scalar("SELECT NM_CLI FROM CLIENTE WHERE ID_CLI = 1"), u"ANA"_s);
    Press(VK_RETURN);
    Application->OnActiveControlChange = [] {};
    Press(VK_ESCAPE);  // nothing changed, nothing asked
    EXPECT_TRUE(Closed());
    EXPECT_FALSE(Application->OnActiveControlChange);
}

TEST_F(CadMaster, DeletesByMarkingOrForReal) {
    for (const bool soft : {true, false}) {
        SCOPED_TRACE(soft);
        Caso.SelectDeleted = soft;
        ViewForm = View(vtFilter);
        Click(ViewForm->BtnExcluir);
        TFrmTesteCliente* form = Ficha(ViewForm);
        ASSERT_TRUE(form);
        EXPECT_EQ(form->Caption() + form->BtnConfirmar->Caption(), u"Clientes [Excluindo]Excluir"_s);
        EXPECT_FALSE(form->Nome->CanFocus());
        Ask(kExcluir, IDNO);
        Press(VK_F12);
        EXPECT_TRUE(ViewForm->ChildForm());
        Ask(kExcluir, IDYES);
        Press(VK_F12);
        ASSERT_TRUE(Closed());
        EXPECT_EQ(Scalar("SELECT COUNT(*) FROM CLIENTE WHERE ID_CLI = 1"), soft ? u"1"_s : u"0"_s);
        EXPECT_EQ(ViewForm->Query->FieldByName(u"NM_CLI"_s)->AsString(), u"BRUNO"_s);
        EXPECT_EQ(Scalar("SELECT TF_DEL FROM CLIENTE WHERE ID_CLI = 1"), soft ? u"S"_s : UnicodeString());
        ViewForm->Free();
    }
}

TEST_F(CadMaster, OnlyShowsWithoutTheRight) {
    Module.SetRights({});
    TFrmTesteCliente* form = Open(vtList, VK_RETURN);
    EXPECT_FALSE(form->BtnConfirmar);
    EXPECT_EQ(form->BtnCancelar->Caption(), u"  &Fechar  "_s);
    EXPECT_EQ(form->TBButtons->Width(), form->BtnCancelar->Width());
    EXPECT_FALSE(form->Nome->CanFocus());
    Press(VK_F12);
    EXPECT_TRUE(ViewForm->ChildForm());
}

TEST_F(CadMaster, ChecksBeforePosting) {
    TFrmTesteCliente* form = Open(vtFilter, VK_RETURN);
    TField* limit = form->MainDS->DataSet()->FieldByName(u"VL_LIM"_s);
    limit->SetRequired(true);
    form->MainDS->DataSet()->FieldByName(u"NM_EST"_s)->SetRequired(true);
    const struct {
        const char* Case;
        const char16_t* Field;
        UnicodeString Value;
        const char16_t* Text;
        TDBEdit* Focus;
    } cases[] = {
        {"blanks", u"NM_CLI", u"   "_s, u"Entre com um valor para o campo \"Nome\" antes de prosseguir.",
         form->Nome},
        {"cpf", u"NR_CPF", u"52998224724"_s,
         u"Número de CPF inválido! Entre com um CPF válido antes de prosseguir.", form->Cpf},
        {"letters", u"NR_CPF", u"5299822472X"_s,
         u"Número de CPF inválido! Entre com um CPF válido antes de prosseguir.", form->Cpf},
        {"cnpj", u"NR_CPF", u"11222333000191"_s,
         u"Número de CNPJ inválido! Entre com um CNPJ válido antes de prosseguir.", form->Cpf},
        {"length", u"NR_CPF", u"123"_s,
         u"Número de CPF ou CNPJ inválido! Entre com um CNPJ válido antes de prosseguir.", form->Cpf},
        {"zero on the other page", u"VL_LIM", u"0"_s,
         u"Entre com um valor para o campo \"VL_LIM\" antes de prosseguir.", form->Limite},
        {"no choice", u"NM_EST", UnicodeString(),
         u"Entre com um valor para o campo \"NM_EST\" antes de prosseguir.", nullptr}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Case);
        TField* field = form->MainDS->DataSet()->FieldByName(QString::fromUtf16(c.Field));
        const UnicodeString before = field->AsString();
        field->SetAsString(c.Value);
        ExpectBox(QString::fromUtf16(c.Text), u"Aviso"_s, kAviso);
        Press(VK_F12);
        ASSERT_EQ(Ficha(ViewForm), form);
        EXPECT_EQ(form->ActiveControl(), c.Focus ? static_cast<TControl*>(c.Focus) : form->Uf);
        EXPECT_EQ(form->BtnTabSet->TabIndex(), form->PageControl->ActivePageIndex());
        field->SetAsString(before);
    }
    Press(VK_F12);
    EXPECT_TRUE(Closed());
}

TEST_F(CadMaster, MovesByKeysAndTurnsPages) {
    TFrmTesteCliente* form = Open(vtFilter, VK_RETURN);
    const auto active = [&](const TControl* control) {
        return Until([=] { return form->ActiveControl() == control; });
    };
    Press(VK_RETURN);
    EXPECT_TRUE(active(form->Cpf));
    Press(VK_UP);
    EXPECT_TRUE(active(form->Nome));
    Press(VK_DOWN);
    EXPECT_TRUE(active(form->Cpf));
    Press(VK_PRIOR);
    EXPECT_EQ(form->PageControl->ActivePage(), form->Comercial);
    EXPECT_EQ(form->BtnTabSet->TabIndex(), 1);
    EXPECT_EQ(form->ActiveControl(), form->Limite);
    Press(VK_NEXT);
    EXPECT_EQ(form->PageControl->ActivePage(), form->TabSheet1);
    form->SetTabVisible(form->TabSheet1, false);
    EXPECT_EQ(form->BtnTabSet->TabCount(), 1);
    EXPECT_EQ(form->PageControl->ActivePage(), form->Comercial);
    form->Uf->SetFocus();
    Press(VK_DOWN);
    EXPECT_TRUE(form->Uf->DroppedDown());
}

TEST_F(CadMaster, WorksAGridByKeys) {
    TFrmTesteCliente* form = Open(vtFilter, VK_RETURN);
    auto* rows = new TFDQuery(form);
    rows->SetConnection(Caso.Connection);
    rows->SQL()->SetText(u"SELECT ID_CLI, NM_CLI, NM_EST FROM CLIENTE ORDER BY 1"_s);
    rows->Open();
    auto* source = new TDataSource(form);
    source->SetDataSet(rows);
    auto* grid = NewControl<TDBGrid>(form, form->TabSheet1, u"Grade"_s, QRect(16, 140, 400, 150));
    grid->SetDataSource(source);
    for (const char16_t* field : {u"ID_CLI", u"NM_CLI", u"NM_EST"})
        grid->AddColumn(QString::fromUtf16(field));
    grid->Columns()[1]->SetVisible(false);
    grid->SetFocus();
    Press(VK_RIGHT);
    EXPECT_EQ(grid->SelectedIndex(), 2);  // past the invisible column
    Press(VK_LEFT);
    Press(VK_LEFT);
    EXPECT_EQ(grid->SelectedIndex(), 0);
    Press(VK_RETURN);
    EXPECT_TRUE(Until([&] { return grid->SelectedIndex() == 2; }));
    TypeText(u"mg"_s);
    grid->SetEditorMode(false);
    EXPECT_EQ(rows->FieldByName(u"NM_EST"_s)->AsString(), u"MG"_s);
    Press(VK_ESCAPE);  // the grid's own: the row is put back
    EXPECT_EQ(rows->State(), dsBrowse);
    EXPECT_EQ(Ficha(ViewForm), form);
    Press(VK_ESCAPE);
    EXPECT_TRUE(Closed());
}

// Its query is opened by the form, and described by nobody before.
class TFrmSemLista : public TFrmCad_Master {
  public:
    TFrmSemLista(TComponent* owner, TModuleInstance* module, TFDConnection* connection)
        : TFrmCad_Master(owner, module, kIncluir, ktNone, false), FQuery(new TFDQuery(this)) {
        FQuery->SetConnection(connection);
        FQuery->SQL()->SetText(u"SELECT VL_LIM FROM CLIENTE"_s);
    }
    void CreateControls() override {
        TFrmCad_Master::CreateControls();
        MainDS->SetDataSet(FQuery);
    }
    TFDQuery* FQuery;
};

TEST_F(CadMaster, RoundsFloatsAsTheModuleSays) {
    TField* own = NewForm<TFrmSemLista>(Main, &Module, Caso.Connection)->FQuery->FieldByName(u"VL_LIM"_s);
    own->SetAsFloat(2.675);
    EXPECT_EQ(own->AsFloat(), 2.68);
    TFrmTesteCliente* form = Open(vtFilter, VK_RETURN);
    TField* limit = form->MainDS->DataSet()->FieldByName(u"VL_LIM"_s);
    limit->SetAsFloat(2.6745);
    EXPECT_EQ(limit->AsFloat(), 2.675);
    limit->SetTag(2);
    limit->SetAsFloat(2.675);
    EXPECT_EQ(limit->AsFloat(), 2.68);
    limit->Clear();
    EXPECT_TRUE(limit->IsNull());
}

TEST_F(CadMaster, TellsItsEvents) {
    TFrmTesteCliente* form = Open(vtList, VK_RETURN);
    unsigned char told = 0;
    form->FOnConfirm = [&](TDataSet* data, unsigned char mode) {
        told = mode;
        data->FieldByName(u"NM_CLI"_s)->SetAsString(u"TROCADO"_s);
    };
    Press(VK_F12);
    ASSERT_TRUE(Closed());
    EXPECT_EQ(told, kAlterar);
    EXPECT_EQ(Scalar("SELECT NM_CLI FROM CLIENTE WHERE ID_CLI = 1"), u"TROCADO"_s);
    Click(ViewForm->BtnExcluir);
    Ficha(ViewForm)->FOnDelete = [&](TDataSet*, unsigned char mode) { told = mode; };
    Press(VK_F12);  // the event stands in for the question and the deletion
    ASSERT_TRUE(Closed());
    EXPECT_EQ(told, ::kExcluir);
    EXPECT_EQ(Scalar("SELECT TF_DEL FROM CLIENTE WHERE ID_CLI = 1"), u"N"_s);
}

}  // namespace
