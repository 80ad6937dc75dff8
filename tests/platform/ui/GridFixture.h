// A form with a grid and some edits over a real table of customers, in a database of the test's own.
#pragma once
#include <gtest/gtest.h>
#include <QTemporaryDir>
#include <QTest>
#include "platform/data/Connection.h"
#include "platform/data/DataSource.h"
#include "platform/data/Query.h"
#include "platform/ui/Application.h"
#include "platform/ui/DBCtrls.h"
#include "platform/ui/DBGrid.h"
#include "platform/ui/Form.h"
#include "tests/support/ScreenScript.h"

using namespace Qt::Literals::StringLiterals;

class GridFixture : public ::testing::Test {
  protected:
    void SetUp() override {
        Form = NewForm<TForm>(Application);
        Form->SetBounds(0, 0, 640, 480);
        Application->OnException = [this](const Exception& e) { Shown = e.Message; };
        OpenDatabase();
        Query = NewQuery(u"SELECT ID, NM, VL, TF_DEL, DT, CPF, OBS, CD_UF FROM CLIENTE ORDER BY ID"_s);
        Source = new TDataSource(Form);
        Source->SetName(u"Source"_s);
        Source->SetDataSet(Query);
        Form->Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Form->Widget()->window()));
    }

    void TearDown() override {
        Application->OnException = nullptr;
        Form->Free();
    }

    // Runs a table, where "Case" starts over.
    void Run(const char* path, TTextFunctions own = {}) {
        own.merge(
            TTextFunctions{{u"Case"_s, Does([this](const QStringList&) { TearDown(), SetUp(); })},
                           {u"Sql"_s, Does([this](const QStringList& a) { Connection->ExecSQL(a[0]); })},
                           {u"Select"_s, Does([this](const QStringList& a) { Query->SQL()->SetText(a[0]); })},
                           {u"Stored"_s, [this](const QStringList& a) { return Stored(a[0], a[1].toInt()); }},
                           {u"Shown"_s, [this](const QStringList&) { return std::exchange(Shown, {}); }}});
        CheckScreenTable(
            QString::fromUtf8(path), [this] { return Query; }, own);
    }

    TFDQuery* NewQuery(const UnicodeString& sql) {
        auto* query = new TFDQuery(Form);
        query->SetConnection(Connection);
        query->SQL()->SetText(sql);
        return query;
    }

    // Rows 1 .. count: "Cliente 1", 1.5, deleted when divisible by 5.
    void Fill(int count) {
        Connection->ExecSQL(
            u"EXECUTE BLOCK AS DECLARE I INTEGER = 1; BEGIN WHILE (I <= %1) DO BEGIN "
            "INSERT INTO CLIENTE (ID, NM, VL, TF_DEL) VALUES (:I, 'Cliente ' || :I, :I * 1.5, "
            "IIF(MOD(:I, 5) = 0, 'S', 'N')); I = I + 1; END END"_s.arg(count));
    }

    TDBGrid* NewGrid() {
        auto* grid = NewControl<TDBGrid>(Form, Form, u"DBGrd"_s, QRect(0, 40, 400, 300));
        grid->SetDataSource(Source);
        grid->AddColumn(u"ID"_s, u"Código"_s, 60);
        grid->AddColumn(u"NM"_s, u"Nome"_s, 160);
        grid->AddColumn(u"TF_DEL"_s, u"Excluído"_s, 60)->SetVisible(false);
        grid->AddColumn(u"VL"_s, u"Valor"_s, 90);
        return grid;
    }

    template <class T>
    T* NewEdit(const UnicodeString& field, int left = 0) {
        auto* edit = NewControl<T>(Form, Form, field, QRect(left, 4, 90, 25));
        edit->SetDataSource(Source);
        edit->SetDataField(field);
        return edit;
    }

    QWindow* Window() const { return Form->Widget()->window()->windowHandle(); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(Window(), key, modifiers); }
    // What the database holds, whatever the datasets show.
    UnicodeString Stored(const UnicodeString& column, int id) {
        return Connection->ExecSQLScalar(u"SELECT %1 FROM CLIENTE WHERE ID = %2"_s.arg(column).arg(id))
            .ToText();
    }

    TForm* Form = nullptr;
    TFDConnection* Connection = nullptr;
    TFDQuery* Query = nullptr;
    TDataSource* Source = nullptr;
    UnicodeString Shown;  // of the last exception that reached the toolkit

  private:
    void OpenDatabase() {
        Connection = new TFDConnection(Form);
        Connection->Params()->SetText(
            u"DriverID=FB\nProtocol=Local\nUser_Name=SYSDBA\nForcedWrites=False\nDatabase="_s +
            Folder.filePath(u"grid%1.fdb"_s.arg(++Databases)));
        Connection->CreateDatabase();
        Connection->ExecSQL(
            u"CREATE TABLE CLIENTE (ID INTEGER NOT NULL PRIMARY KEY, NM VARCHAR(40), VL NUMERIC(15,2), "
            "TF_DEL CHAR(1), DT DATE, CPF VARCHAR(11), OBS BLOB SUB_TYPE TEXT, CD_UF VARCHAR(2))"_s);
    }

    QTemporaryDir Folder;
    int Databases = 0;
};
