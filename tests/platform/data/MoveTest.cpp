// Moving through a dataset: rows on demand, locating, refreshing.
#include "tests/platform/data/TestDatabase.h"

namespace {

const UnicodeString kNumbers = u"SELECT N, T FROM NUMEROS ORDER BY N"_s;

TEST_F(DataTest, RowsComeOnDemandAndTheEndIsKnown) {
    TFDQuery* query = Open(kNumbers);
    EXPECT_EQ(query->RowCount(), 64);
    EXPECT_FALSE(query->AllFetched());
    EXPECT_EQ(query->RecordCount(), 500);
    EXPECT_EQ(query->RowCount(), 64) << "counting brings no rows";
    EXPECT_EQ(query->FetchMore(10), 10);
    EXPECT_EQ(query->MoveBy(100), 100);
    EXPECT_EQ(query->RecNo(), 101);
    query->Last();
    EXPECT_TRUE(query->AllFetched() && query->Eof() && !query->Bof());
    EXPECT_EQ(query->FieldByName(u"N"_s)->AsInteger(), 500);
    EXPECT_EQ(query->RecordCount(), 500);
    EXPECT_EQ(query->FetchMore(10), 0);

    int walked = 0;
    for (query->First(); !query->Eof(); query->Next())
        ASSERT_EQ(query->FieldByName(u"N"_s)->AsInteger(), ++walked);
    EXPECT_EQ(walked, 500);
    EXPECT_EQ(query->MoveBy(-1000), -499);
    EXPECT_TRUE(query->Bof());
}

TEST_F(DataTest, AnEmptyDatasetHasNoRecord) {
    TFDQuery* query = Open(u"SELECT N, T FROM NUMEROS WHERE N < 0"_s);
    EXPECT_TRUE(query->IsEmpty() && query->Bof() && query->Eof());
    EXPECT_EQ(query->RecNo(), 0);
    EXPECT_EQ(query->RecordCount(), 0);
    EXPECT_TRUE(query->FieldByName(u"T"_s)->IsNull());
    query->Next();
    query->Refresh();
    EXPECT_FALSE(query->Locate(u"N"_s, 1));
    EXPECT_EQ(MessageOf([&] { query->Delete(); }), u"Cannot perform this operation on an empty dataset");
    EXPECT_EQ(MessageOf([&] { query->MoveToRow(0); }), u"Row 0 is not here");
    query->Close();
    EXPECT_EQ(MessageOf([&] { query->First(); }), u"Cannot perform this operation on a closed dataset");
}

TEST_F(DataTest, CountsStatementsOfAnyShape) {
    const UnicodeString thousand = u"SELECT A.N FROM NUMEROS A, NUMEROS B WHERE B.N <= 2"_s;
    struct {
        UnicodeString Sql;
        int Count;
    } const cases[] = {
        {thousand + u" ORDER BY A.N -- fim"_s, 1000},
        {thousand + u" ORDER BY 1 ROWS 700;"_s, 700},
        {u"SELECT FIRST 90 N, N, N + 1 FROM NUMEROS ORDER BY T"_s, 90},
        {u"WITH Q AS ("_s + thousand + u") SELECT MAX(N) FROM Q GROUP BY N"_s, 500},
        {u"SELECT N FROM NUMEROS UNION ALL SELECT N FROM NUMEROS"_s, 1000},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Sql.toStdString());
        TFDQuery* query = Open(c.Sql);
        EXPECT_FALSE(query->AllFetched());
        EXPECT_EQ(query->RecordCount(), c.Count);
        query->Last();
        EXPECT_EQ(query->RowCount(), c.Count);
    }
}

