#include "platform/ui/ValueList.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include "platform/ui/Form.h"
#include "platform/ui/ShownList.h"

namespace {

constexpr int kRowHeight = 22;

}

TValueListEditor::TValueListEditor(TComponent* owner)
    : TWidget(owner), FStrings(std::make_unique<TShownList>([this] { ShowRows(); })) {
    setColumnCount(1);
    horizontalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | SelectedClicked | QTableWidget::DoubleClicked);
    connect(this, &QTableWidget::itemChanged, this,
            [this](QTableWidgetItem* item) { CalledByQt(this, [&] { UserChanged(*item); }); });
}

TValueListEditor::~TValueListEditor() = default;

void TValueListEditor::SetRow(int row) {
    if (row >= 0 && row < rowCount()) CallQt([&] { setCurrentCell(row, 0); });
}

// Tab leaves the list, also while a value is being typed.
void TValueListEditor::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    const bool forward = hint == QAbstractItemDelegate::EditNextItem;
    const bool tab = forward || hint == QAbstractItemDelegate::EditPreviousItem;
    TWidget::closeEditor(editor, tab ? QAbstractItemDelegate::NoHint : hint);
    if (tab) CalledByQt(this, [&] { FormOf(this)->DoTabKey(forward); });
}

void TValueListEditor::ShowRows() {
    const QSignalBlocker silent(this);
    const int chosen = currentRow();
    setRowCount(FStrings->Count());
    for (int row = 0; row < rowCount(); ++row) ShowRow(row);
    if (rowCount() > 0) setCurrentCell(qBound(0, chosen, rowCount() - 1), 0);
}

void TValueListEditor::ShowRow(int row) {
    if (!item(row, 0)) setItem(row, 0, new QTableWidgetItem);
    if (!verticalHeaderItem(row)) setVerticalHeaderItem(row, new QTableWidgetItem);
    verticalHeaderItem(row)->setText(FStrings->Names(row));
    item(row, 0)->setText(FStrings->ValueFromIndex(row));
}

void TValueListEditor::UserChanged(const QTableWidgetItem& item) {
    FStrings->SetStrings(item.row(), FStrings->Names(item.row()) + u'=' + item.text());
    if (OnChange) OnChange(this);
}
