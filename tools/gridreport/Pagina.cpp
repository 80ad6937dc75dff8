#include "tools/gridreport/Pagina.h"

#include <algorithm>
#include <numeric>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/rtl/NumberMask.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// In tenths of a point, in which a page is drawn: letters have whole sizes only.
constexpr double kDecimo = 0.1;
constexpr double kPontosPorPolegada = 72;
constexpr double kMargem = 280;  // about a centimetre
constexpr double kCabecalho = 300;
constexpr double kRodape = 200;
constexpr double kLetra = 90;
constexpr double kMenorLetra = 50;
constexpr double kLetraDoNome = 130;
constexpr double kLetraDoRodape = 80;
constexpr double kEspacoDaData = 1100;
constexpr double kRespiro = 40;  // inside a cell, on either side
constexpr double kTraco = 7;
constexpr double kLinhaPorLetra = 1.45;
const QString kNaoCabe = u"###"_s;  // half a number would be another one
const QColor kFio(0xB0, 0xB0, 0xAE);
const QColor kZebra(0xF3, 0xF4, 0xF5);

QFont Letra(double altura, bool negrito = false) {
    QFont font(u"Liberation Sans"_s);
    font.setPixelSize(std::max(1, int(altura)));
    font.setBold(negrito);
    return font;
}

// One line, in place of a text that does not fit `curto`, without that the text's beginning. Measured once: a
// hundred thousand rows have a million cells.
void Escrever(QPainter& painter, const QRectF& onde, int lado, const QFont& font, const QString& texto,
              const QString& curto = {}) {
    const QFontMetricsF metrics(font);
    QString shown = texto;
    double width = metrics.horizontalAdvance(texto);
    if (width > onde.width()) {
        shown = curto.isEmpty() ? metrics.elidedText(texto, Qt::ElideRight, onde.width()) : curto;
        width = metrics.horizontalAdvance(shown);
    }
    const double left = lado == Qt::AlignRight ? onde.right() - width : onde.left();
    const double base = onde.top() + (onde.height() + metrics.ascent() - metrics.descent()) / 2;
    painter.setFont(font);
    painter.drawText(QPointF(left, base), shown);
}

int LadoDe(const TColunaRelatorio& coluna) {
    return coluna.Numero() ? Qt::AlignRight : Qt::AlignLeft;
}

void EscreverValor(QPainter& painter, const QRectF& onde, const TColunaRelatorio& coluna, const QFont& font,
                   const QString& valor) {
    Escrever(painter, onde, LadoDe(coluna), font, valor, coluna.Numero() ? kNaoCabe : QString());
}

}  // namespace

TPaginas::TPaginas(const TRelatorio& relatorio, const TTabela& tabela, const QSizeF& papel, TDateTime quando)
    : FRelatorio(relatorio), FTabela(tabela), FPapel(papel / kDecimo), FQuando(quando) {
    MedirColunas();
    FAltura = FLetra * kLinhaPorLetra;
    const double room = FPapel.height() - 2 * kMargem - kCabecalho - kRodape - FAltura;
    FLinhasPorPagina = std::max<int64_t>(1, int64_t(room / FAltura));
    const int64_t rows = FTabela.Linhas() + (FTabela.TemTotais() ? 1 : 0);
    FQuantas = int(std::max<int64_t>(1, (rows + FLinhasPorPagina - 1) / FLinhasPorPagina));
}

QSizeF TPaginas::Papel() const {
    return FPapel * kDecimo;
}

void TPaginas::MedirColunas() {
    const double letter = QFontMetricsF(Letra(kLetra)).horizontalAdvance(u'A');
    const double room = FPapel.width() - 2 * kMargem;
    const QFontMetricsF bold(Letra(kLetra, true));
    std::vector<double> widths;
    for (size_t i = 0; i < FRelatorio.Colunas.size(); ++i) {
        const UnicodeString total = FTabela.Total(int(i)).value_or(u""_s);
        const double shown = std::max(FRelatorio.Colunas[i].Largura * letter, bold.horizontalAdvance(total));
        widths.push_back(shown + 2 * kRespiro);
    }
    const double wanted = std::accumulate(widths.begin(), widths.end(), 0.0);
    const double scale = wanted > room ? room / wanted : 1;
    FLetra = std::max(kMenorLetra, kLetra * scale);
    double left = kMargem;
    for (const double width : widths) {
        FEsquerda.push_back(left);
        left += width * scale;
    }
    FEsquerda.push_back(left);
}

QRectF TPaginas::Celula(int coluna, double topo) const {
    const double left = FEsquerda[size_t(coluna)];
    return {left + kRespiro, topo, FEsquerda[size_t(coluna) + 1] - left - 2 * kRespiro, FAltura};
}

