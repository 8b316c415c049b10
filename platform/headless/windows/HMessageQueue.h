// The message queue of the user-interface thread.
#pragma once

#include <deque>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/KernelService.h"
#include "platform/WindowService.h"

namespace rux {

/// Put may be called from any thread, the rest belongs to the thread that owns the queue.
class HMessageQueue {
 public:
    explicit HMessageQueue(TKernelService& kernel) : FWake(kernel.CreateEventA()) {}

    /// False when the queue is full or closed.
    bool Put(const TMessage& message);
    std::optional<TMessage> Take();
    /// The first message of `window` within the range.
    std::optional<TMessage> TakeOf(HWnd window, unsigned first, unsigned last);
    /// Drops what is queued for a window that is gone.
    void Forget(HWnd window);
    bool Empty();
    /// Waits until something was put, or until the time is over.
    void Wait(std::uint32_t milliseconds) { FWake->WaitFor(milliseconds); }
    /// Wakes the owner without a message.
    void Wake() { FWake->SetEvent(); }
    /// From now on every Put fails.
    void Close();

 private:
    std::mutex FLock;
    std::deque<TMessage> FMessages;
    std::unique_ptr<TEvent> FWake;
    bool FClosed = false;
};

}  // namespace rux
