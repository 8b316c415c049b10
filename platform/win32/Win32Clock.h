// The clock of Windows.
#pragma once

#include <atomic>

#include "platform/ClockService.h"

namespace rux {

/// Makes a count of 64 bits out of one of 32 that starts again every 49 days. Any thread; it has to be asked
/// once in 24 days at least.
class TWideTick {
 public:
    /// `tick` was read just now. Never answers less than before.
    std::uint64_t Widen(std::uint32_t tick);

 private:
    std::atomic<std::uint64_t> FLatest{0};
};

/// Without state of its own: all objects give the same time.
class TWin32Clock : public TClockService {
 public:
    TDateTime Now() override;
    /// Since the system's start. Goes by the system's timer, 10 to 16 milliseconds at a step.
    std::uint64_t TickCount() override;
    int BiasMinutes() override;
};

}  // namespace rux
