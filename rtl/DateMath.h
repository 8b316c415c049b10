// Exact arithmetic behind the dates, and what their texts share.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "rtl/Dates.h"

namespace rux {

inline constexpr std::int64_t MillisecondsPerDay = 86'400'000;
inline constexpr std::int64_t MillisecondsPerMinute = 60'000;

/// Milliseconds since 1899-12-30, counting evenly through day 0; nothing far outside the calendar.
std::optional<std::int64_t> ToMilliseconds(TDateTime value);
TDateTime FromMilliseconds(std::int64_t value);
/// The same count up to the day's beginning, and from there on; nothing outside the calendar or the day.
std::optional<std::int64_t> DateInMilliseconds(const TDateParts& parts);
std::optional<std::int64_t> TimeInMilliseconds(const TDateParts& parts);

/// Names for dates that machines read, and for pictures that ask for names.
inline constexpr std::array<std::string_view, 12> MonthNames = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};
/// Sunday first.
inline constexpr std::array<std::string_view, 7> DayNames = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                             "Thursday", "Friday", "Saturday"};
/// The name of a 1-based month or day, empty for one that does not exist.
template <std::size_t N>
std::string_view NameAt(const std::array<std::string_view, N>& names, int place) {
    return place >= 1 && place <= static_cast<int>(N) ? names[static_cast<std::size_t>(place - 1)]
                                                      : std::string_view();
}

/// Appends `value` (not negative) with at least `width` digits.
void AppendNumber(std::string& out, int value, std::size_t width);

}  // namespace rux
