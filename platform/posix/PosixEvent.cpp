#include "platform/posix/PosixEvent.h"

namespace rux {

void TPosixEvent::SetEvent() {
    const std::shared_ptr<TState> state = FState;
    {
        const std::lock_guard lock(state->Lock);
        state->Signalled = true;
    }
    state->Changed.notify_one();
}

TWaitResult TPosixEvent::WaitFor(std::uint32_t milliseconds) {
    const std::shared_ptr<TState> state = FState;
    std::unique_lock lock(state->Lock);
    if (!state->Signalled) {
        const std::uint64_t deadline = FClock.DeadlineAfter(milliseconds);
        while (!state->Signalled && FClock.Wait(*state, lock, deadline)) {
        }
    }
    if (!state->Signalled) return TWaitResult::TimedOut;
    state->Signalled = false;
    return TWaitResult::Signalled;
}

}  // namespace rux
