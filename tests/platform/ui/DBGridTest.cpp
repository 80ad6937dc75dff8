// The data grid as a browser: following the dataset, mouse, keys, columns, painting.
#include <QClipboard>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <set>
#include "tests/platform/ui/GridFixture.h"

namespace {

class DBGridTest : public GridFixture {
  protected:
    void SetUp() override {
        GridFixture::SetUp();
        Grid = NewGrid();
        Grid->SetReadOnly(true);
        Grid->OnTitleClick = [this](TColumn* column) { Clicked += column->FieldName() + u' '; };
        Grid->OnColumnMoved = [this](int from, int to) { Moved += u"%1>%2 "_s.arg(from).arg(to); };
    }
    void Open(int rows) {
        Fill(rows);
        Query->Open();
        Grid->SetFocus();
    }
    QWidget* View() const { return Grid->viewport(); }
    void Drag(QPoint from, QPoint to) {
        QTest::mousePress(View(), Qt::LeftButton, {}, from);
        QTest::mouseMove(View(), (from + to) / 2);
        QTest::mouseMove(View(), to);
        QTest::mouseRelease(View(), Qt::LeftButton, {}, to);
    }
    void Wheel(int delta) {
        const QPointF at = View()->rect().center();
        QWheelEvent event(at, View()->mapToGlobal(at), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(View(), &event);
    }

    TDBGrid* Grid = nullptr;
    UnicodeString Clicked, Moved;
};

// A form that moves by itself when the wheel turns.
class TWheelForm : public TForm {
  public:
    using TForm::TForm;
    int Turned = 0;

  protected:
    void WndProc(TMessage& message) override {
        if (message.Msg != WM_MOUSEWHEEL) return TForm::WndProc(message);
        Turned = int(message.WParam) / 0x10000;
        message.Result = 1;
    }
};

}  // namespace

TEST_F(DBGridTest, KeysMoveTheDatasetAndTheColumn) {
    Open(500);
    const int page = Grid->Geometry().FullRows() - 1;
    const struct {
        Qt::Key Key;
        Qt::KeyboardModifiers Modifiers;
        TDBGridOptions Extra;
        int Record, Column;
    } cases[] = {
        {Qt::Key_Up, {}, 0, 99, 1},
        {Qt::Key_Down, {}, 0, 101, 1},
        {Qt::Key_PageUp, {}, 0, 100 - page, 1},
        {Qt::Key_PageDown, {}, 0, 100 + page, 1},
        {Qt::Key_Home, {}, 0, 100, 0},
        {Qt::Key_End, {}, 0, 100, 3},
        {Qt::Key_Home, Qt::ControlModifier, 0, 1, 1},
        {Qt::Key_End, Qt::ControlModifier, 0, 500, 1},
        {Qt::Key_Home, {}, dgRowSelect, 1, 1},
        {Qt::Key_End, {}, dgRowSelect, 500, 1},
        {Qt::Key_Left, {}, 0, 100, 0},
        {Qt::Key_Right, {}, 0, 100, 3},
        {Qt::Key_Tab, {}, 0, 100, 3},
        {Qt::Key_Right, {}, dgRowSelect, 100, 1},
    };
    const TDBGridOptions options = Grid->Options();
    for (const auto& each : cases) {
        SCOPED_TRACE(QKeySequence(each.Key | each.Modifiers).toString().toStdString());
        Grid->SetOptions(options | each.Extra);
        Query->First();
        Query->MoveBy(99);
        Grid->SetSelectedIndex(1);
        Key(each.Key, each.Modifiers);
        EXPECT_EQ(Query->RecNo(), each.Record);
        EXPECT_EQ(Grid->SelectedIndex(), each.Column);
        const TGridGeometry where = Grid->Geometry();
        EXPECT_TRUE(View()->rect().contains(where.Cell(Grid->CurrentRow(), 0)))
            << "the current row is in sight";
    }
}

TEST_F(DBGridTest, ScrollingFetchesAndLeavesTheRecord) {
    Open(2000);
    ASSERT_LT(Query->RowCount(), 2000);
    QScrollBar& bar = *Grid->verticalScrollBar();
    for (int i = 0; i < 100 && !Query->AllFetched(); ++i) {
        bar.setValue(bar.maximum());
        QCoreApplication::processEvents();
    }
    bar.setValue(bar.maximum());
    EXPECT_EQ(Query->RowCount(), 2000);
    EXPECT_EQ(Grid->Geometry().EndRow(), 2000);
    EXPECT_EQ(Query->RecNo(), 1);
    Key(Qt::Key_Down);
    EXPECT_EQ(Query->RecNo(), 2);
    EXPECT_LE(Grid->TopRow(), 1);
}

TEST_F(DBGridTest, ClicksChooseTheCell) {
    Open(50);
    int clicks = 0;
    Grid->OnDblClick = [&](TComponent*) { ++clicks; };
    const TGridGeometry where = Grid->Geometry();
    QTest::mouseClick(View(), Qt::LeftButton, {}, where.Cell(4, 3).center());
    EXPECT_EQ(Query->FieldByName(u"ID"_s)->AsInteger(), 5);
    EXPECT_EQ(Grid->SelectedIndex(), 3);
    QTest::mouseDClick(View(), Qt::LeftButton, {}, where.Cell(4, 3).center());
    EXPECT_EQ(clicks, 1);
    QTest::mouseDClick(View(), Qt::LeftButton, {}, where.Title(1).center());
    EXPECT_EQ(clicks, 1);
}

TEST_F(DBGridTest, CopiesTheCellOrTheRowWithItsTitles) {
    Open(3);
    Grid->SetSelectedIndex(1);
    Key(Qt::Key_C, Qt::ControlModifier);
    const UnicodeString cell = QGuiApplication::clipboard()->text();
    EXPECT_EQ(cell, Grid->Columns()[1]->Field()->DisplayText());
    Key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split(u"\r\n"_s);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0].section(u'\t', 1, 1), Grid->Columns()[1]->Title().Caption());
    EXPECT_EQ(lines[1].section(u'\t', 1, 1), cell);
    Grid->SetOptions(Grid->Options() | dgRowSelect);
    Key(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), lines.join(u"\r\n"_s));
}

