// The engine's own threads, and how they are brought to an end with it.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace rux {

class TEvent;
class TThreadHandle;

/// Safe from any thread.
class TEngineThreads {
 public:
    TEngineThreads();
    ~TEngineThreads();
    /// Starts a thread that the engine's end waits for. Raises EOSError when none can be made.
    std::unique_ptr<TThreadHandle> Start(std::function<void()> body);

    /// Registers an event that a thread is about to wait on. False when the engine is ending: do not wait.
    bool BeginWait(TEvent& event);
    void EndWait(TEvent& event);

    /// Wakes everybody who waits; nobody waits from now on.
    void Release();
    /// Waits until every thread has left its body.
    void WaitForNone();

 private:
    void Leave();
    std::mutex FLock;
    std::size_t FRunning = 0;
    bool FReleased = false;
    std::vector<TEvent*> FWaiting;
    std::unique_ptr<TEvent> FNone;
};

}  // namespace rux
