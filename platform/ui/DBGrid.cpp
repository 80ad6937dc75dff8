#include "platform/ui/DBGrid.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>
#include "platform/data/DataLink.h"
#include "platform/data/DataSet.h"
#include "platform/data/DataSource.h"
#include "platform/ui/Application.h"
#include "platform/ui/GridEditor.h"
#include "platform/ui/GridPainter.h"
#include "platform/ui/GridTitleDrag.h"
#include "platform/ui/Guard.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kRowPadding = 6;  // pixels that a row is higher than its text
constexpr int kIndicatorWidth = 12;
constexpr int kTextPadding = 12;  // beside the text of a column of natural width
constexpr int kFetchRows = 200;   // rows asked for when the scrolling comes near the end

}  // namespace

// The grid's ear on its dataset.
class TGridLink : public TDataLink {
  public:
    explicit TGridLink(TDBGrid& grid) : FGrid(grid) {}

    void ActiveChanged() override {
        FGrid.FColumns.ForgetField(nullptr);
        FGrid.DropEditor();
        FGrid.RowsChanged();
    }
    void DataSetChanged() override { FGrid.RowsRefreshed(); }
    void RowsArrived() override {
        FGrid.UpdateScrollBars();
        FGrid.viewport()->update();
    }
    void DataSetScrolled() override { FGrid.ShowCurrentRow(); }
    void RecordChanged(TField*) override {
        FGrid.FEditor->Reload();
        FGrid.viewport()->update();
    }
    void EditingChanged() override {
        if (!Editing()) FGrid.DropEditor();
    }
    void UpdateData() override { FGrid.FEditor->Commit(); }
    void FieldGone(TField* field) override {
        if (FGrid.SelectedField() == field) FGrid.DropEditor();
        FGrid.FColumns.ForgetField(field);
        FGrid.viewport()->update();
    }
    void FocusControl(TField* field) override {
        for (int i = 0; i < FGrid.FColumns.Count(); ++i) {
            if (FGrid.FColumns[i]->Field() != field || !FGrid.CanFocus()) continue;
            FGrid.SetSelectedIndex(i);
            FGrid.SetFocus();
        }
    }

  private:
    TDBGrid& FGrid;
};

