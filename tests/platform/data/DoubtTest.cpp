// A connection that is lost during a commit which the server has done.
#include "platform/data/firebird/ClientCall.h"
#include "platform/data/SaveTogether.h"
#include "tests/platform/data/TestDatabase.h"
#include "tests/platform/data/Wire.h"

namespace {

class Doubt : public DataTest {
  protected:
    void SetUp() override {
        if (!OnServer()) GTEST_SKIP() << "needs a server";
        DataTest::SetUp();
        Exec(u"ALTER TABLE CLIENTE ADD F FLOAT"_s);
        FWire = std::make_unique<Wire>(ServerPort().toInt());
        TFDConnection* connection = Connect();
        connection->Close();
        connection->Params()->SetValue(u"Server"_s, u"127.0.0.1/%1"_s.arg(FWire->Port));
        FQuery = Open(u"SELECT ID, NM, UF, SALDO, CRIADO, OBS, F FROM CLIENTE ORDER BY ID"_s, connection);
        fichario::SetClientCallHook([this](fichario::CallKind kind) {
            if (kind != fichario::CallKind::Commit || !std::exchange(FLoseCommit, false)) return;
            FWire->SwallowNext = true;
            FWire->Closed = FAway;
        });
    }
    void TearDown() override {
        fichario::SetClientCallHook(nullptr);
        if (FRoot) DataTest::TearDown();
    }
    void Type(const UnicodeString& name) {
        FQuery->FieldByName(u"NM"_s)->SetAsString(name);
        FQuery->FieldByName(u"UF"_s)->SetAsString(u"P"_s);
        FQuery->FieldByName(u"SALDO"_s)->SetAsString(u"1234,5"_s);
        FQuery->FieldByName(u"CRIADO"_s)->SetAsDateTime(TDateTime(36526.123456));
        FQuery->FieldByName(u"OBS"_s)->SetAsString(u"memória"_s);
        FQuery->FieldByName(u"F"_s)->SetAsFloat(0.1);
    }
    UnicodeString Names() { return Scalar(u"SELECT LIST(NM) FROM (SELECT NM FROM CLIENTE ORDER BY ID)"_s); }

