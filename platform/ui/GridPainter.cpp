#include "platform/ui/GridPainter.h"

#include <cmath>
#include <optional>
#include "platform/data/DataSet.h"
#include "platform/ui/Palette.h"

namespace {

constexpr int kPadding = 5;  // left and right of a text

// Where a text of that width begins.
qreal StartOf(QRect room, TAlignment alignment, qreal width) {
    switch (alignment) {
        case taRightJustify: return room.right() + 1 - width;
        case taCenter: return room.left() + (room.width() - width) / 2;
        case taLeftJustify: break;
    }
    return room.left();
}

}  // namespace

qreal TLetterWidths::Of(const UnicodeString& text) {
    qreal width = 0;
    for (const QChar letter : text) {
        if (letter.unicode() >= FWidths.size()) return FMeasure.horizontalAdvance(text);
        qreal& known = FWidths[letter.unicode()];
        if (known < 0) known = FMeasure.horizontalAdvance(letter);
        width += known;
    }
    return width;
}

TGridPainter::TGridPainter(TDBGrid& grid, QPainter& painter)
    : FGrid(grid), FPainter(painter), FWhere(grid.Geometry()), FWidths(grid.font()) {
    FPainter.setFont(grid.font());
}

UnicodeString TGridPainter::TextOf(const TField* field) {
    UnicodeString text = field ? field->DisplayText() : UnicodeString();
    if (text.contains(u'\n')) return text.simplified();
    while (text.endsWith(u' ')) text.chop(1);
    return text;
}

QRect TGridPainter::TextRoom(QRect cell) {
    return cell.adjusted(kPadding, 0, -kPadding, -1);
}

void TGridPainter::Paint(QRect area) {
    FPainter.fillRect(area, Cores::Trabalho);
    FPainter.setClipRect(area.adjusted(0, std::max(0, FWhere.Metrics().TitleHeight - area.top()), 0, 0));
    if (FGrid.DataSet() && FGrid.DataSet()->Active()) {
        for (int row = FWhere.Metrics().TopRow; row < FWhere.EndRow(); ++row) {
            if (FWhere.Row(row).top() <= area.bottom() && FWhere.Row(row).bottom() >= area.top())
                PaintRow(row, area);
        }
    }
    FPainter.setClipRect(area);
    if (FWhere.Metrics().TitleHeight > 0) PaintTitles(area);
}

void TGridPainter::PaintTitles(QRect area) {
    const int height = FWhere.Metrics().TitleHeight;
    FPainter.fillRect(QRect(0, 0, FWhere.Metrics().View.width(), height), Cores::Superficie);
    FPainter.setPen(Cores::Fio);
    FPainter.drawLine(0, height - 1, FWhere.Metrics().View.width(), height - 1);
    for (int i = 0; i < FWhere.ColumnCount(); ++i) {
        const QRect title = FWhere.Title(i);
        if (title.isEmpty() || !title.intersects(area)) continue;
        FPainter.setPen(Cores::Fio);
        FPainter.drawLine(title.right(), 3, title.right(), height - 5);
        FPainter.setPen(Cores::Texto);
        PaintText(title, FGrid.Columns()[i]->Alignment(), FGrid.Columns()[i]->Title().Caption());
    }
}

bool TGridPainter::ShowsSelection() const {
    return (FGrid.Options() & dgAlwaysShowSelection) || FGrid.Focused();
}

void TGridPainter::PaintRow(int row, QRect area) {
    const bool current = row == FGrid.CurrentRow();
    const bool selected = current && ShowsSelection();
    // The current record reads through the edit buffer, every other row as it came.
    std::optional<TRowReading> reading;
    if (!current) reading.emplace(FGrid.DataSet(), row);
    const QColor back = selected ? Cores::Selecao : row % 2 ? Cores::Zebra : Cores::Trabalho;
    FPainter.fillRect(FWhere.Row(row), back);
    for (int i = 0; i < FWhere.ColumnCount(); ++i) {
        const QRect cell = FWhere.Cell(row, i);
        if (!cell.isEmpty() && cell.intersects(area)) PaintCell(row, i, selected);
    }
    PaintLines(row, area);
    if (current && (FGrid.Options() & dgIndicator)) PaintIndicator(row);
}

void TGridPainter::PaintCell(int row, int index, bool selectedRow) {
    TColumn* column = FGrid.Columns()[index];
    QColor color = Cores::Texto;
    QFont font = FGrid.font();
    if (FGrid.OnGetTextColor) FGrid.OnGetTextColor(column, color, font);
    const bool other = font != FGrid.font();
    if (other) FPainter.setFont(font);
    FPainter.setPen(color);
    PaintText(FWhere.Cell(row, index), column->Alignment(), TextOf(column->Field()));
    if (other) FPainter.setFont(FGrid.font());
    const bool selectedCell =
        selectedRow && index == FGrid.SelectedIndex() && !(FGrid.Options() & dgRowSelect);
    if (!selectedCell || !FGrid.Focused()) return;
    FPainter.setPen(Cores::Destaque);
    FPainter.setBrush(Qt::NoBrush);
    FPainter.drawRect(FWhere.Cell(row, index).adjusted(0, 0, -2, -2));
}

void TGridPainter::PaintText(QRect cell, TAlignment alignment, const UnicodeString& text) {
    if (text.isEmpty()) return;
    const QRect room = TextRoom(cell);
    const QFontMetricsF& font = FWidths.Font();
    const qreal width = FWidths.Of(text);
    const bool fits = width <= room.width();
    const qreal left = StartOf(room, fits ? alignment : taLeftJustify, width);
    const qreal base = room.top() + std::round((room.height() - font.height()) / 2 + font.ascent());
    FPainter.drawText(QPointF(left, base), fits ? text : font.elidedText(text, Qt::ElideRight, room.width()));
}

void TGridPainter::PaintLines(int row, QRect area) {
    const QRect line = FWhere.Row(row);
    FPainter.setPen(Cores::Fio.lighter(110));  // between rows a lighter shade does
    if (FGrid.Options() & dgRowLines)
        FPainter.drawLine(line.left(), line.bottom(), line.right(), line.bottom());
    if (!(FGrid.Options() & dgColLines)) return;
    for (int i = 0; i < FWhere.ColumnCount(); ++i) {
        const QRect cell = FWhere.Cell(row, i);
        if (cell.isEmpty() || !cell.intersects(area)) continue;
        FPainter.drawLine(cell.right(), cell.top(), cell.right(), cell.bottom());
    }
}

void TGridPainter::PaintIndicator(int row) {
    const QRect line = FWhere.Row(row);
    const int middle = line.center().y();
    FPainter.setPen(Qt::NoPen);
    FPainter.setBrush(Cores::Destaque);
    FPainter.drawPolygon(QPolygon({QPoint(3, middle - 4), QPoint(8, middle), QPoint(3, middle + 4)}));
}

void TGridPainter::PaintDropMark(int column) {
    const QRect title = FWhere.Title(column);
    FPainter.setPen(QPen(Cores::Destaque, 2));
    FPainter.setBrush(Qt::NoBrush);
    FPainter.drawRect(title.adjusted(1, 1, -1, -1));
}
