// The data grid as a browser: following the dataset, mouse, keys, columns, painting.
#include <QClipboard>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <set>
#include "tests/platform/ui/GridFixture.h"
#include "tests/support/Screen.h"

namespace {

class DBGridTest : public GridFixture {
  protected:
    void SetUp() override {
        GridFixture::SetUp();
        Grid = NewGrid();
        Grid->SetReadOnly(true);
        Grid->OnTitleClick = [this](TColumn* column) { Hear(column->FieldName()); };
        Grid->OnColumnMoved = [this](int from, int to) {
            const TColumn* column = Grid->Columns()[to];
            Hear(u"%1 %2>%3, now %4"_s.arg(column->FieldName()).arg(from).arg(to).arg(column->Index()));
        };
        Grid->OnDblClick = [this](TComponent*) { Hear(u"double"_s); };
        Grid->OnKeyPress = [this](TComponent*, WideChar& key) {
            Hear(QString::number(std::exchange(key, 0)));
        };
    }
    void Hear(const QString& what) { Heard << what; }
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
    // "title 2", "edge 2" (its right end), "cell row column", or "by x y" from another place.
    QPoint Place(const QString& text, QPoint from = {}) const {
        const QString kind = text.section(' ', 0, 0);
        const int a = text.section(' ', 1, 1).toInt(), b = text.section(' ', 2, 2).toInt();
        if (kind == u"by") return from + QPoint(a, b);
        const TGridGeometry where = Grid->Geometry();
        if (kind == u"cell") return where.Cell(a, b).center();
        const QRect title = where.Title(a);
        return kind == u"edge" ? QPoint(title.right(), title.center().y()) : title.center();
    }
    // Where a key leads to from the second column of record 100: by how many records, and to which column.
    QString After(const QString& key) {
        Query->First();
        Query->MoveBy(99);
        Grid->SetSelectedIndex(1);
        Press(key);
        const TGridGeometry where = Grid->Geometry();
        EXPECT_TRUE(View()->rect().contains(where.Cell(Grid->CurrentRow(), 0)))
            << "the current row is in sight";
        const int moved = Query->RecNo() - 100;
        const QString by = abs(moved) == where.FullRows() - 1 ? u"page"_s : QString::number(abs(moved));
        return (moved < 0 ? u"-"_s : u""_s) + by + u' ' + QString::number(Grid->SelectedIndex());
    }
    QString Fields() const {
        QStringList names;
        for (int i = 0; i < Grid->Columns().Count(); ++i) {
            const TColumn& column = *Grid->Columns()[i];
            names << (column.Field() ? column.Field()->FieldName() : u"none"_s) +
                         QString::number(column.Alignment());
        }
        return names.join(u' ');
    }
    TDBGrid* Grid = nullptr;
    QStringList Heard;
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

TEST_F(DBGridTest, AnswersKeysAndTheMouse) {
    Run(UI_TESTS "/tables/grade.txt",
        {{u"Open"_s, Does([this](const QStringList& a) { Open(a[0].toInt()); })},
         {u"RowSelect"_s,
          Does([this](const QStringList&) { Grid->SetOptions(Grid->Options() | dgRowSelect); })},
         {u"After"_s, [this](const QStringList& a) { return After(a[0]); }},
         {u"Click"_s,
          Does([this](const QStringList& a) { QTest::mouseClick(View(), Qt::LeftButton, {}, Place(a[0])); })},
         {u"Double"_s, Does([this](const QStringList& a) {
              QTest::mouseDClick(View(), Qt::LeftButton, {}, Place(a[0]));
          })},
         {u"Drag"_s, Does([this](const QStringList& a) { Drag(Place(a[0]), Place(a[1], Place(a[0]))); })},
         {u"Heard"_s, [this](const QStringList&) { return std::exchange(Heard, {}).join(u' '); }},
         {u"Clipboard"_s, [](const QStringList&) { return QGuiApplication::clipboard()->text(); }},
         {u"Add"_s, Does([this](const QStringList& a) { Grid->AddColumn(a[0], {}, 70); })},
         {u"Fields"_s, [this](const QStringList&) { return Fields(); }},
         {u"Paint"_s, Does([this](const QStringList&) { Grid->grab(); })},
         {u"Detach"_s, Does([this](const QStringList&) { Source->SetDataSet(nullptr); })}});
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
    const int top = Grid->TopRow();
    Query->Refresh();
    EXPECT_EQ(Grid->TopRow(), top);
    Key(Qt::Key_Down);
    EXPECT_EQ(Query->RecNo(), 2);
    EXPECT_LE(Grid->TopRow(), 1);
}

TEST_F(DBGridTest, WheelIsTheFormsFirst) {
    Open(50);
    Wheel(View(), -120);
    Wheel(View(), -120);
    Wheel(View(), 120);
    EXPECT_EQ(Query->RecNo(), 2);
    auto* other = NewForm<TWheelForm>(Application);
    Grid->SetParent(other);
    Wheel(View(), -120);
    EXPECT_EQ(Query->RecNo(), 2);
    EXPECT_EQ(other->Turned, -120);
    Grid->SetParent(nullptr);
    other->Free();
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
    // the mark of the focus comes and goes with it
    auto* edit = NewEdit<TDBEdit>(u"NM"_s);
    const std::initializer_list<TControl*> controls = {edit, Grid};
    for (TControl* control : controls) {
        QCoreApplication::processEvents();
        painted.clear();
        control->SetFocus();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !painted.empty(); }));
    }
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
