// The data grid as an editor of rows.
#include "tests/platform/ui/GridFixture.h"

namespace {

class DBGridEditTest : public GridFixture {
  protected:
    void SetUp() override {
        GridFixture::SetUp();
        Grid = NewGrid();
        NewControl<TEdit>(Form, Form, u"Edit"_s, QRect(450, 4, 90, 25));
        Fill(3);
        Query->Open();
        Grid->SetFocus();
        Grid->SetSelectedIndex(1);
    }
    void Option(TDBGridOptions option, bool on) {
        Grid->SetOptions(on ? Grid->Options() | option : Grid->Options() & ~option);
    }

    TDBGrid* Grid = nullptr;
};

}  // namespace

TEST_F(DBGridEditTest, EditsCellsAndRows) {
    const std::map<QString, TDBGridOptions> options = {{u"row select"_s, dgRowSelect},
                                                       {u"editing"_s, dgEditing}};
    Run(UI_TESTS "/tables/edicao.txt",
        {{u"Upper"_s, Does([this](const QStringList&) {
              Grid->OnKeyPress = [](TComponent*, WideChar& key) { key = QChar(key).toUpper().unicode(); };
          })},
         {u"Option"_s, Does([&](const QStringList& a) { Option(options.at(a[0]), a[1] == u"yes"); })},
         {u"ReadOnly"_s, Does([this](const QStringList& a) {
              Grid->Columns()[a[0].toInt()]->SetReadOnly(a[1] == u"yes");
          })}});
}
