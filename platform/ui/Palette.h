// The one palette of the program, its fonts and its texts.
//
//     QApplication app(argc, argv);
//     ApplyLooks(app);                              // before the first window
//     painter.setPen(Cores::Fio);
#pragma once
#include <QColor>
#include <QFont>

class QApplication;

namespace Cores {

inline const QColor Superficie{0xF2, 0xF2, 0xF1};        // forms and bars
inline const QColor SuperficieEscura{0xDF, 0xDF, 0xDF};  // the darker end of the bars' shade
inline const QColor Trabalho{0xFF, 0xFF, 0xFF};          // where the user types and reads
inline const QColor Zebra{0xF8, 0xF9, 0xFA};             // every second row
inline const QColor Fio{0xD0, 0xD0, 0xCE};               // hairlines
inline const QColor Texto{0x1E, 0x1E, 0x1E};
inline const QColor Dica{0x5A, 0x5A, 0x5A};      // hints and what is inactive
inline const QColor Destaque{0x1F, 0x5F, 0xA8};  // focus, selection, the default button
inline const QColor Selecao{0xD6, 0xE6, 0xF7};
inline const QColor FundoJanela{0xE6, 0xE8, 0xEA};  // the main window behind the forms
inline const QColor Excluido{0x8A, 0x8A, 0x8A};     // rows marked as deleted
inline const QColor BarraAtiva{0xE3, 0xED, 0xF8};   // the caption bar of the active form
inline const QColor FioAtivo{0x8F, 0xAF, 0xD3};     // and the hairline around it
inline const QColor Erro{0xB3, 0x26, 0x1E};         // errors only

}  // namespace Cores

// Gives the application its style, palette, font and the Portuguese texts of the toolkit's own boxes,
// whatever the desktop or the machine's language say.
void ApplyLooks(QApplication& app);

// The text font: Tahoma, or the nearest face the machine has, at `points` (9 unless told).
QFont TextFont(double points = 9);
