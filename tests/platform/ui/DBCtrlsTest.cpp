// Data-aware controls writing to a real table.
#include "tests/platform/ui/GridFixture.h"

namespace {

class DBCtrlsTest : public GridFixture {
  protected:
    void SetUp() override {
        GridFixture::SetUp();
        NewControl<TEdit>(Form, Form, u"Plain"_s, QRect(450, 4, 90, 25));
        Fill(3);
    }
    // A control of the table, named after its field.
    void Make(const QString& kind, const UnicodeString& field) {
        if (kind == u"Edit") NewEdit<TDBEdit>(field);
        if (kind == u"CheckBox") NewEdit<TDBCheckBox>(field, 100);
        if (kind == u"ComboBox") NewEdit<TDBComboBox>(field);
        if (kind == u"Memo") NewEdit<TDBMemo>(field);
        if (kind == u"Text") NewEdit<TDBText>(field, 100);
        if (kind == u"Lookup") MakeLookup(field);
    }
    void MakeLookup(const UnicodeString& field) {
        auto* states = new TDataSource(Form);
        states->SetDataSet(NewQuery(u"SELECT CD, NM FROM UF ORDER BY NM"_s));
        auto* lookup = NewEdit<TDBLookupComboBox>(field);
        lookup->SetListSource(states);
        lookup->SetKeyField(u"CD"_s);
        lookup->SetListField(u"NM"_s);
        states->DataSet()->Open();
    }
};

}  // namespace

TEST_F(DBCtrlsTest, ShowAndWriteTheField) {
    Run(UI_TESTS "/tables/controles.txt",
        {{u"Make"_s, Does([this](const QStringList& a) { Make(a[0], a[1]); })}});
}
