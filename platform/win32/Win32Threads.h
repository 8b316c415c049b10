// Threads of the library, ended without the loader's help.
//
// A thread that ends, or has only just been made, needs the loader's lock, and so does whoever unloads a
// library: who waits there for a thread's end waits for ever. So nobody waits for a thread's end here. A
// thread's first and last instructions lie in a page outside the library; between them it runs the library's
// code, and as soon as it has left that for good it sets an event, and that is what everybody waits for. A
// thread that has not begun yet when the library goes never enters it.
#pragma once

#include <functional>
#include <memory>

#include "platform/KernelService.h"

namespace rux {

/// Any thread.
class TWin32Threads {
 public:
    TWin32Threads();
    /// See WaitForAll.
    ~TWin32Threads();
    TWin32Threads(const TWin32Threads&) = delete;
    TWin32Threads& operator=(const TWin32Threads&) = delete;

    /// Raises EOSError when no thread can be made; the body is destroyed then, too.
    std::unique_ptr<TThreadHandle> Start(std::function<void()> body);
    /// See TKernelService::KeepOutNewThreads.
    void KeepOutNew();
    /// Waits until no thread that was started here has anything left to do in the library. Those that have
    /// not begun are kept from it. May be called while the loader's lock is held.
    void WaitForAll();

 private:
    struct TState;
    std::unique_ptr<TState> FState;
};

}  // namespace rux
