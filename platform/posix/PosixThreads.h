// Threads of the system.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>

#include "platform/KernelService.h"
#include "platform/posix/WaitClock.h"

namespace rux {

/// Tells the run-time library where the calling thread's stack ends. Threads that are started here have it
/// told; the host does it for the thread that it came with.
void TellStackLimit();

/// Any thread. Threads that still run when this object goes are left alone.
class TPosixThreads {
 public:
    TPosixThreads(TWaitClock& clock, std::size_t stackSize);
    /// Raises EOSError when no thread can be made; the body is destroyed then, too.
    std::unique_ptr<TThreadHandle> Start(std::function<void()> body);
    /// Waits, in real time, until no thread that was started here has anything left to do.
    void WaitForAll();

 private:
    struct TRunning;
    struct TStart;
    class THandle;
    static void* Enter(void* start);
    static void Run(TStart* raw);

    TWaitClock& FClock;
    std::size_t FStackSize;
    /// Shared with the threads: they may outlive this object.
    std::shared_ptr<TRunning> FRunning;
};

}  // namespace rux