void TPaginas::Desenhar(QPainter& painter, int indice) const {
    painter.save();
    painter.scale(kDecimo, kDecimo);
    Cabecalho(painter);
    Titulos(painter);
    double top = kMargem + kCabecalho + FAltura;
    const int64_t first = indice * FLinhasPorPagina;
    const int64_t end = std::min(FTabela.Linhas(), first + FLinhasPorPagina);
    for (int64_t row = first; row < end; ++row, top += FAltura) Linha(painter, row, top);
    if (indice == FQuantas - 1 && FTabela.TemTotais()) Totais(painter, top);
    Rodape(painter, indice);
    painter.restore();
}

void TPaginas::Cabecalho(QPainter& painter) const {
    const QRectF band(kMargem, kMargem, FPapel.width() - 2 * kMargem, kCabecalho - 100);
    painter.setPen(Qt::black);
    Escrever(painter, band.adjusted(0, 0, -kEspacoDaData, 0), Qt::AlignLeft, Letra(kLetraDoNome, true),
             FRelatorio.Nome);
    Escrever(painter, QRectF(band.right() - kEspacoDaData, band.top(), kEspacoDaData, band.height()),
             Qt::AlignRight, Letra(kLetraDoRodape), FormatDateTime(u"dd/mm/yyyy hh:nn", FQuando));
}

void TPaginas::Titulos(QPainter& painter) const {
    const double top = kMargem + kCabecalho;
    painter.setPen(Qt::black);
    for (size_t i = 0; i < FRelatorio.Colunas.size(); ++i) {
        const TColunaRelatorio& column = FRelatorio.Colunas[i];
        Escrever(painter, Celula(int(i), top), LadoDe(column), Letra(FLetra, true), column.Titulo);
    }
    painter.setPen(QPen(kFio, kTraco));
    painter.drawLine(QPointF(kMargem, top + FAltura), QPointF(FEsquerda.back(), top + FAltura));
}

void TPaginas::Linha(QPainter& painter, int64_t linha, double topo) const {
    if (linha % 2) painter.fillRect(QRectF(kMargem, topo, FEsquerda.back() - kMargem, FAltura), kZebra);
    painter.setPen(Qt::black);
    const QFont font = Letra(FLetra);
    for (size_t i = 0; i < FRelatorio.Colunas.size(); ++i) {
        const QStringView text = FTabela.Celula(linha, int(i));
        if (!text.isEmpty())
            EscreverValor(painter, Celula(int(i), topo), FRelatorio.Colunas[i], font, text.toString());
    }
}

void TPaginas::Totais(QPainter& painter, double topo) const {
    painter.setPen(QPen(kFio, kTraco));
    painter.drawLine(QPointF(kMargem, topo), QPointF(FEsquerda.back(), topo));
    painter.setPen(Qt::black);
    if (!FRelatorio.Colunas[0].TemTotal())
        Escrever(painter, Celula(0, topo), Qt::AlignLeft, Letra(FLetra, true), u"Total"_s);
    for (size_t i = 0; i < FRelatorio.Colunas.size(); ++i) {
        if (const auto total = FTabela.Total(int(i)))
            EscreverValor(painter, Celula(int(i), topo), FRelatorio.Colunas[i], Letra(FLetra, true), *total);
    }
}

void TPaginas::Rodape(QPainter& painter, int indice) const {
    const QRectF band(kMargem, FPapel.height() - kMargem - kRodape + 60, FPapel.width() - 2 * kMargem,
                      kRodape - 60);
    painter.setPen(QPen(kFio, kTraco));
    painter.drawLine(band.topLeft(), band.topRight());
    painter.setPen(Qt::black);
    const UnicodeString count =
        FormatDecimal(FTabela.Linhas() == 1 ? u"0' registro'" : u"#,##0' registros'", {FTabela.Linhas(), 0});
    Escrever(painter, band, Qt::AlignLeft, Letra(kLetraDoRodape), count);
    Escrever(painter, band, Qt::AlignRight, Letra(kLetraDoRodape),
             u"Página %1 de %2"_s.arg(indice + 1).arg(FQuantas));
}

void DesenharPaginas(QPagedPaintDevice& onde, const TPaginas& paginas, TFaixa faixa,
                     const TAndamento& andamento) {
    QPainter painter;
    if (!painter.begin(&onde)) throw Exception(u"A impressora não respondeu."_s);
    painter.scale(onde.logicalDpiX() / kPontosPorPolegada, onde.logicalDpiY() / kPontosPorPolegada);
    for (int page = faixa.Primeira; page < faixa.Fim; ++page) {
        if (page > faixa.Primeira) onde.newPage();
        paginas.Desenhar(painter, page);
        if (!andamento(page - faixa.Primeira + 1, faixa.Fim - faixa.Primeira)) Abort();
    }
}
