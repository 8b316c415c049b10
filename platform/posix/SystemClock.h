// Real time.
#pragma once

#include <atomic>

#include "platform/posix/WaitClock.h"

namespace rux {

class TSystemClock : public TWaitClock {
 public:
    TDateTime Now() override;
    std::uint64_t TickCount() override;
    int BiasMinutes() override;
    int Poll(std::span<pollfd> entries, std::uint64_t deadline) override;

 protected:
    bool WaitUntil(TWaitPoint& point, std::unique_lock<std::mutex>& lock, std::uint64_t deadline) override;

 private:
    int ZoneOffset(std::int64_t unixSeconds);
    /// The offset last looked up, and the quarter of an hour that it is good for.
    std::atomic<std::uint64_t> FZone{UINT64_MAX};
};

}  // namespace rux
