// Waiting by a clock: events, sleeps and sockets wait through it and through nothing else.
#pragma once

#include <poll.h>

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <span>

#include "platform/ClockService.h"
#include "platform/KernelService.h"

namespace rux {

/// A deadline that never comes.
inline constexpr std::uint64_t NoDeadline = UINT64_MAX;

/// What threads wait at. Held by shared pointers only: a clock may still be about to notify it when its owner
/// has let go.
struct TWaitPoint : std::enable_shared_from_this<TWaitPoint> {
    std::mutex Lock;
    std::condition_variable Changed;
};

/// Any thread.
class TWaitClock : public TClockService {
 public:
    /// The tick at which a wait of that length is over that begins now.
    std::uint64_t DeadlineAfter(std::uint32_t milliseconds) {
        return milliseconds == WaitForever ? NoDeadline : TickCount() + milliseconds;
    }
    /// Waits for a notification of point.Changed; `lock` holds point.Lock. False when the deadline has come.
    /// May return True for no reason, as condition variables do.
    bool Wait(TWaitPoint& point, std::unique_lock<std::mutex>& lock, std::uint64_t deadline) {
        if (deadline != NoDeadline) return WaitUntil(point, lock, deadline);
        point.Changed.wait(lock);
        return true;
    }
    /// As poll(2): how many entries are ready, 0 when the deadline has come first, -1 with errno.
    virtual int Poll(std::span<pollfd> entries, std::uint64_t deadline) = 0;

 protected:
    virtual bool WaitUntil(TWaitPoint& point, std::unique_lock<std::mutex>& lock, std::uint64_t deadline) = 0;
};

}  // namespace rux
