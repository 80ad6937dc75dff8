#include "platform/ui/GridCopy.h"

#include <QStringList>
#include "platform/ui/DBGrid.h"

using namespace Qt::Literals::StringLiterals;

namespace {

UnicodeString OneLine(UnicodeString text) {
    return text.replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ').replace(u'\r', u' ').replace(u'\t', u' ');
}

}  // namespace

UnicodeString RowText(TDBGrid& grid) {
    if (grid.CurrentRow() < 0) return {};
    QStringList titles, cells;
    for (int i = 0; i < grid.Columns().Count(); ++i) {
        const TColumn* column = grid.Columns()[i];
        if (!column->Visible()) continue;
        titles << OneLine(column->Title().Caption());
        cells << OneLine(column->Field() ? column->Field()->DisplayText() : UnicodeString());
    }
    return titles.join(u'\t') + u"\r\n"_s + cells.join(u'\t') + u"\r\n"_s;
}

UnicodeString CellText(TDBGrid& grid) {
    const TField* field = grid.SelectedField();
    return field && grid.CurrentRow() >= 0 ? field->DisplayText() : UnicodeString();
}
