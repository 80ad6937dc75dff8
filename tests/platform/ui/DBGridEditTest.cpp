// The data grid as an editor of rows.
#include "tests/platform/ui/GridFixture.h"

namespace {

class DBGridEditTest : public GridFixture {
  protected:
    void SetUp() override {
        GridFixture::SetUp();
        Grid = NewGrid();
        Edit = NewControl<TEdit>(Form, Form, u"Edit"_s, QRect(450, 4, 90, 25));
        Application->OnException = [this](const Exception& e) { Shown = e.Message; };
        Fill(3);
        Query->Open();
        Grid->SetFocus();
        Grid->SetSelectedIndex(1);
    }
    void TearDown() override {
        Query->Cancel();
        GridFixture::TearDown();
    }
    UnicodeString Text(const UnicodeString& field) { return Query->FieldByName(field)->AsString(); }

    TDBGrid* Grid = nullptr;
    TEdit* Edit = nullptr;
    UnicodeString Shown;
};

}  // namespace

TEST_F(DBGridEditTest, TypingEditsTheCellAndMovingPostsTheRow) {
    Grid->OnKeyPress = [](TComponent*, WideChar& key) { key = QChar(key).toUpper().unicode(); };
    Type(u"ana"_s);
    EXPECT_TRUE(Grid->EditorMode());
    EXPECT_TRUE(Grid->Focused());
    EXPECT_EQ(Query->State(), dsEdit);
    EXPECT_EQ(Text(u"NM"_s), u"Cliente 1"_s);
    Key(Qt::Key_Return);
    EXPECT_FALSE(Grid->EditorMode());
    EXPECT_EQ(Text(u"NM"_s), u"ANA"_s);
    EXPECT_EQ(Stored(u"NM"_s, 1), u"Cliente 1"_s);
    Key(Qt::Key_Down);
    EXPECT_EQ(Stored(u"NM"_s, 1), u"ANA"_s);
    EXPECT_EQ(Query->RecNo(), 2);
}

TEST_F(DBGridEditTest, ARefusedTextKeepsCellRowAndEditor) {
    Grid->SetSelectedIndex(3);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Tab, Qt::Key_Return}) {
        SCOPED_TRACE(key);
        Shown.clear();
        if (!Grid->EditorMode()) Type(u"x"_s);
        Key(key);
        EXPECT_NE(Shown, u""_s);
        EXPECT_TRUE(Grid->EditorMode());
        EXPECT_EQ(Query->RecNo(), 1);
        EXPECT_EQ(Grid->SelectedIndex(), 3);
    }
    EXPECT_ANY_THROW(Edit->SetFocus());
    EXPECT_TRUE(Grid->Focused());
    EXPECT_ANY_THROW(Query->Post());
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Grid->EditorMode());
    EXPECT_EQ(Query->State(), dsEdit);
    Key(Qt::Key_Escape);
    EXPECT_EQ(Query->State(), dsBrowse);
}

TEST_F(DBGridEditTest, TabWalksTheCellsAndLeavingCommits) {
    Grid->SetSelectedIndex(1);
    Type(u"B"_s);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Grid->SelectedIndex(), 3);
    EXPECT_EQ(Text(u"NM"_s), u"B"_s);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Query->RecNo(), 2);
    EXPECT_EQ(Grid->SelectedIndex(), 0);
    Key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(Query->RecNo(), 1);
    EXPECT_EQ(Grid->SelectedIndex(), 3);
    Type(u"7,5"_s);
    Edit->SetFocus();
    EXPECT_EQ(Text(u"VL"_s), u"7,5"_s);
    EXPECT_EQ(Query->State(), dsEdit);
}

TEST_F(DBGridEditTest, RowsAreAddedAndDropped) {
    Query->Last();
    Key(Qt::Key_Down);
    EXPECT_EQ(Query->State(), dsInsert);
    EXPECT_EQ(Query->RowCount(), 4);
    Key(Qt::Key_Down);
    EXPECT_EQ(Query->RowCount(), 4);
    Key(Qt::Key_Up);
    EXPECT_EQ(Query->State(), dsBrowse);
    EXPECT_EQ(Query->RecNo(), 3);
    Key(Qt::Key_Insert);
    EXPECT_EQ(Query->State(), dsInsert);
    Edit->SetFocus();
    EXPECT_EQ(Query->State(), dsBrowse) << "an untouched row goes when the grid is left";
    Grid->SetFocus();
    Key(Qt::Key_Down);
    Grid->SetSelectedIndex(0);
    Type(u"9"_s);
    Key(Qt::Key_Up);
    EXPECT_EQ(Stored(u"COUNT(*)"_s, 9), u"1"_s);
}

TEST_F(DBGridEditTest, DeletingAsksFirst) {
    int answer = IDNO;
    Application->OnMessageBox = [&](const TBox& box) {
        EXPECT_EQ(box.Caption, u"Confirmação"_s);
        EXPECT_EQ(box.Flags, 36);
        return answer;
    };
    Key(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(Query->RowCount(), 3);
    answer = IDYES;
    Key(Qt::Key_Delete, Qt::ControlModifier);
    Application->OnMessageBox = nullptr;
    EXPECT_EQ(Query->RowCount(), 2);
    EXPECT_EQ(Stored(u"COUNT(*)"_s, 1), u"0"_s);
}

TEST_F(DBGridEditTest, WhatMayNotBeEditedIsNot) {
    const TDBGridOptions options = Grid->Options();
    const struct {
        const char* Name;
        std::function<void(bool)> Lock;
    } cases[] = {
        {"grid", [&](bool on) { Grid->SetReadOnly(on); }},
        {"row selection", [&](bool on) { Grid->SetOptions(on ? options | dgRowSelect : options); }},
        {"no editing", [&](bool on) { Grid->SetOptions(on ? options & ~dgEditing : options); }},
        {"column", [&](bool on) { Grid->Columns()[1]->SetReadOnly(on); }},
        {"field", [&](bool on) { Query->FieldByName(u"NM"_s)->SetReadOnly(on); }},
        {"source", [&](bool on) { Source->SetAutoEdit(!on); }},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Name);
        each.Lock(true);
        Type(u"x"_s);
        Key(Qt::Key_F2);
        EXPECT_FALSE(Grid->EditorMode());
        EXPECT_EQ(Query->State(), dsBrowse);
        each.Lock(false);
        EXPECT_TRUE(Grid->CanEdit());
    }
}