TEST_F(DBGridTest, WheelIsTheFormsFirst) {
    Open(50);
    Wheel(-120);
    Wheel(-120);
    Wheel(120);
    EXPECT_EQ(Query->RecNo(), 2);
    auto* other = NewForm<TWheelForm>(Application);
    Grid->SetParent(other);
    Wheel(-120);
    EXPECT_EQ(Query->RecNo(), 2);
    EXPECT_EQ(other->Turned, -120);
    Grid->SetParent(nullptr);
    other->Free();
}

TEST_F(DBGridTest, TitlesClickDragAndSize) {
    Open(5);
    const TGridGeometry where = Grid->Geometry();
    const int y = where.Title(0).center().y();
    const auto right = [&](int column) { return QPoint(where.Title(column).right(), y); };
    QTest::mouseClick(View(), Qt::LeftButton, {}, where.Title(3).center());
    EXPECT_EQ(Clicked, u"VL "_s);
    Drag(where.Title(0).center(), where.Title(0).center() + QPoint(1, 0));
    EXPECT_EQ(Clicked, u"VL ID "_s) << "a trembling hand still clicks";
    Drag(where.Title(0).center(), where.Title(0).center() + QPoint(0, 100));
    Drag(right(1), right(1) + QPoint(25, 0));
    EXPECT_EQ(Grid->Columns()[1]->Width(), 185);
    Drag(right(0), right(0) - QPoint(500, 0));
    EXPECT_EQ(Grid->Columns()[0]->Width(), 8);
    EXPECT_EQ(Clicked, u"VL ID "_s);
    EXPECT_EQ(Moved, u""_s);
    Drag(Grid->Geometry().Title(1).center(), Grid->Geometry().Title(3).center());
    EXPECT_EQ(Moved, u"1>3 "_s);
    EXPECT_EQ(Grid->Columns()[3]->FieldName(), u"NM"_s);
    EXPECT_EQ(Grid->Columns()[3]->Index(), 3);
    EXPECT_EQ(Clicked, u"VL ID "_s);
}

