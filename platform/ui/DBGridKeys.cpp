// The data grid's answers to mouse and keyboard.
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include "platform/data/DataSet.h"
#include "platform/data/DataSource.h"
#include "platform/ui/Application.h"
#include "platform/ui/DBGrid.h"
#include "platform/ui/Form.h"
#include "platform/ui/GridCopy.h"
#include "platform/ui/GridEditor.h"
#include "platform/ui/GridTitleDrag.h"
#include "platform/ui/Guard.h"

using namespace Qt::Literals::StringLiterals;

// ---- mouse ----

void TDBGrid::mousePressEvent(QMouseEvent* event) {
    TWidget::mousePressEvent(event);
    if (event->button() != Qt::LeftButton) return;
    const QPoint at = event->position().toPoint();
    CalledByQt(this, [&] {
        // The focus stayed with a control whose text cannot be stored.
        if (CanFocus() && !Focused()) return;
        if (!FDrag->Press(at)) PressCell(at);
    });
}

void TDBGrid::PressCell(QPoint at) {
    const TGridGeometry where = Geometry();
    const int row = where.RowAt(at.y());
    const int column = where.ColumnAt(at.x());
    if (row < 0) return;
    const bool again = row == CurrentRow() && column == FSelected;
    SetEditorMode(false);
    if (row != CurrentRow()) DataSet()->MoveToRow(row);
    if (column >= 0) SetSelectedIndex(column);
    if (again) OpenEditor();
}

void TDBGrid::mouseMoveEvent(QMouseEvent* event) {
    TWidget::mouseMoveEvent(event);
    FDrag->Move(event->position().toPoint());
}

void TDBGrid::mouseReleaseEvent(QMouseEvent* event) {
    TWidget::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || !FDrag->Busy()) return;
    CalledByQt(this, [&] { FDrag->Release(event->position().toPoint()); });
}

void TDBGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const TGridGeometry where = Geometry();
    if (where.InTitles(at)) return mousePressEvent(event);
    if (where.RowAt(at.y()) >= 0) TWidget::mouseDoubleClickEvent(event);
}

void TDBGrid::wheelEvent(QWheelEvent* event) {
    const int delta = event->angleDelta().y();
    event->accept();
    if (delta == 0) return;
    CalledByQt(this, [&] {
        TForm* form = Form();
        if (form && form->Perform(WM_MOUSEWHEEL, intptr_t(delta) * 0x10000)) return;
        if (!DataSet() || !DataSet()->Active()) return;
        SetEditorMode(false);
        DataSet()->MoveBy(delta < 0 ? 1 : -1);
    });
}

// ---- keys ----

void TDBGrid::keyPressEvent(QKeyEvent* event) {
    const bool ctrl = event->modifiers() & Qt::ControlModifier;
    CalledByQt(this, [&] {
        if (!DataSet() || !DataSet()->Active()) return event->ignore();
        event->setAccepted(CopyKey(*event) || ChangeRowKey(*event) || EditKey(*event) ||
                           MoveKey(event->key(), ctrl));
    });
}

bool TDBGrid::CopyKey(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool copies = event.key() == Qt::Key_C || event.key() == Qt::Key_Insert;
    if (!copies || !(modifiers & Qt::ControlModifier) || (modifiers & Qt::AltModifier) || CurrentRow() < 0)
        return false;
    const bool row = (FOptions & dgRowSelect) || (modifiers & Qt::ShiftModifier);
    QGuiApplication::clipboard()->setText(row ? RowText(*this) : CellText(*this));
    return true;
}

bool TDBGrid::MoveKey(int key, bool ctrl) {
    const int page = std::max(1, Geometry().FullRows() - 1);
    switch (key) {
        case Qt::Key_Up: RowUp(); return true;
        case Qt::Key_Down: RowDown(); return true;
        case Qt::Key_PageUp:
            SetEditorMode(false);
            DataSet()->MoveBy(-page);
            return true;
        case Qt::Key_PageDown:
            SetEditorMode(false);
            DataSet()->MoveBy(page);
            return true;
        case Qt::Key_Home: MoveToEnd(false, ctrl); return true;
        case Qt::Key_End: MoveToEnd(true, ctrl); return true;
        case Qt::Key_Left: MoveColumns(-1); return true;
        case Qt::Key_Right: MoveColumns(1); return true;
        default: return false;
    }
}

void TDBGrid::RowUp() {
    SetEditorMode(false);
    if (InUntouchedRow()) {
        DataSet()->Cancel();
    } else {
        DataSet()->MoveBy(-1);
    }
}

void TDBGrid::RowDown() {
    SetEditorMode(false);
    if (InUntouchedRow() && CurrentRow() + 1 == DataSet()->RowCount()) return;
    if (DataSet()->MoveBy(1) == 0 && CanChangeRows()) DataSet()->Append();
}

void TDBGrid::MoveToEnd(bool last, bool ofRecords) {
    SetEditorMode(false);
    if (ofRecords || (FOptions & dgRowSelect)) {
        if (last) {
            DataSet()->Last();
        } else {
            DataSet()->First();
        }
        return;
    }
    SetSelectedIndex(last ? VisibleColumn(FColumns.Count() - 1, -1) : VisibleColumn(0, 1));
}

