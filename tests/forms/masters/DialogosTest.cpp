// The dialogs over a grid: filters, fields, and the lookup search.
#include "forms/browse/UPesq_Master.h"
#include "forms/browse/UPesquisa.h"
#include "forms/masters/UVizFields.h"
#include "platform/ui/ListBoxes.h"
#include "platform/ui/SpinEdit.h"
#include "tests/forms/masters/Bancada.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Dialogos = Bancada;

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

TEST_F(Dialogos, FilterTheViewAndArrangeItsFields) {
    using A = QStringList;
    const auto filters = [&] { return dynamic_cast<TFrmPesquisa*>(Vista->ChildForm()); };
    Run("dialogos", {{u"Where"_s, Does([&](const A& a) {
                          Vista->SetWhere(a[0]);
                          Vista->AddParam(u"MINIMO"_s, a[1].toInt());
                      })},
                     {u"Statement"_s, [&](const A&) { return Vista->Query->SQL()->Text().simplified(); }},
                     {u"Operator"_s, Does([&](const A& a) {
                          filters()->CbOperador->SetItemIndex(a[0].toInt());
                          filters()->CbOperadorChange(nullptr);
                      })},
                     {u"Field"_s, Does([&](const A& a) {
                          filters()->LstCampos->SetItemIndex(a[0].toInt());
                          filters()->LstCamposClick(nullptr);
                      })},
                     {u"Hint"_s, [&](const A&) { return filters()->LstFiltros->item(0)->toolTip(); }},
                     {u"Filters"_s, [&](const A&) { return QString::number(filters()->Filtros().size()); }},
                     {u"Order"_s, [&](const A&) { return QString::number(Vista->FOrderFieldIndex); }}});
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
    EXPECT_EQ(view->Query->RecordCount(), 1);  // the opener went to the record
    EXPECT_EQ(view->Query->FieldByName(u"NM_CLI"_s)->AsString(), u"BRUNO"_s);
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
