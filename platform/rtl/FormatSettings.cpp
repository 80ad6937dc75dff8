#include "platform/rtl/FormatSettings.h"

TFormatSettings::TFormatSettings()
    : LongMonthNames{QStringLiteral("Janeiro"), QStringLiteral("Fevereiro"), QStringLiteral("Março"),
                     QStringLiteral("Abril"),   QStringLiteral("Maio"),      QStringLiteral("Junho"),
                     QStringLiteral("Julho"),   QStringLiteral("Agosto"),    QStringLiteral("Setembro"),
                     QStringLiteral("Outubro"), QStringLiteral("Novembro"),  QStringLiteral("Dezembro")},
      LongDayNames{QStringLiteral("Domingo"),      QStringLiteral("Segunda-feira"),
                   QStringLiteral("Terça-feira"),  QStringLiteral("Quarta-feira"),
                   QStringLiteral("Quinta-feira"), QStringLiteral("Sexta-feira"),
                   QStringLiteral("Sábado")} {
    for (size_t i = 0; i < LongMonthNames.size(); ++i) ShortMonthNames[i] = LongMonthNames[i].left(3);
    for (size_t i = 0; i < LongDayNames.size(); ++i) ShortDayNames[i] = LongDayNames[i].left(3);
}

TFormatSettings FormatSettings;
