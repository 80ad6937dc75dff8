// The data grid: the rows of a dataset, read while they are painted and never copied.
//
//     auto* grid = new TDBGrid(form);
//     grid->SetDataSource(source);
//     grid->AddColumn(u"NM_CLIENTE"_s, u"Nome"_s, 220);
//     grid->OnTitleClick = [this](TColumn* column) { SetOrderFieldIndex(column->Index()); };
//     grid->OnGetTextColor = [this](TColumn*, QColor&, QFont& font) { font.setStrikeOut(IsDeleted()); };
//
// The current row is the dataset's current record: clicks and keys move the dataset, and the grid follows it.
// More rows are fetched when the scrolling comes near the end of those that are here.
//
// The wheel is the form's first (WM_MOUSEWHEEL); where that message's Result stays 0, the grid moves by a
// row.
//
// Keys: Up, Down, Page Up and Page Down move by rows, Home and End by columns (by all rows in row
// selection), Ctrl+Home and Ctrl+End to the first and the last record, Left, Right and (dgTabs) Tab by
// columns. In a grid that can be edited, typing or F2 opens the cell's editor, Enter or leaving the cell
// writes it to the field, Escape drops the text first and the row's changes next, Down on the last row and
// Insert make a new row, Ctrl+Delete deletes one after asking. Ctrl+C copies the selected cell, in row
// selection and with Shift the whole row with its titles (GridCopy.h).
#pragma once
#include <memory>
#include <QAbstractScrollArea>
#include "platform/ui/Control.h"
#include "platform/ui/DBGridColumns.h"
#include "platform/ui/GridGeometry.h"

class QHelpEvent;
class TDataSource;
class TGridEditor;
class TGridLink;
class TGridTitleDrag;

enum TDBGridOption {
    dgEditing = 1,                // cells can be edited
    dgTitles = 2,                 // a row of titles
    dgIndicator = 4,              // a narrow column that marks the current row
    dgColumnResize = 8,           // columns can be sized and dragged with the mouse
    dgColLines = 16,              // hairlines between columns
    dgRowLines = 32,              // hairlines between rows
    dgTabs = 64,                  // Tab moves to the next column instead of the next control
    dgRowSelect = 128,            // the whole row is selected, no cell; excludes editing
    dgAlwaysShowSelection = 256,  // the selection stays visible without the focus
    dgConfirmDelete = 512,        // Ctrl+Delete asks first
    dgCancelOnExit = 1024,        // an untouched new row is dropped when the focus leaves
    dgMultiSelect = 2048          // kept for hosts; several rows are not selected by this grid
};
using TDBGridOptions = int;

class TDBGrid : public TWidget<QAbstractScrollArea>, private TColumnsHost {
  public:
    explicit TDBGrid(TComponent* owner);

    TDataSource* DataSource() const;
    void SetDataSource(TDataSource* source);
    // The source's dataset, null without one.
    TDataSet* DataSet() const;

    TDBGridColumns& Columns() { return FColumns; }
    const TDBGridColumns& Columns() const { return FColumns; }
    TColumn* AddColumn(const UnicodeString& fieldName, const UnicodeString& title = {}, int width = 0);

    // The selected column. Choosing an invisible one, or one outside 0 .. count - 1, takes the nearest
    // visible one in the direction of the move; where there is none that way, nothing changes.
    int SelectedIndex() const { return FSelected; }
    void SetSelectedIndex(int index);
    TField* SelectedField() const;

    // Bits of TDBGridOption. The beginning: editing, titles, resize, both lines, tabs, always show selection,
    // confirm delete, cancel on exit.
    TDBGridOptions Options() const { return FOptions; }
    void SetOptions(TDBGridOptions options);

    // A read-only grid never edits, inserts or deletes.
    bool ReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool readOnly);

    // The inline editor is open in the selected cell.
    bool EditorMode() const;
    // Opens the editor where the cell can be edited, else does nothing; closing writes the text to the field,
    // and throws what the field says of a text that cannot be stored, with the editor still open.
    void SetEditorMode(bool on);
    // Whether the selected cell can be edited: options, column, field and dataset all allow it.
    bool CanEdit() const;

    // Pixels of one row, its line included. All rows and the titles have one height.
    int RowHeight() const;
    // Zero-based row at the top of the work area.
    int TopRow() const;
    // Where cells and titles are on the viewport now.
    TGridGeometry Geometry() const;

    // Points.
    int FontSize() const;
    void SetFontSize(int points);

    // Zero-based row of the dataset's current record, -1 without one.
    int CurrentRow() const;

    // A title was clicked: pressed and released on it, and neither dragged nor sized.
    std::function<void(TColumn* column)> OnTitleClick;
    // The user dragged a column to another place.
    std::function<void(int from, int to)> OnColumnMoved;
    // Asked for each cell painted, while the dataset's fields read that row: changes the text's colour or
    // font.
    std::function<void(TColumn* column, QColor& color, QFont& font)> OnGetTextColor;
    // The selected column changed.
    std::function<void(TComponent* sender)> OnColEnter;

    bool TextAsKeys() const override { return true; }
    bool WantsEnter() const override { return EditorMode(); }

  protected:
    ~TDBGrid() override;
    void DoExit() override;

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

  private:
    friend class TGridLink;

    TDataSet* ColumnsDataSet() const override { return DataSet(); }
    int NaturalWidth(const TColumn& column) const override;
    void ColumnsChanged() override;

    // Following the dataset
    void RowsChanged();
    void RowsRefreshed();
    void ShowCurrentRow();
    void UpdateScrollBars();
    void QueueFetch();
    void FetchBelow();

    // Moving
    bool CopyKey(const QKeyEvent& event);
    bool MoveKey(int key, bool ctrl);
    void MoveColumns(int step);
    void MoveToEnd(bool last, bool ofRecords);
    void RowUp();
    void RowDown();
    void NextCell(bool forward);
    void ScrollToColumn();
    int VisibleColumn(int index, int step) const;
    void PressCell(QPoint at);

    // Editing
    bool EditKey(const QKeyEvent& event);
    bool ChangeRowKey(const QKeyEvent& event);
    void OpenEditor(const UnicodeString& firstText = {});
    void DropEditor();
    void DeleteRow();
    bool CanChangeRows() const;
    bool InUntouchedRow() const;
    bool CancelEdit();

    void ShowToolTip(const QHelpEvent& event);

    TDBGridColumns FColumns{*this};
    std::unique_ptr<TGridLink> FLink;
    std::unique_ptr<TGridTitleDrag> FDrag;
    TGridEditor* FEditor;  // a child of the viewport
    TDBGridOptions FOptions;
    int FSelected = 0;
    int FShownRow = -1;  // the current row that was last brought into sight
    bool FReadOnly = false;
    bool FFetchQueued = false;
};

// The name under which the masters use the grid.
class TOrlaDBGrid : public TDBGrid {
  public:
    using TDBGrid::TDBGrid;

  protected:
    ~TOrlaDBGrid() override = default;
};