TDBGrid::TDBGrid(TComponent* owner)
    : TWidget(owner),
      FLink(std::make_unique<TGridLink>(*this)),
      FDrag(std::make_unique<TGridTitleDrag>(*this)),
      FEditor(new TGridEditor(*this)),
      FOptions(dgEditing | dgTitles | dgColumnResize | dgColLines | dgRowLines | dgTabs |
               dgAlwaysShowSelection | dgConfirmDelete | dgCancelOnExit) {
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setAttribute(Qt::WA_InputMethodEnabled);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setMouseTracking(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setAccessibleName(u"Registros"_s);
}

TDBGrid::~TDBGrid() {
    FLink->SetDataSource(nullptr);
}

TDataSource* TDBGrid::DataSource() const {
    return FLink->DataSource();
}

void TDBGrid::SetDataSource(TDataSource* source) {
    FLink->SetDataSource(source);
}

TDataSet* TDBGrid::DataSet() const {
    return FLink->DataSet();
}

TColumn* TDBGrid::AddColumn(const UnicodeString& fieldName, const UnicodeString& title, int width) {
    return FColumns.Add(fieldName, title, width);
}

TField* TDBGrid::SelectedField() const {
    return FSelected < FColumns.Count() ? FColumns[FSelected]->Field() : nullptr;
}

void TDBGrid::SetOptions(TDBGridOptions options) {
    FOptions = options;
    if (!CanEdit()) DropEditor();
    RowsChanged();
}

void TDBGrid::SetReadOnly(bool readOnly) {
    FReadOnly = readOnly;
    if (readOnly) DropEditor();
}

int TDBGrid::NaturalWidth(const TColumn& column) const {
    const QFontMetrics measure(font());
    const TField* field = column.Field();
    const int text = field ? field->DisplayWidth() * measure.averageCharWidth() : 0;
    return std::max(text, measure.horizontalAdvance(column.Title().Caption())) + kTextPadding;
}

void TDBGrid::ColumnsChanged() {
    DropEditor();
    FSelected = std::clamp(FSelected, 0, std::max(0, FColumns.Count() - 1));
    UpdateScrollBars();
    viewport()->update();
}

// ---- geometry ----

int TDBGrid::RowHeight() const {
    return QFontMetrics(font()).height() + kRowPadding;
}

int TDBGrid::TopRow() const {
    return verticalScrollBar()->value();
}

int TDBGrid::CurrentRow() const {
    return FLink->Active() ? DataSet()->RecNo() - 1 : -1;
}

TGridGeometry TDBGrid::Geometry() const {
    TGridMetrics metrics;
    metrics.RowHeight = RowHeight();
    metrics.TitleHeight = FOptions & dgTitles ? metrics.RowHeight + 2 : 0;
    metrics.IndicatorWidth = FOptions & dgIndicator ? kIndicatorWidth : 0;
    metrics.View = viewport()->size();
    metrics.TopRow = TopRow();
    metrics.ScrollX = horizontalScrollBar()->value();
    metrics.RowCount = FLink->Active() ? DataSet()->RowCount() : 0;
    return {FColumns, metrics};
}

int TDBGrid::FontSize() const {
    return font().pointSize();
}

void TDBGrid::SetFontSize(int points) {
    QFont changed = font();
    changed.setPointSize(points);
    setFont(changed);
}

// ---- following the dataset ----

void TDBGrid::RowsChanged() {
    UpdateScrollBars();
    ShowCurrentRow();
    QueueFetch();
}

// A refresh leaves the user where he has scrolled to, as long as the same row is current.
void TDBGrid::RowsRefreshed() {
    const bool same = FLink->Active() && DataSet()->State() == dsBrowse && CurrentRow() == FShownRow;
    if (!same) return RowsChanged();
    UpdateScrollBars();
    viewport()->update();
    QueueFetch();
}

void TDBGrid::UpdateScrollBars() {
    const TGridGeometry where = Geometry();
    verticalScrollBar()->setRange(0, std::max(0, where.Metrics().RowCount - where.FullRows()));
    verticalScrollBar()->setPageStep(where.FullRows());
    const int room = where.Metrics().View.width() - where.Metrics().IndicatorWidth;
    horizontalScrollBar()->setRange(0, std::max(0, where.ColumnsWidth() - room));
    horizontalScrollBar()->setPageStep(std::max(1, room));
    horizontalScrollBar()->setSingleStep(20);
}

void TDBGrid::ShowCurrentRow() {
    const int row = CurrentRow();
    const TGridGeometry where = Geometry();
    if (row >= 0) {
        UpdateScrollBars();
        const int top = std::clamp(where.Metrics().TopRow, row - where.FullRows() + 1, row);
        verticalScrollBar()->setValue(std::max(0, top));
    }
    FShownRow = row;
    if (FEditor->IsOpen()) FEditor->Place(Geometry().Cell(row, FSelected));
    viewport()->update();
}

// Rows are fetched between events: never while the dataset tells of a change, nor while the toolkit scrolls.
void TDBGrid::QueueFetch() {
    if (FFetchQueued || !FLink->Active() || DataSet()->AllFetched()) return;
    const TGridGeometry where = Geometry();
    if (where.Metrics().TopRow + 2 * where.FullRows() < where.Metrics().RowCount) return;
    FFetchQueued = true;
    QMetaObject::invokeMethod(
        this, [this] { CalledByQt(this, [this] { FetchBelow(); }); }, Qt::QueuedConnection);
}

void TDBGrid::FetchBelow() {
    FFetchQueued = false;
    if (Application->Waiting()) return Application->AfterWait(this, [this] { QueueFetch(); });
    if (FLink->Active() && !DataSet()->AllFetched()) DataSet()->FetchMore(kFetchRows);
}

// ---- the toolkit's events ----

void TDBGrid::paintEvent(QPaintEvent* event) {
    if (TDataSet::Busy()) return Application->AfterWait(viewport(), [this] { viewport()->update(); });
    QPainter painter(viewport());
    CalledByPaint([&] {
        TGridPainter rows(*this, painter);
        rows.Paint(event->rect());
        if (FDrag->DropColumn() >= 0) rows.PaintDropMark(FDrag->DropColumn());
    });
}

void TDBGrid::resizeEvent(QResizeEvent* event) {
    TWidget::resizeEvent(event);
    if (TDataSet::Busy()) return Application->AfterWait(this, [this] { RowsChanged(); });
    UpdateScrollBars();
    QueueFetch();
}

void TDBGrid::scrollContentsBy(int, int) {
    if (FEditor->IsOpen()) FEditor->Place(Geometry().Cell(CurrentRow(), FSelected));
    QueueFetch();
    viewport()->update();
}

void TDBGrid::changeEvent(QEvent* event) {
    TWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) RowsChanged();
}

// The mark of the selected cell shows the focus, and the toolkit would redraw the frame only.
void TDBGrid::focusInEvent(QFocusEvent* event) {
    TWidget::focusInEvent(event);
    viewport()->update();
}

void TDBGrid::focusOutEvent(QFocusEvent* event) {
    TWidget::focusOutEvent(event);
    viewport()->update();
}

bool TDBGrid::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        if (!TDataSet::Busy()) CalledByPaint([&] { ShowToolTip(static_cast<QHelpEvent&>(*event)); });
        return true;
    }
    return TWidget::viewportEvent(event);
}

void TDBGrid::ShowToolTip(const QHelpEvent& event) {
    const TGridGeometry where = Geometry();
    const int row = where.RowAt(event.pos().y());
    const int column = where.ColumnAt(event.pos().x());
    if (row < 0 || column < 0) return QToolTip::hideText();
    std::optional<TRowReading> reading;
    if (row != CurrentRow()) reading.emplace(DataSet(), row);
    const UnicodeString text = TGridPainter::TextOf(FColumns[column]->Field());
    const QRect cell = where.Cell(row, column);
    const bool elided = QFontMetrics(font()).horizontalAdvance(text) > TGridPainter::TextRoom(cell).width();
    QToolTip::showText(event.globalPos(), elided ? text : UnicodeString(), viewport(), cell);
}

QVariant TDBGrid::inputMethodQuery(Qt::InputMethodQuery query) const {
    return query == Qt::ImEnabled ? QVariant(true) : TWidget::inputMethodQuery(query);
}
