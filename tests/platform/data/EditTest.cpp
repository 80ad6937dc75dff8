// Records changed, added and deleted, alone and against other users.
#include "tests/platform/data/Script.h"

namespace {

const UnicodeString kAll = u"SELECT * FROM CLIENTE ORDER BY ID"_s;

TEST_F(ScriptTest, RecordsAreWrittenAndRefused) {
    // What the post of another value into the third record says, provided that it names this code.
    const auto refused = [&](const QStringList& a) {
        FQuery = Open(kAll);
        FQuery->Locate(u"ID"_s, 3);
        Do({"edit", a[0] + u'=' + a[1]});
        QString said = u"it should have been refused"_s;
        try {
            FQuery->Post();
        } catch (const EFDError& error) {
            const bool named = error.Has(a[2].toLongLong()) && error.ConnectionUsable;
            said = named && (a[3].isEmpty() || error.Constraint == a[3]) ? error.Message : u"another code"_s;
        }
        EXPECT_EQ(FQuery->State(), dsEdit);
        EXPECT_EQ(FQuery->FieldByName(a[0])->AsString(), a[1]);
        return said;
    };
    const auto preset = [&](const QStringList& a) {
        FQuery->OnNewRecord = [=](TDataSet* query) { query->FieldByName(a[0])->SetAsInteger(a[1].toInt()); };
        return QString();
    };
    Run("edicao", {{"Refused", refused}, {"Default", preset}});
}

TEST_F(DataTest, NoIncrementIsLostBetweenUsers) {
    Exec(u"UPDATE CLIENTE SET QTD = 0 WHERE ID = 1"_s);
    std::vector<TFDQuery*> users;
    for (int i = 0; i < 3; ++i)
        users.push_back(Open(u"SELECT ID, QTD FROM CLIENTE WHERE ID = 1"_s, Connect()));
    int accepted = 0;
    for (int i = 0; i < 60; ++i) {
        TFDQuery* user = users[static_cast<size_t>(i * 7 % 11 % 3)];
        user->Edit();
        user->FieldByName(u"QTD"_s)->SetAsInteger(user->FieldByName(u"QTD"_s)->AsInteger() + 1);
        const UnicodeString message = MessageOf([&] { user->Post(); });
        accepted += message.isEmpty();
        if (message.isEmpty()) continue;
        EXPECT_EQ(message, u"O registro ID 1 foi alterado por outro usuário (QTD).");
        user->Cancel();
        user->Refresh();
    }
    EXPECT_EQ(Scalar(u"SELECT QTD FROM CLIENTE WHERE ID = 1"_s).toInt(), accepted);
    EXPECT_TRUE(accepted > 10 && accepted < 60);
}

TEST_F(ScriptTest, EventsComeInOrderAndMayRefuse) {
    FQuery = Query(kAll);
    UnicodeString heard;
    const std::pair<std::function<void(TDataSet*)> TDataSet::*, char16_t> events[] = {
        {&TDataSet::BeforeOpen, u'o'},   {&TDataSet::AfterOpen, u'O'},    {&TDataSet::AfterScroll, u's'},
        {&TDataSet::BeforeInsert, u'i'}, {&TDataSet::OnNewRecord, u'n'},  {&TDataSet::AfterInsert, u'I'},
        {&TDataSet::BeforeEdit, u'e'},   {&TDataSet::AfterEdit, u'E'},    {&TDataSet::BeforePost, u'p'},
        {&TDataSet::AfterPost, u'P'},    {&TDataSet::BeforeCancel, u'c'}, {&TDataSet::AfterCancel, u'C'},
        {&TDataSet::BeforeDelete, u'd'}, {&TDataSet::AfterDelete, u'D'},  {&TDataSet::BeforeClose, u'x'},
        {&TDataSet::AfterClose, u'X'}};
    for (const auto& [event, letter] : events)
        FQuery->*event = [&heard, letter = QChar(letter)](TDataSet*) { heard += letter; };
    Do({"open", "next", "edit", "QTD=int 8", "post", "append", "cancel", "delete", "close"});
    EXPECT_EQ(heard, u"oOsseEpPinIscCdDsxX");

    FQuery->Open();
    FQuery->BeforeDelete = FQuery->OnNewRecord = [](TDataSet*) { Abort(); };
    EXPECT_THROW(FQuery->Delete(), EAbort);
    EXPECT_THROW(FQuery->Insert(), EAbort);
    EXPECT_EQ(FQuery->State(), dsBrowse);
    EXPECT_EQ(FQuery->RowCount(), 2);
}

}  // namespace
