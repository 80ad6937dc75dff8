// Dates and times: days since 30 December 1899, the fraction being the time of day. Before that day the whole
// part counts backwards while the fraction still counts forward from midnight: -1.25 is 29 December 1899,
// 06:00.
//
//     TDateTime due = EncodeDate(2024, 3, 7) + 30;
//     auto [year, month, day] = DecodeDate(due);
//
// The calendar is the Gregorian one throughout, years 1 to 9999.
#pragma once
#include <compare>
#include <functional>
#include <optional>

struct TDateTime {
    double Value = 0;

    constexpr TDateTime() = default;
    constexpr explicit TDateTime(double value) : Value(value) {}

    constexpr auto operator<=>(const TDateTime&) const = default;
};

constexpr TDateTime operator+(TDateTime date, double days) {
    return TDateTime(date.Value + days);
}
constexpr TDateTime operator-(TDateTime date, double days) {
    return TDateTime(date.Value - days);
}

// Days from b to a.
constexpr double operator-(TDateTime a, TDateTime b) {
    return a.Value - b.Value;
}

struct TDateParts {
    int Year, Month, Day;
    bool operator==(const TDateParts&) const = default;
};

struct TTimeParts {
    int Hour, Minute, Second, Millisecond;
    bool operator==(const TTimeParts&) const = default;
};

// The date of year 1 to 9999, month 1 to 12 and a day that month has. EncodeDate throws EConvertError for any
// other, TryEncodeDate returns nothing.
TDateTime EncodeDate(int year, int month, int day);
std::optional<TDateTime> TryEncodeDate(int year, int month, int day);

// The time of day (hour 0 to 23). EncodeTime throws EConvertError for any other, TryEncodeTime returns
// nothing.
TDateTime EncodeTime(int hour, int minute, int second, int millisecond = 0);
std::optional<TDateTime> TryEncodeTime(int hour, int minute, int second, int millisecond = 0);

// The parts of a date-time, rounded to the millisecond (so 23:59:59.9999 belongs to the next day in both).
// Throw EConvertError for a date outside the years 1 to 9999.
TDateParts DecodeDate(TDateTime date);
TTimeParts DecodeTime(TDateTime date);

// A date and a time of day as one value, right on both sides of day 0.
TDateTime JoinDateTime(TDateTime date, TDateTime time);

// The day at midnight, and the time of day as a fraction of day 0. A fraction is taken as it stands.
TDateTime DateOf(TDateTime date);
TDateTime TimeOf(TDateTime date);

// 1 = Sunday to 7 = Saturday.
int DayOfWeek(TDateTime date);

bool IsLeapYear(int year);

// Days of the month (1 to 12) in that year.
int DaysInMonth(int year, int month);

// The local date and time, and the local day at midnight.
TDateTime Now();
TDateTime Date();

// Replaces the clock behind Now (null puts the machine's back) and returns the one in use before, null for
// the machine's.
using TClock = std::function<TDateTime()>;
TClock SetClock(TClock clock);
