// Moving through a dataset: rows on demand, locating, refreshing.
#include "tests/platform/data/Script.h"

namespace {

class MoveTest : public ScriptTest {
  protected:
    // The first field of the record that Locate goes to; "no" when it says so and stays where it was.
    QString Found(const QStringList& a) {
        const TLocateOptions options =
            (a[2].contains(u'i') ? loCaseInsensitive : 0) | (a[2].contains(u'p') ? loPartialKey : 0);
        const int before = FQuery->RecNo();
        if (FQuery->Locate(a[0], ValueOf(a[1]), options)) return FQuery->Fields()[0]->AsString();
        return FQuery->RecNo() == before ? "no" : "no, but moved";
    }
};

TEST_F(MoveTest, RowsComeOnDemand) {
    const auto walk = [&](const QStringList&) {
        int walked = 0;
        for (FQuery->First(); !FQuery->Eof(); FQuery->Next())
            EXPECT_EQ(FQuery->Fields()[0]->AsInteger(), ++walked);
        return QString::number(walked);
    };
    const auto count = [&](const QStringList& a) {
        FQuery = Open(a[0]);
        QString counted =
            u"%1; %2; "_s.arg(FQuery->AllFetched() ? u"yes"_s : u"no"_s).arg(FQuery->RecordCount());
        FQuery->Last();
        return counted + QString::number(FQuery->RowCount());
    };
    Run("andar",
        {{"Walk", walk}, {"Count", count}, {"Find", [&](const QStringList& a) { return Found(a); }}});
}

// From the first record and from the last, over a connection of each kind.
TEST_F(MoveTest, LocateComparesByKindAndOption) {
    Exec(u"UPDATE CLIENTE SET NM = 'Éder', NASC = '2000-02-01', SALDO = 10 WHERE ID = 2"_s);
    for (TFDConnection* connection : {FConnection, Connect(u"UTF8"_s)}) {
        for (const bool last : {false, true}) {
            FQuery = Open(u"SELECT * FROM CLIENTE ORDER BY ID DESC"_s, connection);
            Run("localizar", {{"Find", [&](const QStringList& a) {
                                   last ? FQuery->Last() : FQuery->First();
                                   return Found(a);
                               }}});
            const TDateTime time((4 * 3600 + 5 * 60 + 6.789) / 86400);
            EXPECT_TRUE(FQuery->Locate(u"CRIADO"_s, JoinDateTime(EncodeDate(2001, 2, 3), time)))
                << "whatever its last bits are";
            EXPECT_EQ(FQuery->Fields()[0]->AsInteger(), 1);
        }
    }
}

TEST_F(DataTest, AScopeReadsAnotherRowWithoutMoving) {
    TFDQuery* query = Open(u"SELECT N, T FROM NUMEROS ORDER BY N"_s);
    TField* number = query->FieldByName(u"N"_s);
    query->Edit();
    number->SetAsInteger(-7);
    {
        const TRowReading outer(query, 9);
        EXPECT_EQ(number->AsInteger(), 10);
        {
            const TRowReading inner(query, 0);
            EXPECT_EQ(number->AsInteger(), -7) << "the row being edited shows what is typed";
        }
        const TRowReading beyond(query, 64);
        EXPECT_TRUE(number->IsNull());
    }
    EXPECT_EQ(query->RecNo(), 1);
    query->Cancel();
    EXPECT_EQ(number->AsInteger(), 1);
}

// So many rows are looked through from two places: the first hit counts, wherever the others are.
TEST_F(DataTest, LocateFindsTheFirstOfManyRows) {
    TFDQuery* query = Open(
        u"SELECT 'x' || (A.N * 1000 + B.N) T FROM NUMEROS C JOIN NUMEROS A ON A.N <= 450 JOIN NUMEROS B ON "
        u"B.N <= 450 "
        u"WHERE C.N <= 3"_s);
    query->Last();
    ASSERT_EQ(query->RowCount(), 3 * 450 * 450);
    for (const auto& wanted : {u"x1001"_s, u"x226007"_s, u"x450450"_s, u"x300001"_s}) {
        ASSERT_TRUE(query->Locate(u"T"_s, UnicodeString(wanted).toUpper(), loCaseInsensitive));
        const int found = query->RecNo();
        EXPECT_EQ(query->Fields()[0]->AsString(), wanted);
        int first = 0;
        for (int row = 0; first == 0; ++row) {
            const TRowReading reading(query, row);
            if (query->Fields()[0]->AsString() == wanted) first = row + 1;
        }
        EXPECT_EQ(found, first);
    }
    EXPECT_FALSE(query->Locate(u"T"_s, u"y"_s, loCaseInsensitive));
}

}  // namespace
