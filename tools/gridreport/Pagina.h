// The pages of a report: how its rows and columns fit the paper, and the drawing of one page.
//
//     TPaginas pages(report, table, QSizeF(595, 842));      // A4 upright, in points
//     for (int i = 0; i < pages.Quantas(); ++i) pages.Desenhar(painter, i);
//
// The columns fit the width: letters and columns shrink together when they are too wide. Every page repeats
// the titles and has a foot "Página x de y"; totals stand below the last row.
#pragma once

#include <QRectF>
#include <QSizeF>
#include <vector>

#include "platform/rtl/DateTime.h"
#include "tools/gridreport/Tabela.h"

class QPagedPaintDevice;
class QPainter;

class TPaginas {
  public:
    // `papel` is the paper's size in points. Both references must outlive the pages.
    TPaginas(const TRelatorio& relatorio, const TTabela& tabela, const QSizeF& papel, TDateTime quando);

    int Quantas() const { return FQuantas; }
    // In points.
    QSizeF Papel() const;

    // Draws page `indice` (from 0); the painter's unit is the point, its origin the paper's corner.
    void Desenhar(QPainter& painter, int indice) const;

  private:
    void MedirColunas();
    void Cabecalho(QPainter& painter) const;
    void Titulos(QPainter& painter) const;
    void Linha(QPainter& painter, int64_t linha, double topo) const;
    void Totais(QPainter& painter, double topo) const;
    void Rodape(QPainter& painter, int indice) const;
    QRectF Celula(int coluna, double topo) const;

    const TRelatorio& FRelatorio;
    const TTabela& FTabela;
    QSizeF FPapel;  // in tenths of a point, as all measures here
    TDateTime FQuando;
    double FLetra = 0;  // height of the letters and of a row
    double FAltura = 0;
    std::vector<double> FEsquerda;  // left edge of each column, and the right one of the last
    int64_t FLinhasPorPagina = 1;
    int FQuantas = 1;
};

// Pages from Primeira (0 is the first) up to, without, Fim.
struct TFaixa {
    int Primeira;
    int Fim;
};

// Draws these pages one after another. Exception when the device refuses, EAbort when `andamento`, told of
// pages, answers false.
void DesenharPaginas(QPagedPaintDevice& onde, const TPaginas& paginas, TFaixa faixa,
                     const TAndamento& andamento);