void TDBGrid::MoveColumns(int step) {
    if (FOptions & dgRowSelect) {
        QScrollBar& bar = *horizontalScrollBar();
        bar.setValue(bar.value() + step * bar.singleStep());
    } else {
        SetSelectedIndex(FSelected + step);
    }
}

int TDBGrid::VisibleColumn(int index, int step) const {
    while (index >= 0 && index < FColumns.Count() && !FColumns[index]->Visible()) index += step;
    return index >= 0 && index < FColumns.Count() ? index : -1;
}

void TDBGrid::SetSelectedIndex(int index) {
    index = VisibleColumn(index, index < FSelected ? -1 : 1);
    if (index < 0) return;
    if (index != FSelected) {
        SetEditorMode(false);
        FSelected = index;
        if (OnColEnter) OnColEnter(this);
    }
    ScrollToColumn();
    viewport()->update();
}

void TDBGrid::ScrollToColumn() {
    const TGridGeometry where = Geometry();
    const QRect title = where.Title(FSelected);
    const int first = where.Metrics().IndicatorWidth;
    QScrollBar& bar = *horizontalScrollBar();
    if (title.right() > viewport()->width())
        bar.setValue(bar.value() + title.right() + 1 - viewport()->width());
    const int left = Geometry().Title(FSelected).left();
    if (left < first) bar.setValue(bar.value() - (first - left));
}

bool TDBGrid::focusNextPrevChild(bool next) {
    const bool moves = (FOptions & dgTabs) && !(FOptions & dgRowSelect) && DataSet() && DataSet()->Active();
    if (!moves) return TWidget::focusNextPrevChild(next);
    CalledByQt(this, [&] { NextCell(next); });
    return true;
}

void TDBGrid::NextCell(bool forward) {
    SetEditorMode(false);
    const int step = forward ? 1 : -1;
    const int column = VisibleColumn(FSelected + step, step);
    if (column >= 0) return SetSelectedIndex(column);
    const int row = CurrentRow();
    if (forward) {
        RowDown();
    } else {
        RowUp();
    }
    if (CurrentRow() != row) MoveToEnd(!forward, false);
}

// ---- editing ----

bool TDBGrid::EditorMode() const {
    return FEditor->IsOpen();
}

bool TDBGrid::CanChangeRows() const {
    return (FOptions & dgEditing) && !(FOptions & dgRowSelect) && !FReadOnly && DataSet() &&
           DataSet()->Active();
}

bool TDBGrid::CanEdit() const {
    const TField* field = SelectedField();
    if (!CanChangeRows() || !field || field->ReadOnly() || FColumns[FSelected]->ReadOnly()) return false;
    const TDataSetState state = DataSet()->State();
    return state == dsEdit || state == dsInsert || DataSource()->AutoEdit();
}

bool TDBGrid::InUntouchedRow() const {
    return DataSet()->State() == dsInsert && !DataSet()->Modified();
}

void TDBGrid::SetEditorMode(bool on) {
    if (on) return OpenEditor();
    FEditor->Commit();
    FEditor->Drop();
}

void TDBGrid::OpenEditor(const UnicodeString& firstText) {
    if (EditorMode() || !CanEdit()) return;
    const int row = std::max(0, CurrentRow());
    FEditor->Open(FColumns[FSelected], Geometry().Cell(row, FSelected), firstText);
}

void TDBGrid::DropEditor() {
    FEditor->Drop();
}

bool TDBGrid::EditKey(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_F2: SetEditorMode(!EditorMode()); return true;
        case Qt::Key_Escape: return CancelEdit();
        default: break;
    }
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const UnicodeString text = event.text();
    if (command || text.isEmpty() || !text[0].isPrint() || !CanEdit()) return false;
    OpenEditor(text);
    return true;
}

bool TDBGrid::CancelEdit() {
    if (EditorMode()) {
        DropEditor();
        return true;
    }
    const TDataSetState state = DataSet()->State();
    if (state != dsEdit && state != dsInsert) return false;
    DataSet()->Cancel();
    return true;
}

bool TDBGrid::ChangeRowKey(const QKeyEvent& event) {
    if (!CanChangeRows() || EditorMode()) return false;
    if (event.key() == Qt::Key_Insert && event.modifiers() == Qt::NoModifier) {
        DataSet()->Insert();
        return true;
    }
    if (event.key() != Qt::Key_Delete || !(event.modifiers() & Qt::ControlModifier)) return false;
    DeleteRow();
    return true;
}

void TDBGrid::DeleteRow() {
    if (DataSet()->IsEmpty()) return;
    const int asked = FOptions & dgConfirmDelete
                          ? Application->MessageBox(u"Deseja excluir o registro?"_s, u"Confirmação"_s,
                                                    MB_YESNO | MB_ICONQUESTION)
                          : IDYES;
    if (asked == IDYES) DataSet()->Delete();
}

void TDBGrid::DoExit() {
    SetEditorMode(false);
    const bool open = DataSet() && DataSet()->Active();
    if (open && (FOptions & dgCancelOnExit) && InUntouchedRow()) DataSet()->Cancel();
    TWidget::DoExit();
}
