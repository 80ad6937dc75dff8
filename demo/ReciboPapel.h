// The receipt on paper: half a sheet of A4, drawn the same way on a screen, a printer or in a PDF.
//
//     DesenhaRecibo(painter, rect(), recibo);
//     WriteWholeFile(path, ReciboEmPdf(recibo));
#pragma once

#include <QByteArray>
#include <QRectF>

class QPagedPaintDevice;
class QPainter;
struct TRecibo;

// Width by height of the drawing.
inline constexpr double kProporcaoDoRecibo = 190.0 / 100.0;

// Draws the receipt into the upper part of `place`, as wide as it; texts and lines scale with the width.
void DesenhaRecibo(QPainter& painter, const QRectF& place, const TRecibo& recibo);

// One sheet of A4 with the receipt at its top. False when the device does not begin to print.
bool ImprimeRecibo(QPagedPaintDevice& device, const TRecibo& recibo);

// The same as the bytes of a PDF file.
QByteArray ReciboEmPdf(const TRecibo& recibo);
