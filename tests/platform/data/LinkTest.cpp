// What data sources and links hear, and that they may come and go at any time.
#include "platform/data/DataLink.h"
#include "platform/data/DataSource.h"
#include "tests/platform/data/TestDatabase.h"

namespace {

const UnicodeString kNumbers = u"SELECT N, T FROM NUMEROS ORDER BY N"_s;

// Writes a letter for each thing it hears.
class Ear : public TDataLink {
  public:
    void ActiveChanged() override { Hear(Active() ? u"A"_s : u"a"_s); }
    void DataSetChanged() override { Hear(u"D"_s); }
    void RowsArrived() override { Hear(u"R"_s); }
    void DataSetScrolled() override { Hear(u"S"_s); }
    void RecordChanged(TField* field) override { Hear(field ? u'<' + field->FieldName() + u'>' : u"<>"_s); }
    void EditingChanged() override { Hear(Editing() ? u"E"_s : u"e"_s); }
    void UpdateData() override {
        Hear(u"U"_s);
        if (OnUpdate) OnUpdate();
    }
    void FieldGone(TField*) override { Hear(u"G"_s); }
    void FocusControl(TField*) override { Hear(u"F"_s); }
    UnicodeString Take() { return std::exchange(FHeard, {}); }

    std::function<void()> OnUpdate, OnHear;

  private:
    void Hear(const UnicodeString& what) {
        FHeard += what;
        if (OnHear) OnHear();
    }
    UnicodeString FHeard;
};

class LinkTest : public DataTest {
  protected:
    void SetUp() override {
        DataTest::SetUp();
        FQuery = Query(kNumbers);
        FSource = new TDataSource(FRoot);
        FSource->SetDataSet(FQuery);
        FEar.SetDataSource(FSource);
        FEar.Take();
    }
    TFDQuery* FQuery = nullptr;
    TDataSource* FSource = nullptr;
    Ear FEar;
};

TEST_F(LinkTest, LinksHearEachThingOnce) {
    struct {
        const char* What;
        std::function<void()> Do;
        QStringView Heard;
    } const cases[] = {
        {"open", [&] { FQuery->Open(); }, u"A"},
        {"scroll", [&] { FQuery->Next(); }, u"S"},
        {"stay", [&] { FQuery->MoveToRow(1); }, u""},
        {"fetch", [&] { FQuery->FetchMore(5); }, u"R"},
        {"edit", [&] { FSource->Edit(); }, u"E<>"},
        {"set", [&] { FQuery->FieldByName(u"T"_s)->SetAsString(u"x"_s); }, u"<T>"},
        {"post", [&] { FQuery->Post(); }, u"UeD"},
        {"append", [&] { FQuery->Append(); }, u"RED"},
        {"cancel", [&] { FQuery->Cancel(); }, u"eD"},
        {"refresh", [&] { FQuery->Refresh(); }, u"eD"},
        {"focus", [&] { FQuery->FieldByName(u"N"_s)->FocusControl(); }, u"F"},
        {"label", [&] { FQuery->FieldByName(u"N"_s)->SetDisplayLabel(u"Nº"_s); }, u"A"},
        {"silence",
         [&] {
             FQuery->DisableControls();
             FQuery->DisableControls();
             FQuery->Last();
             FQuery->EnableControls();
         },
         u""},
        {"end of silence", [&] { FQuery->EnableControls(); }, u"eD"},
        {"disabled source",
         [&] {
             FSource->SetEnabled(false);
             FQuery->Next();
             FQuery->First();
         },
         u"a"},
        {"enabled again", [&] { FSource->SetEnabled(true); }, u"A"},
        {"close", [&] { FQuery->Close(); }, u"a"},
        {"other columns",
         [&] {
             FQuery->SQL()->SetText(u"SELECT N FROM NUMEROS"_s);
             FQuery->DescribeFields();
         },
         u"Ga"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.What);
        c.Do();
        EXPECT_EQ(FEar.Take(), c.Heard);
    }
}

TEST_F(LinkTest, TypedTextReachesTheRecordBeforeItIsPosted) {
    FQuery->Open();
    FEar.OnUpdate = [&] { FQuery->FieldByName(u"T"_s)->SetText(u"typed"_s); };
    FQuery->Edit();
    FQuery->Next();
    EXPECT_EQ(Scalar(u"SELECT T FROM NUMEROS WHERE N = 1"_s), u"typed");
    FQuery->Edit();
    FEar.OnUpdate = [] { Abort(); };
    EXPECT_THROW(FQuery->Next(), EAbort);
    EXPECT_EQ(FQuery->RecNo(), 2);
    EXPECT_EQ(FQuery->State(), dsEdit);
    FEar.OnUpdate = nullptr;
    FQuery->Cancel();
    FSource->SetAutoEdit(false);
    EXPECT_FALSE(FEar.Edit());
}

TEST_F(LinkTest, LinksSourcesAndDatasetsMayGoDuringANotification) {
    FQuery->Open();
    FEar.Take();
    auto* second = new Ear;
    auto third = std::make_unique<Ear>();
    second->SetDataSource(FSource);
    third->SetDataSource(FSource);
    FEar.OnHear = [&] { delete std::exchange(second, nullptr); };
    third->OnHear = [&] {
        if (FSource) std::exchange(FSource, nullptr)->Free();
    };
    FQuery->Next();
    EXPECT_EQ(FEar.DataSource(), nullptr);
    EXPECT_EQ(third->DataSet(), nullptr);
    FEar.OnHear = nullptr;
    EXPECT_EQ(FEar.Take(), u"Sa");

    auto* source = new TDataSource(FRoot);
    source->SetDataSet(FQuery);
    FEar.SetDataSource(source);
    FEar.Take();
    FQuery->Free();
    EXPECT_EQ(source->DataSet(), nullptr);
    EXPECT_FALSE(FEar.Active());
    EXPECT_EQ(FEar.Take(), u"aa");
}

TEST_F(LinkTest, ASourceTellsItsOwnEvents) {
    UnicodeString heard;
    FSource->OnDataChange = [&](TField* field) { heard += field ? field->FieldName() : u"-"_s; };
    FSource->OnStateChange = [&] { heard += UnicodeString::number(FSource->State()); };
    FSource->OnUpdateData = [&] { heard += u'U'; };
    FQuery->Open();
    FQuery->Edit();
    FQuery->FieldByName(u"T"_s)->SetAsString(u"y"_s);
    FQuery->Post();
    FSource->SetDataSet(nullptr);
    EXPECT_EQ(heard, u"-12-TU1--0");
}

}  // namespace
