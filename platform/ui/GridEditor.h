// The inline editor of a grid: one line of text over the selected cell.
//
//     FEditor->Open(column, rect, u"A"_s);    // the typed character replaces the text
//     FEditor->Commit();                      // writes to the field, may throw
//     FEditor->Drop();
//
// Keys that move between cells are left to the grid behind it.
#pragma once
#include <QLineEdit>
#include "platform/ui/DBGrid.h"

class TGridEditor : public QLineEdit {
  public:
    explicit TGridEditor(TDBGrid& grid);

    bool IsOpen() const { return FColumn != nullptr; }
    // Shows the field's edit text, selected; or, when given, `firstText`, which is then a change already.
    void Open(TColumn* column, QRect cell, const UnicodeString& firstText);
    // Writes a changed text to the field and shows what the field made of it. When the field refuses it, the
    // text stays, selected, and the exception goes on.
    void Commit();
    // Hides the editor without writing; the focus returns to the grid.
    void Drop();
    // Shows the field's text again, unless the user is changing it.
    void Reload();
    bool IsChanged() const { return FChanged; }
    void Place(QRect cell);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Change();
    void ShowField();

    TDBGrid& FGrid;
    TColumn* FColumn = nullptr;
    bool FChanged = false;
};
