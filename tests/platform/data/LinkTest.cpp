// What data sources and links hear, and that they may come and go at any time.
#include "platform/data/DataLink.h"
#include "platform/data/DataSource.h"
#include "tests/platform/data/Script.h"

namespace {

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

class LinkTest : public ScriptTest {
  protected:
    void SetUp() override {
        DataTest::SetUp();
        FQuery = Query(u"SELECT N, T FROM NUMEROS ORDER BY N"_s);
        FSource = new TDataSource(FRoot);
        FSource->SetDataSet(FQuery);
        FEar.SetDataSource(FSource);
        FEar.Take();
    }
    TDataSource* FSource = nullptr;
    Ear FEar;
};

TEST_F(LinkTest, LinksHearEachThingOnce) {
    const std::map<QString, std::function<void()>> steps = {
        {"fetch", [&] { FQuery->FetchMore(5); }},
        {"edit source", [&] { FSource->Edit(); }},
        {"focus", [&] { FQuery->FieldByName(u"N"_s)->FocusControl(); }},
        {"label", [&] { FQuery->FieldByName(u"N"_s)->SetDisplayLabel(u"Nº"_s); }},
        {"disable source", [&] { FSource->SetEnabled(false); }},
        {"enable source", [&] { FSource->SetEnabled(true); }}};
    const auto hear = [&](const QStringList& a) {
        const auto own = steps.find(a[0]);
        if (own != steps.end()) own->second();
        Do(a.sliced(own == steps.end() ? 0 : 1));
        return FEar.Take();
    };
    Run("ligacoes", {{"Hear", hear}});
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
