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
}

}  // namespace
