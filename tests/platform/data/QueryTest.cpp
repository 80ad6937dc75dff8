// Statements and their parameters.
#include "tests/platform/data/Script.h"

namespace {

TEST_F(ScriptTest, StatementsAndTheirParameters) {
    const auto found = [&](const QStringList& a) {
        FQuery = Query(u"SELECT ID FROM CLIENTE WHERE "_s + a[0]);
        SetParam(*FQuery->ParamByName(u"P"_s), a[1]);
        FQuery->Open();
        EXPECT_TRUE(FQuery->AllFetched());
        return QString::number(FQuery->RowCount());
    };
    const auto nonsense = [&](const QStringList& a) {
        FQuery = Query(a[0]);
        const bool reads = a[0].startsWith(u"SEL"_s) || a[0].size() < 2;
        const UnicodeString said = MessageOf([&] { reads ? FQuery->Open() : void(FQuery->ExecSQL()); });
        return said.trimmed().isEmpty() || FQuery->Active() ? "taken" : "refused";
    };
    Run("consultas", {{"Found", found},
                      {"Nonsense", nonsense},
                      {"Execute", [&](const QStringList&) { return QString::number(FQuery->ExecSQL()); }}});
}

TEST_F(DataTest, AQueryKeepsItsParametersAndNeedsAConnection) {
    TFDQuery* query = Query(u"SELECT ID FROM CLIENTE WHERE ID > :A"_s);
    TFDParam* kept = query->ParamByName(u"A"_s);
    query->SQL()->SetText(u"SELECT ID FROM CLIENTE WHERE ID < :a"_s);
    EXPECT_EQ(query->ParamByName(u"A"_s), kept);
    query->SetConnection(nullptr);
    EXPECT_EQ(MessageOf([&] { query->Open(); }), u"Connection not assigned");
    query->SetConnection(FConnection);
    query->BeforeClose = [](TDataSet*) { Abort(); };
    query->Open();
    EXPECT_THROW(query->SQL()->SetText(u"SELECT NM FROM CLIENTE WHERE ID = :B"_s), EAbort);
    EXPECT_TRUE(query->Active());
    query->BeforeClose = nullptr;
    query->Close();
    query->ParamByName(u"B"_s)->SetAsInteger(2);
    query->Open();
    EXPECT_EQ(query->Fields()[0]->AsString(), u"Bia");
}

TEST_F(DataTest, AHandlerMayCloseTheDatasetAndAHostFreeItsFields) {
    using TEvents = std::function<void(TDataSet*)> TDataSet::*;
    for (const TEvents event : {&TDataSet::BeforeInsert, &TDataSet::OnNewRecord, &TDataSet::BeforeEdit,
                                &TDataSet::BeforePost, &TDataSet::BeforeCancel, &TDataSet::BeforeDelete}) {
        TFDQuery* query = Open(u"SELECT UF, NM FROM CLIENTE ORDER BY ID"_s);
        query->*event = [](TDataSet* dataSet) { dataSet->Close(); };
        const std::function<void()> steps[] = {
            [=] { query->Append(); }, [=] { query->FieldByName(u"NM"_s)->SetAsString(u"x"_s); },
            [=] { query->Cancel(); }, [=] { query->Edit(); },
            [=] { query->Post(); },   [=] { query->Delete(); }};
        for (const auto& step : steps) MessageOf(step);
        EXPECT_FALSE(query->Active());
        EXPECT_EQ(query->RecNo(), 0);
        query->Free();
    }
    TFDQuery* query = Query(u"SELECT UF, NM FROM CLIENTE ORDER BY ID"_s);
    auto* own = new TStringField(FRoot);
    own->SetFieldName(u"UF"_s);
    own->SetDataSet(query);
    query->Open();
    own->Free();
    EXPECT_FALSE(query->Active());
    query->Open();
    EXPECT_EQ(query->FieldByName(u"NM"_s)->AsString(), u"Ação");
}

}  // namespace
