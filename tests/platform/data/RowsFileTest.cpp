// Rows written to a file and read again: every kind, nulls, extremes; and files that are none.
#include "platform/data/RowsFile.h"

#include <cerrno>
#include <QFile>
#include <QScopeGuard>

#include "platform/rtl/Files.h"
#include "tests/platform/data/TestDatabase.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kRows =
    u"SELECT CAST('Ação \"x\"' AS VARCHAR(40)) T, CAST('ab' AS CHAR(5)) C, CAST(-32768 AS SMALLINT) H, "
    u"CAST(9223372036854775807 AS BIGINT) L, CAST(-99999999999999.9999 AS NUMERIC(18,4)) N, "
    u"CAST(1e-300 AS DOUBLE PRECISION) F, DATE '0001-01-01' D, TIME '23:59:59.9999' O, "
    u"TIMESTAMP '9999-12-31 23:59:59.9999' S, TRUE B, CAST('memo' AS BLOB SUB_TYPE TEXT) M, "
    u"CAST(x'00FF0D0A' AS BLOB SUB_TYPE BINARY) X FROM RDB$DATABASE UNION ALL SELECT NULL, NULL, NULL, NULL, "
    u"NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL FROM RDB$DATABASE"_s;

void ReadAll(const UnicodeString& path) {
    TRowsReader reader(path);
    std::vector<Variant> row;
    while (reader.Next(row)) {
    }
}

}  // namespace

TEST_F(DataTest, RowsComeBackFromTheirFile) {
    TFDQuery* query = Open(kRows);
    const UnicodeString path = InFolder(u"linhas.dat"_s);
    query->Append();  // what is only typed stays out
    query->SaveToFile(path);
    query->Cancel();
    EXPECT_EQ(TRowsReader(path).Rows(), 2);
    query->Edit();
    query->Fields()[0]->SetAsString(u"digitado"_s);
    query->SaveToFile(path);
    query->Cancel();
    TRowsReader reader(path);
    EXPECT_EQ(reader.Rows(), 2);
    std::vector<Variant> row;
    for (query->First(); !query->Eof(); query->Next()) {
        ASSERT_TRUE(reader.Next(row));
        for (int i = 0; i < query->FieldCount(); ++i) {
            const TField* field = query->Fields()[size_t(i)];
            SCOPED_TRACE(field->FieldName().toStdString());
            EXPECT_EQ(reader.Columns()[size_t(i)],
                      (TRowsColumn{field->FieldName(), field->DataType(), field->Size()}));
            EXPECT_EQ(row[size_t(i)], field->Value());
            EXPECT_EQ(row[size_t(i)].Kind(), field->Value().Kind());
        }
    }
    EXPECT_FALSE(reader.Next(row));
}

TEST_F(DataTest, OnlyWholeFilesOfRowsAreRead) {
    TFDQuery* query = Open(kRows);
    const UnicodeString path = InFolder(u"linhas.dat"_s);
    query->SaveToFile(path);
    const QByteArray whole = ReadWholeFile(path);
    for (qsizetype size = 0; size < whole.size(); ++size) {
        WriteWholeFile(path, whole.first(size));
        EXPECT_NE(MessageOf([&] { ReadAll(path); }), u""_s) << size;
    }
    for (const QByteArray& wrong : {whole + ' ', QByteArray(whole).replace(8, 1, QByteArray(1, '\0'))}) {
        WriteWholeFile(path, wrong);
        EXPECT_NE(MessageOf([&] { ReadAll(path); }), u""_s) << "more than the end, or no version";
    }
    WriteWholeFile(path, QByteArray(whole).replace(8, 1, "\x02"));
    EXPECT_TRUE(MessageOf([&] { ReadAll(path); }).contains(u"versão mais nova"_s));
    WriteWholeFile(path, QByteArray(whole).replace(10, 8, "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F"));
    EXPECT_NE(MessageOf([&] { TRowsReader{path}; }), u""_s) << "more rows than it can hold";
    const auto restore = qScopeGuard([] { SetFileFailure(nullptr); });
    SetFileFailure([](auto&, TFileOperation) { return std::optional(ENOSPC); });
    EXPECT_TRUE(MessageOf([&] { query->SaveToFile(path); }).contains(u"disco cheio"_s));
    SetFileFailure(nullptr);
    EXPECT_EQ(ReadWholeFile(path).size(), whole.size());
    EXPECT_FALSE(QFile::exists(path + u".novo"_s));
}
