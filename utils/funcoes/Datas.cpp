#include "utils/funcoes/Datas.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <QDateTime>
#include <QFileInfo>
#include <QStringBuilder>

#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "utils/funcoes/Texto.h"

namespace {

// Cuts the piece up to and including the first slash off `rest`; empty, and nothing cut, without a slash.
UnicodeString TakePiece(UnicodeString& rest) {
    const qsizetype slash = rest.indexOf(u'/');
    const UnicodeString piece = rest.left(slash + 1);
    rest.remove(0, slash + 1);
    return piece;
}

int NumberOr1(const UnicodeString& piece) {
    return StrToIntDef(GetNumbers(piece), 1);
}

int YearOf(const UnicodeString& piece) {
    const int typed = NumberOr1(piece);
    const uint16_t held = uint16_t(GetNumbers(piece).size() < 3 ? typed + 2000 : typed);
    return std::max<int>(held, 1);
}

QDateTime ToLocalTime(TDateTime dateTime) {
    const auto [year, month, day] = DecodeDate(dateTime);
    const auto [hour, minute, second, millisecond] = DecodeTime(dateTime);
    return {QDate(year, month, day), QTime(hour, minute, second, millisecond), Qt::LocalTime};
}

TDateTime FromLocalTime(const QDateTime& time) {
    const QDate day = time.date();
    const QTime clock = time.time();
    return JoinDateTime(EncodeDate(day.year(), day.month(), day.day()),
                        EncodeTime(clock.hour(), clock.minute(), clock.second(), clock.msec()));
}

}  // namespace

TDateTime FixDate(const UnicodeString& text) {
    UnicodeString rest = text;
    const int typedDay = NumberOr1(TakePiece(rest));
    const int month = std::clamp(NumberOr1(TakePiece(rest)), 1, 12);
    const TDateTime first = EncodeDate(YearOf(rest), month, 1);
    const int lastDay = DecodeDate(LastDayOfMonth(first)).Day;
    return first + (std::clamp(typedDay, 1, lastDay) - 1);
}

TDateTime FirstMonday(TDateTime date) {
    constexpr int kSunday = 1, kMonday = 2;
    const TDateTime first = FirstDayOfMonth(date);
    const int day = DayOfWeek(first);
    if (day == kSunday) return first + 1;
    if (day == kMonday) return first;
    return first + (9 - day);
}

TDateTime FirstDayOfWeek(TDateTime date) {
    return date - (DayOfWeek(date) - 1);
}

TDateTime LastDayOfWeek(TDateTime date) {
    return date + (7 - DayOfWeek(date));
}

TDateTime FirstDayOfMonth(TDateTime date) {
    const TDateParts parts = DecodeDate(date);
    return EncodeDate(parts.Year, parts.Month, 1);
}

TDateTime LastDayOfMonth(TDateTime date) {
    const TDateParts parts = DecodeDate(date);
    return EncodeDate(parts.Year, parts.Month, DaysInMonth(parts.Year, parts.Month));
}

UnicodeString GetMonthName(uint16_t month) {
    static const UnicodeString kNames[] = {
        QStringLiteral("Janeiro"), QStringLiteral("Fevereiro"), QStringLiteral("Março"),
        QStringLiteral("Abril"),   QStringLiteral("Maio"),      QStringLiteral("Junho"),
        QStringLiteral("Julho"),   QStringLiteral("Agosto"),    QStringLiteral("Setembro"),
        QStringLiteral("Outubro"), QStringLiteral("Novembro"),  QStringLiteral("Dezembro")};
    return kNames[month - 1];
}

UnicodeString DateTimeToNFeStr(TDateTime dateTime) {
    return FormatDateTime(QStringLiteral("yyyy-MM-dd/Thh:mm:ss"), dateTime);
}

UnicodeString DateToNFeStr(TDateTime date) {
    return FormatDateTime(QStringLiteral("yyyy-MM-dd"), date);
}

TDateTime NFeStrToDateTime(const UnicodeString& text) {
    const UnicodeString typed =
        text.mid(8, 2) % u'/' % text.mid(5, 2) % u'/' % text.mid(0, 4) % u' ' % text.mid(11, 8);
    return StrToDateTime(typed);
}

UnicodeString DateToSQLDate(TDateTime date, bool quoted) {
    const UnicodeString text = FormatDateTime(QStringLiteral("MM/dd/yyyy"), date);
    return quoted ? u'\'' % text % u'\'' : text;
}

TDateTime GetFileDate(const UnicodeString& fileName) {
    const QDateTime changed = QFileInfo(fileName).lastModified();
    if (!changed.isValid()) throw EConvertError(u"'" % fileName % u"' has no valid file time");
    return FromLocalTime(changed);
}

int SetFileDate(const UnicodeString& fileName, TDateTime dateTime) {
    using namespace std::chrono;
    const system_clock::time_point moment{milliseconds(ToLocalTime(dateTime).toMSecsSinceEpoch())};
    std::error_code error;
    std::filesystem::last_write_time(QFileInfo(fileName).filesystemFilePath(), file_clock::from_sys(moment),
                                     error);
    return error.value();
}
