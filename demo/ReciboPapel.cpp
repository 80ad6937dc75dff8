#include "demo/ReciboPapel.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

#include "demo/ReciboRegras.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The drawing's own units: tenths of a millimetre.
constexpr double kLargura = 1900;
constexpr double kAltura = kLargura / kProporcaoDoRecibo;
constexpr double kMargem = 80;
constexpr double kMargemDaFolha = 10;  // millimetres
constexpr int kPontosPorPolegada = 600;

constexpr int kTitulo = 74;
constexpr int kTexto = 46;
constexpr int kMenorTexto = 24;
constexpr int kLegenda = 32;

QFont Letra(int tamanho, bool negrito = false) {
    QFont font = TextFont();
    font.setPixelSize(tamanho);
    font.setBold(negrito);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void DesenhaCabecalho(QPainter& painter, const TRecibo& recibo) {
    painter.setFont(Letra(kTitulo, true));
    const QRectF faixa(kMargem, kMargem, kLargura - 2 * kMargem, 110);
    painter.drawText(faixa, Qt::AlignLeft | Qt::AlignVCenter, u"RECIBO"_s);
    const UnicodeString valor = u"R$ "_s + ValorEmAlgarismos(recibo.Valor);
    painter.setFont(Letra(kTexto + 6, true));
    const double largura = painter.fontMetrics().horizontalAdvance(valor) + 70;
    const QRectF caixa(faixa.right() - largura, faixa.top(), largura, faixa.height());
    painter.drawRoundedRect(caixa, 12, 12);
    painter.drawText(caixa, Qt::AlignCenter, valor);
}

// A long text gets smaller letters: nothing of a receipt may be missing on paper.
void DesenhaCorpo(QPainter& painter, const UnicodeString& texto) {
    constexpr int kModo = Qt::AlignJustify | Qt::AlignTop | Qt::TextWordWrap;
    const QRectF corpo(kMargem, 240, kLargura - 2 * kMargem, kAltura - 610);
    int tamanho = kTexto;
    painter.setFont(Letra(tamanho));
    while (tamanho > kMenorTexto && painter.boundingRect(corpo, kModo, texto).height() > corpo.height())
        painter.setFont(Letra(tamanho -= 2));
    painter.drawText(corpo, kModo, texto);
}

void DesenhaAssinatura(QPainter& painter, const TRecibo& recibo) {
    painter.setFont(Letra(kTexto));
    const QRectF data(kMargem, kAltura - 350, kLargura - 2 * kMargem, 60);
    painter.drawText(data, Qt::AlignRight | Qt::AlignVCenter, CidadeEData(recibo) + u'.');
    const double base = kAltura - 130;
    painter.drawLine(QPointF(kLargura / 2 - 420, base), QPointF(kLargura / 2 + 420, base));
    painter.setFont(Letra(kLegenda));
    painter.drawText(QRectF(0, base + 8, kLargura, 50), Qt::AlignHCenter | Qt::AlignTop, u"Assinatura"_s);
}

}  // namespace

void DesenhaRecibo(QPainter& painter, const QRectF& place, const TRecibo& recibo) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width() / kLargura, place.width() / kLargura);
    painter.setPen(QPen(Cores::Texto, 4));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(4, 4, kLargura - 8, kAltura - 8), 16, 16);
    DesenhaCabecalho(painter, recibo);
    DesenhaCorpo(painter, TextoDoRecibo(recibo));
    DesenhaAssinatura(painter, recibo);
    painter.restore();
}

bool ImprimeRecibo(QPagedPaintDevice& device, const TRecibo& recibo) {
    device.setPageSize(QPageSize(QPageSize::A4));
    device.setPageOrientation(QPageLayout::Portrait);
    const double margem = kMargemDaFolha;
    device.setPageMargins(QMarginsF(margem, margem, margem, margem), QPageLayout::Millimeter);
    QPainter painter;
    if (!painter.begin(&device)) return false;
    DesenhaRecibo(painter, QRectF(0, 0, device.width(), device.height()), recibo);
    return painter.end();
}

QByteArray ReciboEmPdf(const TRecibo& recibo) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kPontosPorPolegada);
    writer.setTitle(u"Recibo"_s);
    ImprimeRecibo(writer, recibo);
    return bytes;
}
