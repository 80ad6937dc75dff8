// Dates and times between the server's whole numbers and TDateTime. No time zone, no calendar: only days are
// moved.
#pragma once
#include <cmath>
#include <cstdint>
#include "platform/rtl/DateTime.h"

namespace fichario {

// The server's TIMESTAMP: days since 17 November 1858 and 1/10000 seconds since midnight.
struct WireStamp {
    int32_t Days = 0;
    uint32_t Ticks = 0;
    bool operator==(const WireStamp&) const = default;
};

constexpr int32_t kWireDayZero = 15018;  // 30 December 1899, the day 0 of TDateTime
constexpr uint32_t kTicksPerDay = 864'000'000;

// Whether the server has the day: 1 January 0001 to 31 December 9999. Not for what is no number.
inline bool IsWireDate(TDateTime value) {
    constexpr double kFirstDay = -693593, kLastDay = 2958465;
    return std::trunc(value.Value) >= kFirstDay && std::trunc(value.Value) <= kLastDay;
}

// Before day 0 the fraction still counts forward from midnight, so it goes away from zero.
inline TDateTime FromWire(WireStamp stamp) {
    const int32_t days = stamp.Days - kWireDayZero;
    const double fraction = static_cast<double>(stamp.Ticks) / kTicksPerDay;
    return TDateTime(days < 0 ? days - fraction : days + fraction);
}

inline TDateTime TimeFromWire(uint32_t ticks) {
    return TDateTime(static_cast<double>(ticks) / kTicksPerDay);
}

// Rounded to 1/10000 second, which may carry into the next day. REQUIRES IsWireDate(value).
inline WireStamp ToWire(TDateTime value) {
    const double days = std::trunc(value.Value);
    const auto ticks = static_cast<uint32_t>(std::llround(std::fabs(value.Value - days) * kTicksPerDay));
    const int32_t day = static_cast<int32_t>(days) + kWireDayZero;
    return ticks < kTicksPerDay ? WireStamp{day, ticks} : WireStamp{day + 1, 0};
}

}  // namespace fichario
