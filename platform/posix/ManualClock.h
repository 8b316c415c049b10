// Time that a test moves.
#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>
#include <vector>

#include "platform/posix/WaitClock.h"

namespace rux {

/// Wednesday, 2008-03-05 09:00:00.
inline constexpr TDateTime ManualClockStart = 39512.375;

/// Stands still until it is moved; then every waiter whose deadline has come wakes, and nobody else.
class TManualClock : public TWaitClock {
 public:
    explicit TManualClock(TDateTime start = ManualClockStart, int biasMinutes = 480);
    TDateTime Now() override;
    std::uint64_t TickCount() override;
    int BiasMinutes() override;
    int Poll(std::span<pollfd> entries, std::uint64_t deadline) override;

    void Advance(std::uint64_t milliseconds);
    /// Sets the date. Going forward lets the time between pass; going back moves the date alone.
    void Set(TDateTime now);
    void SetBiasMinutes(int minutes);
    /// Returns when at least `count` threads wait with a deadline of `notBefore` or later. A waiter whose
    /// deadline has come does not count any more, woken or not; one that is about to wake for another reason
    /// still does, and `notBefore` tells it from its next wait.
    void WaitUntilWaiters(std::size_t count, std::uint64_t notBefore = 0);

 protected:
    bool WaitUntil(TWaitPoint& point, std::unique_lock<std::mutex>& lock, std::uint64_t deadline) override;

 private:
    struct TWaiter {
        std::uint64_t Deadline;
        /// One of the two is set: what to notify, or the descriptor to write to.
        TWaitPoint* Point;
        int Wake;
    };
    bool Enter(TWaiter& waiter);
    bool Leave(TWaiter& waiter);
    void Move(std::uint64_t milliseconds, std::optional<TDateTime> now);
    TDateTime NowLocked() const;

    std::mutex FLock;
    std::condition_variable FWaitersChanged;
    std::vector<TWaiter*> FWaiters;
    std::uint64_t FTick = 0;
    /// The date at some tick; all others are reckoned from it.
    TDateTime FBase;
    std::uint64_t FBaseTick = 0;
    int FBias;
};

}  // namespace rux
