#include "rtl/Dates.h"

#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "rtl/DateMath.h"
#include "rtl/Exceptions.h"
#include "rtl/KeptForGood.h"

namespace rux {
namespace {

constinit TKeptForGood<TLocaleFacts> Current;

std::chrono::sys_days DayZero() {
    using namespace std::chrono;
    return sys_days(year(1899) / December / 30);
}

/// The calendar ends here, and so does the arithmetic.
constexpr double FarthestDay = 3'000'000;
constexpr int LastYear = 9999;

}  // namespace

void SetLocaleFacts(TLocaleFacts facts) {
    Current.Set(std::move(facts));
}

const TLocaleFacts& LocaleFacts() {
    static const TLocaleFacts initial;
    const TLocaleFacts* facts = Current.Get();
    return facts ? *facts : initial;
}

std::optional<std::int64_t> ToMilliseconds(TDateTime value) {
    if (!(std::fabs(value) < FarthestDay)) return std::nullopt;
    const std::int64_t total = std::llrint(value * MillisecondsPerDay);
    // Before day 0 the whole part counts backwards, yet the time of day still counts forwards.
    const std::int64_t time = std::abs(total % MillisecondsPerDay);
    return total / MillisecondsPerDay * MillisecondsPerDay + time;
}

TDateTime FromMilliseconds(std::int64_t value) {
    const std::int64_t time = (value % MillisecondsPerDay + MillisecondsPerDay) % MillisecondsPerDay;
    const std::int64_t days = (value - time) / MillisecondsPerDay;
    const auto day = static_cast<double>(days);
    const double fraction = static_cast<double>(time) / MillisecondsPerDay;
    return day < 0 ? day - fraction : day + fraction;
}

TDateParts DecodeDateTime(TDateTime value) {
    using namespace std::chrono;
    const std::optional<std::int64_t> total = ToMilliseconds(value);
    if (!total) return {};
    const sys_time<milliseconds> moment = DayZero() + milliseconds(*total);
    const auto day = floor<days>(moment);
    const year_month_day date(day);
    const int year = static_cast<int>(date.year());
    if (year < 1 || year > LastYear) return {};
    const hh_mm_ss time(moment - day);

    TDateParts parts;
    parts.Year = year;
    parts.Month = static_cast<int>(static_cast<unsigned>(date.month()));
    parts.Day = static_cast<int>(static_cast<unsigned>(date.day()));
    parts.Hour = static_cast<int>(time.hours().count());
    parts.Minute = static_cast<int>(time.minutes().count());
    parts.Second = static_cast<int>(time.seconds().count());
    parts.Millisecond = static_cast<int>(time.subseconds().count());
    parts.DayOfWeek = static_cast<int>(weekday(day).c_encoding()) + 1;
    return parts;
}

std::optional<std::int64_t> DateInMilliseconds(const TDateParts& parts) {
    using namespace std::chrono;
    const auto within = [](int value, int last) { return value >= 1 && value <= last; };
    if (!within(parts.Year, LastYear) || !within(parts.Month, 12) || !within(parts.Day, 31))
        return std::nullopt;
    const year_month_day date(year(parts.Year), month(static_cast<unsigned>(parts.Month)),
                              day(static_cast<unsigned>(parts.Day)));
    if (!date.ok()) return std::nullopt;
    return milliseconds(sys_days(date) - DayZero()).count();
}

std::optional<std::int64_t> TimeInMilliseconds(const TDateParts& parts) {
    using namespace std::chrono;
    const auto within = [](int value, int limit) { return value >= 0 && value < limit; };
    const bool fits = within(parts.Hour, 24) && within(parts.Minute, 60) && within(parts.Second, 60) &&
                      within(parts.Millisecond, 1000);
    if (!fits) return std::nullopt;
    const milliseconds time =
        hours(parts.Hour) + minutes(parts.Minute) + seconds(parts.Second) + milliseconds(parts.Millisecond);
    return time.count();
}

TDateTime EncodeDateTime(const TDateParts& parts) {
    const std::optional<std::int64_t> date = DateInMilliseconds(parts), time = TimeInMilliseconds(parts);
    if (!date) throw EConvertError("Invalid argument to date encode");
    if (!time) throw EConvertError("Invalid argument to time encode");
    return FromMilliseconds(*date + *time);
}

void AppendNumber(std::string& out, int value, std::size_t width) {
    char digits[12];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    const auto length = static_cast<std::size_t>(end - digits);
    if (length < width) out.append(width - length, '0');
    out.append(digits, length);
}

}  // namespace rux
