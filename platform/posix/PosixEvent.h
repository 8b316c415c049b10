// Auto-reset events.
#pragma once

#include <memory>

#include "platform/KernelService.h"
#include "platform/posix/WaitClock.h"

namespace rux {

class TPosixEvent : public TEvent {
 public:
    explicit TPosixEvent(TWaitClock& clock) : FClock(clock) {}
    void SetEvent() override;
    TWaitResult WaitFor(std::uint32_t milliseconds) override;

 private:
    struct TState : TWaitPoint {
        bool Signalled = false;
    };
    TWaitClock& FClock;
    std::shared_ptr<TState> FState = std::make_shared<TState>();
};

}  // namespace rux
