// A database of its own for each test: made once in a run, copied for each case. The embedded engine opens
// it, or, where FICHARIO_TEST_SERVER names the folder of a private server (tests/servidor), that server.
//
//     TEST_F(DataTest, Reads) { TFDQuery* query = Open(u"SELECT * FROM CLIENTE"_s); … }
#pragma once
#include <gtest/gtest.h>
#include <QTemporaryDir>
#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/Query.h"

using namespace Qt::Literals::StringLiterals;

// So that GoogleTest shows texts.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

bool OnServer();
UnicodeString ServerPort();

class DataTest : public ::testing::Test {
  protected:
    DataTest();
    void SetUp() override;
    void TearDown() override;

    // A connection to this test's database, freed with it.
    TFDConnection* Connect(const UnicodeString& characterSet = u"ISO8859_1"_s);
    TFDQuery* Query(const UnicodeString& sql, TFDConnection* connection = nullptr);
    TFDQuery* Open(const UnicodeString& sql, TFDConnection* connection = nullptr);
    UnicodeString Scalar(const UnicodeString& sql) { return FConnection->ExecSQLScalar(sql).ToText(); }
    void Exec(const UnicodeString& sql) { FConnection->ExecSQL(sql); }
    UnicodeString Path() const { return FFolder.filePath(u"teste%1.fdb"_s.arg(FCase)); }
    UnicodeString InFolder(const UnicodeString& name) const { return FFolder.filePath(name); }

    // The message of what `work` throws; empty when it throws nothing.
    template <class Work>
    static UnicodeString MessageOf(Work work) {
        try {
            work();
        } catch (const Exception& error) {
            return error.Message;
        }
        return {};
    }

    QTemporaryDir FFolder;
    int FCase = 0;  // how often a new database was begun
    TComponent* FRoot = nullptr;
    TFDConnection* FConnection = nullptr;
};
