#include "platform/win32/Win32Clock.h"

#include "platform/win32/Headers.h"

namespace rux {
namespace {

constinit TWideTick SystemTick;

}  // namespace

std::uint64_t TWideTick::Widen(std::uint32_t tick) {
    std::uint64_t latest = FLatest.load();
    while (true) {
        const std::uint32_t forward = tick - static_cast<std::uint32_t>(latest);
        // Another thread read a later tick and came here first. Only the first tick may be any.
        if (latest != 0 && static_cast<std::int32_t>(forward) <= 0) return latest;
        const std::uint64_t wide = latest + forward;
        if (FLatest.compare_exchange_weak(latest, wide)) return wide;
    }
}

TDateTime TWin32Clock::Now() {
    SYSTEMTIME now;
    ::GetLocalTime(&now);
    TDateParts parts;
    parts.Year = now.wYear;
    parts.Month = now.wMonth;
    parts.Day = now.wDay;
    parts.Hour = now.wHour;
    parts.Minute = now.wMinute;
    parts.Second = now.wSecond;
    parts.Millisecond = now.wMilliseconds;
    return EncodeDateTime(parts);
}

std::uint64_t TWin32Clock::TickCount() {
    return SystemTick.Widen(::GetTickCount());
}

int TWin32Clock::BiasMinutes() {
    TIME_ZONE_INFORMATION zone;
    // The system counts from local time to Greenwich.
    switch (::GetTimeZoneInformation(&zone)) {
        case TIME_ZONE_ID_DAYLIGHT:
            return -(zone.Bias + zone.DaylightBias);
        case TIME_ZONE_ID_STANDARD:
            return -(zone.Bias + zone.StandardBias);
        case TIME_ZONE_ID_UNKNOWN:
            return -zone.Bias;
        default:
            return 0;
    }
}

}  // namespace rux
