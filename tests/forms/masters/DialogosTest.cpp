// The dialogs over a grid: filters, fields, and the lookup search.
#include "forms/browse/UPesq_Master.h"
#include "forms/browse/UPesquisa.h"
#include "forms/masters/UVizFields.h"
#include "platform/ui/ListBoxes.h"
#include "platform/ui/SpinEdit.h"
#include "tests/forms/masters/Bancada.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class Dialogos : public Bancada {
  protected:
    TFrmPesquisa* Filters(TFrmTesteClientes* view) {
        view->Filtros1->Click();
        Settle();
        return dynamic_cast<TFrmPesquisa*>(view->ChildForm());
    }

    static UnicodeString Names(TFrmTesteClientes* view) {
        QStringList names;
        for (view->Query->First(); !view->Query->Eof(); view->Query->Next())
            names << view->Query->FieldByName(u"NM_CLI"_s)->AsString();
        return names.join(u',');
    }
};

class TFrmProcurar : public TFrmPesq_Master {
  public:
    TFrmProcurar(TComponent* owner, TModuleInstance* module, TResearchResult* result,
                 TFDConnection* connection, bool results)
        : TFrmPesq_Master(owner, module, vtFilter, result, u"b"_s, {}, 5),
          FConnection(connection),
          FResults(results) {}
    TFDQuery* Query = nullptr;

  protected:
    void CreateControls() override {
        TFrmPesq_Master::CreateControls();
        Query = new TFDQuery(this);
        Query->SetConnection(FConnection);
        Query->SQL()->SetText(u"SELECT NM_CLI, ID_CLI FROM CLIENTE"_s);
        Query->DescribeFields();
        MainDS->SetDataSet(Query);
        DBGrd->AddColumn(u"NM_CLI"_s, u"Nome"_s, 200);
        if (!FResults) return;
        AddResultField(u"ID_CLI"_s);
        AddResultField(u"NM_CLI"_s);
    }

  private:
    TFDConnection* FConnection;
    bool FResults;
};

TEST_F(Dialogos, FilterByKeyboardAloneAndTakenBack) {
    TFrmTesteClientes* view = View(vtFilter);
    TFrmPesquisa* dialog = Filters(view);
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->Caption(), u"Pesquisa ["_s + view->Caption() + u"]"_s);
    EXPECT_EQ(dialog->LstCampos->Items()->IndexOf(u"TF_DEL"_s), -1);
    dialog->LstCampos->SetFocus();
    Press(VK_DOWN);
    Press(VK_TAB);
    for (int i = 0; i < 7; ++i) Press(VK_DOWN);  // "Contém"
    Press(VK_TAB);
    TypeText(u"R"_s);
    Press(VK_RETURN);
    ASSERT_EQ(dialog->Filtros().size(), 1u);
    EXPECT_EQ(dialog->LstFiltros->Items()->Strings(0), u"\"Nome\" Contém 'R' "_s);
    EXPECT_EQ(Names(view), u"BRUNO,CARLA"_s);
    EXPECT_EQ(view->LbRegCount->Caption(), u"2 Registros"_s);
    Click(dialog->Remover);
    EXPECT_EQ(Names(view), u"ANA,BRUNO,CARLA"_s);
    Press(VK_ESCAPE);
    EXPECT_TRUE(Until([&] { return !view->ChildForm(); }));
}

TEST_F(Dialogos, FilterKeepsTheBaseCriteriaAndItsParameters) {
    TFrmTesteClientes* view = View(vtFilter);
    view->SetWhere(u"VL_LIM > :MINIMO"_s);
    view->AddParam(u"MINIMO"_s, 15);
    TFrmPesquisa* dialog = Filters(view);
    dialog->CbOrdem->SetItemIndex(2);
    dialog->CbOperador->SetItemIndex(10);
    dialog->CbOperadorChange(nullptr);
    EXPECT_FALSE(dialog->EValor1->Visible());
    dialog->Adicionar->Click();
    EXPECT_EQ(Names(view), u"CARLA,BRUNO"_s);
    dialog->Limpar->Click();
    EXPECT_TRUE(view->Query->SQL()->Text().contains(u"WHERE VL_LIM > :MINIMO"_s));
    EXPECT_FALSE(view->Query->SQL()->Text().contains(u"ORDER BY"_s));
}

TEST_F(Dialogos, FilterRefusesWhatIsNoNumberAndShowsWhatTheFieldNeeds) {
    TFrmTesteClientes* view = View(vtFilter);
    TFrmPesquisa* dialog = Filters(view);
    dialog->CbOperador->SetItemIndex(kEntre);
    dialog->CbOperadorChange(nullptr);
    EXPECT_TRUE(dialog->EValor2->Visible());
    dialog->EValor1->SetFocus();
    dialog->EValor1->SetText(u"1x"_s);
    ExpectBox(u"Valor inválido."_s, u"Erro"_s, MB_ICONERROR);
    Press(VK_RETURN);
    EXPECT_TRUE(dialog->EValor1->Focused());
    EXPECT_TRUE(dialog->Filtros().empty());
    dialog->EValor1->SetText({});
    Press(VK_TAB);
    EXPECT_EQ(dialog->EValor1->Text(), u"0"_s);
    dialog->EValor1->SetText(u"ANA"_s);
    dialog->LstCampos->SetItemIndex(0);
    dialog->LstCamposClick(nullptr);
    EXPECT_EQ(dialog->EValor1->Text(), UnicodeString());  // "ANA" is no code
}