    std::unique_ptr<Wire> FWire;
    TFDQuery* FQuery = nullptr;
    bool FLoseCommit = false, FAway = false;
};

// What was done is not said to have failed, nor done again, however late it can be asked for.
TEST_F(Doubt, ADoneCommitIsNeitherDeniedNorRepeated) {
    const UnicodeString lost =
        u"A conexão com o servidor foi perdida. Os dados digitados foram mantidos; tente novamente."_s;
    enum { Change, WithKey, KeyOfServer };
    for (const bool away : {false, true}) {
        for (const int kind : {Change, WithKey, KeyOfServer}) {
            SCOPED_TRACE(std::to_string(kind) + (away ? " away" : ""));
            Exec(u"DELETE FROM CLIENTE WHERE ID > 3"_s);
            Exec(
                u"UPDATE CLIENTE SET NM = 'Ação', UF = NULL, SALDO = NULL, CRIADO = NULL, OBS = NULL WHERE ID = 1"_s);
            FQuery->Refresh();
            FQuery->First();
            kind == Change ? FQuery->Edit() : FQuery->Append();
            if (kind == WithKey) FQuery->FieldByName(u"ID"_s)->SetAsInteger(77);
            Type(u"novo"_s);
            FLoseCommit = true;
            FAway = away;
            EXPECT_EQ(MessageOf([&] { FQuery->Post(); }), away ? lost : UnicodeString());
            EXPECT_FALSE(FLoseCommit);
            const UnicodeString done = kind == Change ? u"novo,Bia,bruno"_s : u"Ação,Bia,bruno,novo"_s;
            EXPECT_EQ(Names(), done);
            FWire->Closed = false;
            if (away) {
                EXPECT_NE(FQuery->State(), dsBrowse);
                EXPECT_EQ(MessageOf([&] { FQuery->Post(); }), u"");
                EXPECT_EQ(Names(), done);
            }
            EXPECT_EQ(FQuery->State(), dsBrowse);
            EXPECT_EQ(FQuery->FieldByName(u"NM"_s)->AsString(), u"novo");
            EXPECT_FALSE(FQuery->FieldByName(u"ID"_s)->IsNull());
        }
    }
}

TEST_F(Doubt, WhatIsTypedAfterwardsGoesToTheSameRecord) {
    for (const bool insert : {false, true}) {
        SCOPED_TRACE(insert);
        Exec(u"UPDATE CLIENTE SET OBS = NULL WHERE ID = 1"_s);
        FQuery->Refresh();
        insert ? FQuery->Append() : FQuery->Edit();
        Type(u"novo"_s);
        FLoseCommit = FAway = true;
        EXPECT_NE(MessageOf([&] { FQuery->Post(); }), u"");
        FWire->Closed = false;
        FQuery->FieldByName(u"NM"_s)->SetAsString(u"mais novo"_s);
        FQuery->FieldByName(u"OBS"_s)->Clear();  // as it was before the change
        EXPECT_EQ(MessageOf([&] { FQuery->Post(); }), u"");
        EXPECT_TRUE(FQuery->FieldByName(u"OBS"_s)->IsNull());
        EXPECT_EQ(Names(), insert ? u"mais novo,Bia,bruno,mais novo" : u"mais novo,Bia,bruno");
        EXPECT_EQ(
            Scalar(u"SELECT COUNT(*) FROM CLIENTE WHERE NM = 'mais novo' AND OBS IS NULL AND UF = 'P'"_s),
            insert ? u"2" : u"1");
    }
}

// A record with its items, in one transaction whose commit is lost: done or not, the next try leaves
// everything stored once, and what was typed stays meanwhile.
TEST_F(Doubt, ARecordWithItemsIsSavedOnce) {
    enum { Answered, Away, LostBefore };
    for (const int kind : {Answered, Away, LostBefore}) {
        for (const bool insert : {true, false}) {
            SCOPED_TRACE(std::to_string(kind) + (insert ? " insert" : " change"));
            Exec(u"DELETE FROM CLIENTE WHERE ID > 3"_s);
            Exec(u"DELETE FROM NUMEROS WHERE N > 500"_s);
            Exec(u"UPDATE CLIENTE SET NM = 'Ação' WHERE ID = 1"_s);
            FQuery->Refresh();
            FQuery->First();
            TFDQuery* items = Query(u"SELECT * FROM NUMEROS WHERE N > 500"_s,
                                    static_cast<TFDConnection*>(FQuery->Connection()));
            items->SetCachedUpdates(true);
            items->Open();
            items->Append();
            items->FieldByName(u"N"_s)->SetAsInteger(501);
            items->FieldByName(u"T"_s)->SetAsString(u"novo"_s);
            items->Post();
            FQuery->AfterPost = [items](TDataSet*) { items->ApplyUpdates(); };
            insert ? FQuery->Append() : FQuery->Edit();
            FQuery->FieldByName(u"NM"_s)->SetAsString(u"novo"_s);
            const auto save = [&] { SaveTogether(*FQuery, [&] { FQuery->Post(); }); };
            if (kind == LostBefore) {
                FWire->Closed = FWire->SwallowNext = true;
            } else {
                FLoseCommit = true;
                FAway = kind == Away;
            }
            const UnicodeString done = insert ? u"Ação,Bia,bruno,novo"_s : u"novo,Bia,bruno"_s;
            EXPECT_EQ(MessageOf(save).isEmpty(), kind == Answered);
            FWire->Closed = false;
            if (kind != Answered) {
                EXPECT_EQ(FQuery->State(), insert ? dsInsert : dsEdit);
                EXPECT_EQ(FQuery->FieldByName(u"NM"_s)->AsString(), u"novo");
                items->Edit();
                items->FieldByName(u"T"_s)->SetAsString(u"outro"_s);
                items->Post();
                EXPECT_EQ(MessageOf(save), u"");
            }
            EXPECT_EQ(Names(), done);
            EXPECT_EQ(Scalar(u"SELECT LIST(N || T) FROM NUMEROS WHERE N > 500"_s),
                      kind == Answered ? u"501novo" : u"501outro");
            FQuery->AfterPost = nullptr;
            items->Free();
        }
    }
}

TEST_F(Doubt, ADoneDeletionIsNotDenied) {
    for (const bool away : {false, true}) {
        FQuery->Append();
        Type(u"novo"_s);
        FQuery->Post();
        FLoseCommit = true;
        FAway = away;
        EXPECT_NE(MessageOf([&] { FQuery->Delete(); }).isEmpty(), away);
        FWire->Closed = false;
        EXPECT_EQ(MessageOf([&] { away ? FQuery->Delete() : FQuery->First(); }), u"");
        EXPECT_EQ(FQuery->RowCount(), 3);
        EXPECT_EQ(Names(), u"Ação,Bia,bruno");
    }
}

}  // namespace