TEST_F(DBGridTest, ColumnsKeepTheirNamesWithoutFields) {
    TColumn* name = Grid->Columns()[1];
    EXPECT_EQ(name->Field(), nullptr);
    EXPECT_EQ(Grid->AddColumn(u"CPF"_s)->Title().Caption(), u"CPF"_s);
    Open(3);
    ASSERT_EQ(name->Field(), Query->FieldByName(u"NM"_s));
    Query->FieldByName(u"CPF"_s)->SetDisplayLabel(u"C.P.F."_s);
    EXPECT_EQ(Grid->Columns()[4]->Title().Caption(), u"C.P.F."_s);
    EXPECT_EQ(Grid->Columns()[3]->Alignment(), taRightJustify);
    Query->SQL()->SetText(u"SELECT ID FROM CLIENTE"_s);
    Query->Open();
    EXPECT_EQ(name->Field(), nullptr);
    Grid->grab();
    Source->SetDataSet(nullptr);
    Grid->grab();
    EXPECT_EQ(name->FieldName(), u"NM"_s);
    EXPECT_EQ(Grid->CurrentRow(), -1);
}

TEST_F(DBGridTest, PaintsTheVisibleRowsOnly) {
    Open(300);
    std::set<int> painted;
    Grid->OnGetTextColor = [&](TColumn* column, QColor&, QFont& font) {
        painted.insert(Query->FieldByName(u"ID"_s)->AsInteger());
        EXPECT_NE(column->FieldName(), u"TF_DEL"_s);
        font.setStrikeOut(Query->FieldByName(u"TF_DEL"_s)->AsString() == u"S"_s);
    };
    Query->MoveToRow(60);
    Grid->grab();
    const TGridGeometry where = Grid->Geometry();
    EXPECT_EQ(*painted.begin(), where.Metrics().TopRow + 1);
    EXPECT_EQ(*painted.rbegin(), where.EndRow());
    EXPECT_EQ(int(painted.size()), where.EndRow() - where.Metrics().TopRow);
    EXPECT_EQ(Query->RecNo(), 61);
}

TEST_F(DBGridTest, LongTextsShowWholeInATip) {
    Fill(2);
    Connection->ExecSQL(u"UPDATE CLIENTE SET NM = 'Um nome comprido demais para a coluna' WHERE ID = 2"_s);
    Query->Open();
    const TGridGeometry where = Grid->Geometry();
    for (const auto& [row, tip] :
         {std::pair{1, u"Um nome comprido demais para a coluna"_s}, std::pair{0, u""_s}}) {
        const QPoint at = where.Cell(row, 1).center();
        QHelpEvent event(QEvent::ToolTip, at, View()->mapToGlobal(at));
        QApplication::sendEvent(View(), &event);
        EXPECT_TRUE(QTest::qWaitFor([&, text = tip] { return QToolTip::isVisible() == !text.isEmpty(); }));
        EXPECT_EQ(QToolTip::isVisible() ? QToolTip::text() : u""_s, tip);
    }
}

TEST_F(DBGridTest, CharactersReachTheHandlers) {
    Open(3);
    UnicodeString heard;
    Grid->OnKeyPress = [&](TComponent*, WideChar& key) {
        heard += key == 13 ? QChar(u'#') : QChar(key);
        key = 0;
    };
    Type(u"ab"_s);
    Key(Qt::Key_Return);
    QInputMethodEvent composed;
    composed.setCommitString(u"ãé"_s);
    QApplication::sendEvent(Grid, &composed);
    EXPECT_TRUE(QTest::qWaitFor([&] { return heard == u"ab#ãé"_s; })) << heard.toStdString();
}
