// Time. Every wait in the process takes its time from here, so that a test can make an hour pass at once.
#pragma once

#include <cstdint>

#include "rtl/Dates.h"

namespace rux {

class TClockService {
 public:
    virtual ~TClockService() = default;
    /// Local date and time. Any thread.
    virtual TDateTime Now() = 0;
    /// Milliseconds since some start, never going back. Any thread.
    virtual std::uint64_t TickCount() = 0;
    /// Minutes by which local time is ahead of Greenwich, now.
    virtual int BiasMinutes() = 0;
};

}  // namespace rux
