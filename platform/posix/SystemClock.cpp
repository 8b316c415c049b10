#include "platform/posix/SystemClock.h"

#include <ctime>

#include <chrono>

#include "platform/posix/FileDescriptor.h"

namespace rux {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr double UnixEpoch = 25569;  // 1970-01-01 in days since 1899-12-30
constexpr double DayMilliseconds = 86400000;
/// Zones change their offset at quarters of an hour only.
constexpr std::int64_t ZonePeriod = 900;
constexpr int OffsetBits = 20;
constexpr int OffsetBase = 1 << (OffsetBits - 1);

timespec RealTime() {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return now;
}

int LookUpOffset(std::time_t seconds) {
    ::tzset();
    std::tm parts{};
    return ::localtime_r(&seconds, &parts) ? static_cast<int>(parts.tm_gmtoff) : 0;
}

steady_clock::time_point PointOf(std::uint64_t tick) {
    return steady_clock::time_point(milliseconds(tick));
}

timespec RoomUntil(std::uint64_t deadline) {
    const auto room = std::max(PointOf(deadline) - steady_clock::now(), steady_clock::duration::zero());
    const auto nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(room).count();
    return {static_cast<std::time_t>(nanoseconds / 1000000000), static_cast<long>(nanoseconds % 1000000000)};
}

}  // namespace

TDateTime TSystemClock::Now() {
    const timespec now = RealTime();
    const std::int64_t seconds = now.tv_sec + ZoneOffset(now.tv_sec);
    return UnixEpoch + static_cast<double>(seconds * 1000 + now.tv_nsec / 1000000) / DayMilliseconds;
}

std::uint64_t TSystemClock::TickCount() {
    const auto since = steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<milliseconds>(since).count());
}

int TSystemClock::BiasMinutes() {
    return ZoneOffset(RealTime().tv_sec) / 60;
}

int TSystemClock::ZoneOffset(std::int64_t unixSeconds) {
    const auto period = static_cast<std::uint64_t>(unixSeconds / ZonePeriod) << OffsetBits;
    constexpr std::uint64_t offsetMask = (std::uint64_t{1} << OffsetBits) - 1;
    const std::uint64_t known = FZone.load(std::memory_order_relaxed);
    if ((known & ~offsetMask) == period) return static_cast<int>(known & offsetMask) - OffsetBase;
    const int offset = LookUpOffset(unixSeconds);
    FZone.store(period | static_cast<std::uint64_t>(offset + OffsetBase), std::memory_order_relaxed);
    return offset;
}

int TSystemClock::Poll(std::span<pollfd> entries, std::uint64_t deadline) {
    return Retry([&] {
        if (deadline == NoDeadline) return ::ppoll(entries.data(), entries.size(), nullptr, nullptr);
        const timespec room = RoomUntil(deadline);
        return ::ppoll(entries.data(), entries.size(), &room, nullptr);
    });
}

bool TSystemClock::WaitUntil(TWaitPoint& point, std::unique_lock<std::mutex>& lock, std::uint64_t deadline) {
    return point.Changed.wait_until(lock, PointOf(deadline)) == std::cv_status::no_timeout;
}

}  // namespace rux
