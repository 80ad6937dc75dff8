// All cells of a report as texts, held together in one, and the totals of its columns. A page can be drawn
// from any place without reading the file again.
//
//     TTabela table(report, progress);
//     painter.drawText(cell, table.Celula(row, column).toString());
#pragma once

#include <optional>

#include "tools/gridreport/Relatorio.h"

class TTabela {
  public:
    // Reads all rows. Raises as TRelatorio::ParaCadaLinha does.
    explicit TTabela(const TRelatorio& relatorio, const TAndamento& andamento = {});

    int64_t Linhas() const { return FLinhas; }
    QStringView Celula(int64_t linha, int coluna) const;

    // The column's total as the report shows it; nothing where columns are not added up.
    std::optional<UnicodeString> Total(int coluna) const;
    bool TemTotais() const;

  private:
    void Somar(int coluna, const Variant& valor);

    const TRelatorio& FRelatorio;
    int64_t FLinhas = 0;
    UnicodeString FTextos;
    std::vector<uint32_t> FFins;  // where each cell's text ends
    std::vector<long double> FSomas;
};
