#include "platform/posix/ManualClock.h"

#include <sys/eventfd.h>

#include <algorithm>
#include <cmath>

#include "platform/posix/FileDescriptor.h"

namespace rux {
namespace {

constexpr double DayMilliseconds = 86400000;

}  // namespace

TManualClock::TManualClock(TDateTime start, int biasMinutes) : FBase(start), FBias(biasMinutes) {}

TDateTime TManualClock::NowLocked() const {
    return FBase + static_cast<double>(FTick - FBaseTick) / DayMilliseconds;
}

TDateTime TManualClock::Now() {
    const std::lock_guard lock(FLock);
    return NowLocked();
}

std::uint64_t TManualClock::TickCount() {
    const std::lock_guard lock(FLock);
    return FTick;
}

int TManualClock::BiasMinutes() {
    const std::lock_guard lock(FLock);
    return FBias;
}

void TManualClock::SetBiasMinutes(int minutes) {
    const std::lock_guard lock(FLock);
    FBias = minutes;
}

void TManualClock::Advance(std::uint64_t milliseconds) {
    Move(milliseconds, std::nullopt);
}

void TManualClock::Set(TDateTime now) {
    const double forward = std::round((now - Now()) * DayMilliseconds);
    Move(forward > 0 ? static_cast<std::uint64_t>(forward) : 0, now);
}

void TManualClock::Move(std::uint64_t milliseconds, std::optional<TDateTime> now) {
    std::vector<std::shared_ptr<TWaitPoint>> due;
    {
        const std::lock_guard lock(FLock);
        FTick += milliseconds;
        if (now) {
            FBase = *now;
            FBaseTick = FTick;
        }
        std::erase_if(FWaiters, [&](TWaiter* waiter) {
            if (waiter->Deadline > FTick) return false;
            if (waiter->Point)
                due.push_back(waiter->Point->shared_from_this());
            else
                ::eventfd_write(waiter->Wake, 1);
            return true;
        });
    }
    for (const std::shared_ptr<TWaitPoint>& point : due) {
        // A waiter holds the lock from its look at the clock until it sleeps: whoever gets it finds it
        // asleep.
        { const std::lock_guard asleep(point->Lock); }
        point->Changed.notify_all();
    }
}

void TManualClock::WaitUntilWaiters(std::size_t count, std::uint64_t notBefore) {
    std::unique_lock lock(FLock);
    FWaitersChanged.wait(lock, [&] {
        const auto counts = [&](const TWaiter* waiter) { return waiter->Deadline >= notBefore; };
        return static_cast<std::size_t>(std::count_if(FWaiters.begin(), FWaiters.end(), counts)) >= count;
    });
}

/// False when the deadline has come already.
bool TManualClock::Enter(TWaiter& waiter) {
    const std::lock_guard lock(FLock);
    if (waiter.Deadline <= FTick) return false;
    FWaiters.push_back(&waiter);
    FWaitersChanged.notify_all();
    return true;
}

/// False when the deadline has come in between.
bool TManualClock::Leave(TWaiter& waiter) {
    const std::lock_guard lock(FLock);
    return std::erase(FWaiters, &waiter) != 0;
}

bool TManualClock::WaitUntil(TWaitPoint& point, std::unique_lock<std::mutex>& lock, std::uint64_t deadline) {
    TWaiter waiter{deadline, &point, -1};
    if (!Enter(waiter)) return false;
    point.Changed.wait(lock);
    return Leave(waiter);
}

int TManualClock::Poll(std::span<pollfd> entries, std::uint64_t deadline) {
    const int ready = Retry([&] { return ::poll(entries.data(), entries.size(), 0); });
    if (ready != 0) return ready;
    if (deadline == NoDeadline) return Retry([&] { return ::poll(entries.data(), entries.size(), -1); });

    const TFileDescriptor wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!wake) return -1;
    std::vector<pollfd> all(entries.begin(), entries.end());
    all.push_back({wake.Get(), POLLIN, 0});
    TWaiter waiter{deadline, nullptr, wake.Get()};
    if (!Enter(waiter)) return 0;
    const int woken = Retry([&] { return ::poll(all.data(), all.size(), -1); });
    Leave(waiter);
    std::copy_n(all.begin(), entries.size(), entries.begin());
    return woken > 0 && all.back().revents ? woken - 1 : woken;
}

}  // namespace rux
