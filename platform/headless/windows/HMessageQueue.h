// The message queue of the user-interface thread.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/KernelService.h"
#include "platform/WindowService.h"

namespace rux {

/// Posted messages come before input, as the window system serves them: a character that a key stands for is
/// posted when the key is taken, and is there before the next key.
///
/// Put and Wake may be called from any thread, the rest belongs to the thread that owns the queue.
class HMessageQueue {
 public:
    explicit HMessageQueue(TKernelService& kernel) : FWake(kernel.CreateEventA()) {}

    /// False when the queue is full or closed.
    bool Put(const TMessage& message) { return PutInto(FPosted, message); }
    bool PutInput(const TMessage& message) { return PutInto(FInput, message); }
    std::optional<TMessage> Take();
    /// The next input, once nothing is posted any more.
    std::optional<TMessage> TakeInput();
    /// The first posted message that fits.
    std::optional<TMessage> TakeOf(const std::function<bool(const TMessage&)>& fits);
    /// Drops posted messages, such as those for a window that is gone.
    void Forget(const std::function<bool(const TMessage&)>& which);
    bool Empty();
    /// Waits until something was put or the owner is woken, or until the time is over.
    void Wait(std::uint32_t milliseconds) { FWake->WaitFor(milliseconds); }
    void Wake() { FWake->SetEvent(); }
    /// From now on every Put fails.
    void Close();

 private:
    bool PutInto(std::deque<TMessage>& row, const TMessage& message);
    std::optional<TMessage> TakeFrom(std::deque<TMessage>& row);

    std::mutex FLock;
    std::deque<TMessage> FPosted, FInput;
    std::unique_ptr<TEvent> FWake;
    bool FClosed = false;
};

}  // namespace rux