TEST_F(Dialogos, FieldDialogShowsHidesMovesAndKeeps) {
    TFrmTesteClientes* view = View(vtFilter);
    ExpectModal([&](TForm* form) {
        auto* dialog = dynamic_cast<TFrmVizFields*>(form);
        ASSERT_TRUE(dialog);
        EXPECT_EQ(dialog->CheckBox1->State(), cbChecked);
        EXPECT_EQ(dialog->EdtTitle->Text(), u"Código"_s);
        dialog->Button1->Click();  // the first cannot go up
        dialog->CheckListBox1->SetFocus();
        Press(VK_DOWN);
        EXPECT_EQ(dialog->EdtTitle->Text(), u"Nome"_s);
        dialog->EdtTitle->SetText(u"Nome completo"_s);
        dialog->SEdtWidth->SetValue(300);
        dialog->Button2->Click();
        EXPECT_EQ(dialog->CheckListBox1->ItemIndex(), 2);
        dialog->CheckListBox1->SetFocus();
        Press(VK_UP);
        Press(VK_SPACE);
        EXPECT_EQ(dialog->CheckBox1->State(), cbGrayed);
        Press(VK_ESCAPE);
    });
    view->Campos1->Click();
    TDBGridColumns& columns = view->DBGrd->Columns();
    EXPECT_EQ(columns[2]->FieldName(), u"NM_CLI"_s);
    EXPECT_EQ(columns[2]->Title().Caption(), u"»Nome completo"_s);
    EXPECT_EQ(columns[2]->Width(), 300);
    EXPECT_EQ(view->FOrderFieldIndex, 2);
    EXPECT_FALSE(columns[1]->Visible());
    view->Free();
    view = View(vtFilter);
    EXPECT_EQ(view->GetColumnTitle(2), u"Nome completo"_s);
    EXPECT_FALSE(view->DBGrd->Columns()[1]->Visible());
}

TEST_F(Dialogos, RestoringTheDefaultsEndsTheFieldDialogAndTheForm) {
    TFrmTesteClientes* view = View(vtFilter);
    view->DBGrd->Columns()[0]->SetWidth(222);
    ExpectModal([](TForm* form) {
        ExpectBox(u"Você tem certeza que deseja restaurar a configuração padrão dessa janela?"_s,
                  u"Confirmação"_s, MB_YESNO | MB_ICONQUESTION, IDYES);
        ExpectBox(u"A restauração foi efetuada com sucesso."_s, u"Informação"_s, MB_ICONINFORMATION);
        dynamic_cast<TFrmVizFields*>(form)->Button3->Click();
    });
    view->Campos1->Click();
    Settle();
    EXPECT_EQ(View(vtFilter)->DBGrd->Columns()[0]->Width(), 80);
}

TEST_F(Dialogos, LookupReturnsTheRecordThatThePendingSearchFinds) {
    TFrmTesteClientes* view = View(vtFilter);
    TResearchResult result;
    int delivered = 0;
    result.OnDelivered = [&](const TResearchResult&) { ++delivered; };
    auto* lookup = NewForm<TFrmProcurar>(view, &Module, &result, Caso.Connection, true);
    result.Form = lookup;
    EXPECT_EQ(lookup->EdtPesquisa->Text(), u"b"_s);
    Press(VK_RETURN);  // the search for "b" still waits
    EXPECT_TRUE(Until([&] { return !result.Form; }));
    EXPECT_TRUE(result.Delivered);
    EXPECT_EQ(delivered, 1);
    ASSERT_EQ(result.Count, 2);
    EXPECT_EQ(result.Values[0].ToInt(), 2);
    EXPECT_EQ(result.Values[1].ToText(), u"BRUNO"_s);
    Settle();
    EXPECT_EQ(Names(view), u"BRUNO"_s);  // the opener went to the record
}

TEST_F(Dialogos, LookupWithoutARecordOrAResultFieldSaysSo) {
    TFrmTesteClientes* view = View(vtFilter);
    TResearchResult result;
    auto* lookup = NewForm<TFrmProcurar>(view, &Module, &result, Caso.Connection, true);
    lookup->EdtPesquisa->SetText(u"zz"_s);
    ExpectBox(u"Nenhum resultado foi retornado para a pesquisa."_s, u"Erro"_s, MB_ICONERROR);
    Press(VK_RETURN);
    Press(VK_ESCAPE);
    EXPECT_TRUE(Until([&] { return !view->ChildForm(); }));
    EXPECT_FALSE(result.Delivered);
    lookup = NewForm<TFrmProcurar>(view, &Module, &result, Caso.Connection, false);
    lookup->FinishSearch();
    EXPECT_THROW(lookup->BtnRetornarClick(nullptr), Exception);
    EXPECT_EQ(lookup->Tag(), 5);
    lookup->Free();  // before its result
}

}  // namespace
