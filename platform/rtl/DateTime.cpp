#include "platform/rtl/DateTime.h"

#include <chrono>
#include <cmath>
#include <cstdint>
#include <QDateTime>
#include <utility>
#include "platform/rtl/Exceptions.h"

namespace {

constexpr int kEpoch = 25569;                           // days from 30 December 1899 to 1 January 1970
constexpr int kFirstDay = -693593, kLastDay = 2958465;  // 1 January 1 and 31 December 9999
constexpr double kMillisecondsADay = 86400000.0;

TClock& Clock() {
    static TClock clock;
    return clock;
}

struct TMoment {
    int64_t Day;
    int Millisecond;
};

// Day number and milliseconds after its midnight, rounded together.
TMoment Split(TDateTime date) {
    if (!(date.Value > kFirstDay - 1 && date.Value < kLastDay + 1)) {
        throw EConvertError(QStringLiteral("A data está fora do calendário (anos 1 a 9999)."));
    }
    const double whole = std::trunc(date.Value);
    const int milliseconds = static_cast<int>(std::lround(std::fabs(date.Value - whole) * kMillisecondsADay));
    const auto day = static_cast<int64_t>(whole);
    return milliseconds < kMillisecondsADay ? TMoment{day, milliseconds} : TMoment{day + 1, 0};
}

TDateTime MachineNow() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate day = now.date();
    const double time = now.time().msecsSinceStartOfDay() / kMillisecondsADay;
    return EncodeDate(day.year(), day.month(), day.day()) + time;
}

[[noreturn]] void RaiseInvalid(const char16_t* text) {
    throw EConvertError(QString::fromUtf16(text));
}

}  // namespace

std::optional<TDateTime> TryEncodeDate(int year, int month, int day) {
    using namespace std::chrono;
    if (year < 1 || year > 9999 || month < 1 || month > 12 || day < 1 || day > DaysInMonth(year, month)) {
        return std::nullopt;
    }
    const sys_days days{year_month_day{std::chrono::year(year),
                                       std::chrono::month(static_cast<unsigned>(month)),
                                       std::chrono::day(static_cast<unsigned>(day))}};
    return TDateTime(static_cast<double>(days.time_since_epoch().count() + kEpoch));
}

TDateTime EncodeDate(int year, int month, int day) {
    const auto date = TryEncodeDate(year, month, day);
    if (!date) RaiseInvalid(u"Dia, mês e ano não formam uma data válida.");
    return *date;
}

std::optional<TDateTime> TryEncodeTime(int hour, int minute, int second, int millisecond) {
    const auto below = [](int value, int limit) { return value >= 0 && value < limit; };
    if (!below(hour, 24) || !below(minute, 60) || !below(second, 60) || !below(millisecond, 1000))
        return std::nullopt;
    return TDateTime((((hour * 60 + minute) * 60 + second) * 1000 + millisecond) / kMillisecondsADay);
}

TDateTime EncodeTime(int hour, int minute, int second, int millisecond) {
    const auto time = TryEncodeTime(hour, minute, second, millisecond);
    if (!time) RaiseInvalid(u"Hora, minuto e segundo não formam uma hora válida.");
    return *time;
}

TDateParts DecodeDate(TDateTime date) {
    using namespace std::chrono;
    const year_month_day parts{sys_days(days(Split(date).Day - kEpoch))};
    return {static_cast<int>(parts.year()), static_cast<int>(static_cast<unsigned>(parts.month())),
            static_cast<int>(static_cast<unsigned>(parts.day()))};
}

TTimeParts DecodeTime(TDateTime date) {
    const int ms = Split(date).Millisecond;
    return {ms / 3600000, ms / 60000 % 60, ms / 1000 % 60, ms % 1000};
}

TDateTime JoinDateTime(TDateTime date, TDateTime time) {
    const double day = std::trunc(date.Value), fraction = TimeOf(time).Value;
    return TDateTime(day < 0 ? day - fraction : day + fraction);
}

TDateTime DateOf(TDateTime date) {
    return TDateTime(std::trunc(date.Value));
}

TDateTime TimeOf(TDateTime date) {
    return TDateTime(std::fabs(date.Value - std::trunc(date.Value)));
}

int DayOfWeek(TDateTime date) {
    const auto day = (static_cast<int64_t>(std::trunc(date.Value)) - 1) % 7;  // day 1 was a Sunday
    return static_cast<int>(day < 0 ? day + 7 : day) + 1;
}

bool IsLeapYear(int year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int DaysInMonth(int year, int month) {
    if (month == 2) return IsLeapYear(year) ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

TDateTime Now() {
    return Clock() ? Clock()() : MachineNow();
}

TDateTime Date() {
    return DateOf(Now());
}

TClock SetClock(TClock clock) {
    return std::exchange(Clock(), std::move(clock));
}
