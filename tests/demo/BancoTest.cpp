// The sample database file, made and searched by the embedded engine.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>

#include "demo/dados/Banco.h"
#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/Query.h"
#include "platform/rtl/Exceptions.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class Banco : public ::testing::Test {
  protected:
    UnicodeString Path() const { return FFolder.filePath(u"novo/COMERCIAL.FDB"_s); }
    QStringList Files() const { return QDir(FFolder.filePath(u"novo"_s)).entryList(QDir::Files, QDir::Name); }

    QTemporaryDir FFolder;
};

// A database with customers enough for the optimizer to prefer an index, opened.
class BancoAberto : public Banco {
  protected:
    void SetUp() override {
        CriarBancoDeExemplo(Path(), 3000);
        ApontarConexao(*FConnection, Path());
        FConnection->Open();
        FQuery->SetConnection(FConnection);
    }
    void TearDown() override { FOwner->Free(); }

    void Open(const UnicodeString& depoisDeFrom) {
        FQuery->Close();
        FQuery->SQL()->SetText(u"SELECT CD_CLI, NM_CLI FROM CLIENTE "_s + depoisDeFrom);
        FQuery->Open();
    }

    // How the server executes the open query. Its monitoring tables stand still within a transaction.
    UnicodeString Plan() {
        FConnection->StartTransaction();
        const Variant plan = FConnection->ExecSQLScalar(
            u"SELECT CAST(MON$EXPLAINED_PLAN AS VARCHAR(4000)) FROM MON$STATEMENTS "
            "WHERE MON$ATTACHMENT_ID = CURRENT_CONNECTION AND MON$SQL_TEXT STARTING WITH :TEXTO"_s,
            {FQuery->SQL()->Strings(0)});
        FConnection->Commit();
        return plan.ToText();
    }

    TDataModule* FOwner = new TDataModule(nullptr);
    TFDConnection* FConnection = new TFDConnection(FOwner);
    TFDQuery* FQuery = new TFDQuery(FOwner);
};

}  // namespace

TEST_F(BancoAberto, SearchAndOrderWalkAnIndex) {
    const struct {
        UnicodeString sql;
        const char16_t* index;
        const char16_t* scan;
    } cases[] = {
        {u"WHERE NM_CLI LIKE 'JOAO%' ORDER BY NM_CLI, CD_CLI"_s, u"IX_CLIENTE_NM_CLI", u"Range Scan"},
        {u"WHERE NM_CLI LIKE 'JOAO%' AND COALESCE(TF_DEL, 'N') = 'N' ORDER BY NM_CLI, CD_CLI"_s,
         u"IX_CLIENTE_NM_CLI", u"Range Scan"},
        {u"WHERE CIDADE LIKE 'SAO%' ORDER BY CIDADE, CD_CLI"_s, u"IX_CLIENTE_CIDADE", u"Range Scan"},
        {u"WHERE CAST(DT_CAD AS DATE) = '2020-03-05' ORDER BY DT_CAD, CD_CLI"_s, u"IX_CLIENTE_DIA_CAD",
         u"Range Scan"},
        {u"ORDER BY VL_LIMITE, CD_CLI"_s, u"IX_CLIENTE_VL_LIMITE", u"Full Scan"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(qPrintable(c.sql));
        Open(c.sql);
        const UnicodeString plan = Plan();
        EXPECT_TRUE(plan.contains(c.index) && plan.contains(c.scan)) << qPrintable(plan);
        EXPECT_FALSE(plan.contains(u"Sort"_s)) << qPrintable(plan);
    }
}

TEST_F(BancoAberto, SearchWithoutAccentsFindsThemAndMissesNone) {
    Open(u"WHERE NM_CLI LIKE 'JOAO%'"_s);
    EXPECT_TRUE(FQuery->FieldByName(u"NM_CLI"_s)->AsString().startsWith(u"João"_s));
    int expected = 0;
    TGeradorDeClientes gerador;
    for (int i = 0; i < 3000; ++i) expected += gerador.Proximo().Nome.startsWith(u"João"_s);
    EXPECT_EQ(FQuery->RecordCount(), expected);
}

TEST_F(BancoAberto, NewCustomerGetsTheNextNumberAndTheDefaults) {
    FConnection->ExecSQL(u"INSERT INTO CLIENTE (NM_CLI) VALUES (:NOME)"_s, {u"Zulmira"_s});
    const Variant stored = FConnection->ExecSQLScalar(
        u"SELECT CD_CLI || TF_ATIVO || TF_DEL FROM CLIENTE WHERE NM_CLI = 'Zulmira'"_s);
    EXPECT_EQ(stored.ToText(), u"3001SN"_s);
}

TEST_F(Banco, ReplacesAFileOnlyWhenComplete) {
    CriarBancoDeExemplo(Path(), 0);
    QFile old(Path());
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    const QByteArray before = old.readAll();
    EXPECT_THROW(CriarBancoDeExemplo(Path(), 10, [](int, int) { throw EAbort(); }), EAbort);
    old.seek(0);
    EXPECT_EQ(old.readAll(), before);
    EXPECT_EQ(Files(), QStringList(u"COMERCIAL.FDB"_s));
}

TEST_F(Banco, StoppedHalfwayLeavesNothing) {
    int heard = 0;
    EXPECT_THROW(CriarBancoDeExemplo(Path(), 2500,
                                     [&](int done, int) {
                                         heard = done;
                                         if (done == 2000) throw EAbort();
                                     }),
                 EAbort);
    EXPECT_EQ(heard, 2000);
    EXPECT_FALSE(BancoExiste(Path()));
    EXPECT_EQ(Files(), QStringList());
}

TEST_F(Banco, LeftoversOfAKilledProcessDoNotDisturb) {
    QDir(FFolder.path()).mkdir(u"novo"_s);
    QFile leftover(Path() + u".novo"_s);
    ASSERT_TRUE(leftover.open(QIODevice::WriteOnly) && leftover.write("half") == 4);
    leftover.close();
    CriarBancoDeExemplo(Path(), 0);
    EXPECT_EQ(Files(), QStringList(u"COMERCIAL.FDB"_s));
}

TEST_F(Banco, TwoMakersDoNotMeet) {
    QDir(FFolder.path()).mkdir(u"novo"_s);
    QLockFile other(Path() + u".trava"_s);
    ASSERT_TRUE(other.tryLock(0));
    EXPECT_THROW(CriarBancoDeExemplo(Path(), 0), EInOutError);
    EXPECT_FALSE(BancoExiste(Path()));
}
