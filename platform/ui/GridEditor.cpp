#include "platform/ui/GridEditor.h"

#include <QKeyEvent>
#include "platform/data/DataSet.h"
#include "platform/data/DataSource.h"
#include "platform/ui/DataAware.h"
#include "platform/ui/Guard.h"
#include "platform/ui/OneLine.h"

namespace {

constexpr int kNoLimit = 32767;

bool BelongsToGrid(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_F2: return true;
        default: return false;
    }
}

}  // namespace

TGridEditor::TGridEditor(TDBGrid& grid) : QLineEdit(grid.viewport()), FGrid(grid) {
    setFrame(false);
    setValidator(new TOneLine(this));
    setTextMargins(3, 1, 3, 0);
    hide();
    connect(this, &QLineEdit::textEdited, this, [this] { CalledByQt(&FGrid, [this] { Change(); }); });
}

void TGridEditor::Open(TColumn* column, QRect cell, const UnicodeString& firstText) {
    FColumn = column;
    setAccessibleName(column->Title().Caption());
    setAlignment(column->Alignment() == taRightJustify ? Qt::AlignRight : Qt::AlignLeft);
    setFont(FGrid.font());
    ShowField();
    Place(cell);
    show();
    FGrid.setFocusProxy(this);
    setFocus();
    if (firstText.isEmpty()) return;
    setText(firstText);
    Change();
}

void TGridEditor::Place(QRect cell) {
    setGeometry(cell.adjusted(1, 1, -2, -2));
}

void TGridEditor::ShowField() {
    const TField* field = FColumn->Field();
    FChanged = false;
    const int limit = TypedLimit(field);
    setMaxLength(limit > 0 ? limit : kNoLimit);
    setText(field ? field->Text() : UnicodeString());
    selectAll();
}

void TGridEditor::Reload() {
    if (IsOpen() && !FChanged) ShowField();
}

void TGridEditor::Change() {
    FChanged = true;
    try {
        FGrid.DataSource()->Edit();
    } catch (...) {
        ShowField();
        throw;
    }
    const TDataSetState state = FGrid.DataSet()->State();
    if (state != dsEdit && state != dsInsert) ShowField();
}

void TGridEditor::Commit() {
    if (!IsOpen() || !FChanged) return;
    try {
        if (TField* field = FColumn->Field()) field->SetText(text());
    } catch (...) {
        selectAll();
        throw;
    }
    ShowField();
}

void TGridEditor::Drop() {
    if (!IsOpen()) return;
    const bool focused = hasFocus();
    FColumn = nullptr;
    FChanged = false;
    FGrid.setFocusProxy(nullptr);
    if (focused) FGrid.setFocus();
    hide();
}

void TGridEditor::keyPressEvent(QKeyEvent* event) {
    if (BelongsToGrid(*event)) {
        event->ignore();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}