TEST_F(DataTest, LocateComparesByKindAndOption) {
    Exec(u"UPDATE CLIENTE SET NM = 'Éder', NASC = '2000-02-01', SALDO = 10 WHERE ID = 2"_s);
    const Variant both = Variant::Array({u"BRUNO"_s, u"p"_s});
    struct {
        QStringView Keys;
        Variant Value;
        TLocateOptions Options;
        int Id;
    } const cases[] = {
        {u"ID", 3, 0, 3},
        {u"id", u"3"_s, 0, 3},
        {u"ID", u"abc"_s, 0, 0},
        {u"NM", u"Ação"_s, 0, 1},
        {u"NM", u"AÇÃO"_s, 0, 0},
        {u"NM", u"AÇÃO"_s, loCaseInsensitive, 1},
        {u"NM", u"ACAO"_s, loCaseInsensitive, 0},
        {u"NM", u"aç"_s, loCaseInsensitive | loPartialKey, 1},
        {u"NM", u"é"_s, loCaseInsensitive | loPartialKey, 2},
        {u"NM", u"ж"_s, loCaseInsensitive | loPartialKey, 0},
        {u"NM;UF", both, loCaseInsensitive, 3},
        {u"NM;UF", both, 0, 0},
        {u"SALDO", 1234.5, 0, 1},
        {u"SALDO", u"1234,5"_s, 0, 1},
        {u"SALDO", u"123"_s, loPartialKey, 1},
        {u"NASC", EncodeDate(2000, 2, 1), 0, 2},
        {u"NASC", u"01/02"_s, loPartialKey, 2},
        {u"CRIADO", JoinDateTime(EncodeDate(2001, 2, 3), TDateTime((4 * 3600 + 5 * 60 + 6.789) / 86400)), 0,
         1},
        {u"UF", Variant::Null(), 0, 2},
        {u"OBS", u"MEM"_s, loCaseInsensitive | loPartialKey, 1},
    };
    for (TFDConnection* connection : {FConnection, Connect(u"UTF8"_s)}) {
        connection->Close();
        FConnection->Close();
        TFDQuery* query = Open(u"SELECT * FROM CLIENTE ORDER BY ID DESC"_s, connection);
        for (const auto& c : cases) {
            SCOPED_TRACE(
                (c.Keys.toString() + u'=' + (c.Value.IsArray() ? u"…"_s : c.Value.ToText())).toStdString());
            query->Locate(u"ID"_s, c.Id == 3 ? 1 : 3);
            const int before = query->RecNo();
            EXPECT_EQ(query->Locate(c.Keys.toString(), c.Value, c.Options), c.Id != 0);
            EXPECT_EQ(c.Id ? query->FieldByName(u"ID"_s)->AsInteger() : query->RecNo(), c.Id ? c.Id : before);
        }
        EXPECT_EQ(MessageOf([&] { query->Locate(u"X"_s, 1); }), u"Field 'X' not found");
        EXPECT_EQ(MessageOf([&] { query->Locate(u"ID;NM"_s, 1); }),
                  u"Locate needs one value for each key field");
        connection->Close();
    }
}

TEST_F(DataTest, LocateFetchesAsItGoes) {
    TFDQuery* query = Open(kNumbers);
    EXPECT_TRUE(query->Locate(u"T"_s, u"N300"_s, loCaseInsensitive));
    EXPECT_EQ(query->RecNo(), 300);
    EXPECT_FALSE(query->AllFetched());
}

TEST_F(DataTest, RefreshKeepsTheRecordByKeyElseThePlace) {
    TFDQuery* query = Open(kNumbers);
    ASSERT_TRUE(query->Locate(u"N"_s, 100));
    Exec(u"INSERT INTO NUMEROS VALUES (-1, 'novo')"_s);
    query->Refresh();
    EXPECT_EQ(query->FieldByName(u"N"_s)->AsInteger(), 100);
    EXPECT_EQ(query->RecNo(), 101);
    Exec(u"DELETE FROM NUMEROS WHERE N = 100"_s);
    query->Refresh();
    EXPECT_EQ(query->RecNo(), 101);
    EXPECT_EQ(query->FieldByName(u"N"_s)->AsInteger(), 101);
    Exec(u"DELETE FROM NUMEROS WHERE N > 50"_s);
    query->Refresh();
    EXPECT_EQ(query->FieldByName(u"N"_s)->AsInteger(), 50);
}

TEST_F(DataTest, AScopeReadsAnotherRowWithoutMoving) {
    TFDQuery* query = Open(kNumbers);
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

}  // namespace
