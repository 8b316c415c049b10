// Functions made at run time, which native code calls into the library by.
//
// Their code lies in pages of the process, outside the library, and these pages stay: a thread may still be
// on its way through one when the library is gone. The code takes a reference to the library's module for as
// long as a call is inside, so that a library that is freed while the application is in the middle of a call,
// in a message box that a request brought up, say, is unloaded when that call has come back. A call that
// finds the library gone, or its function freed, goes where the function it stands for went before.
#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>

#include "platform/CodeService.h"
#include "platform/WindowService.h"

namespace rux {

/// Where an error goes that must not leave a border of native frames.
using TBorderReport = std::function<void(const std::exception&)>;

/// Any thread.
class TWin32Thunks {
 public:
    TWin32Thunks();
    /// Closes every function that is still open.
    ~TWin32Thunks();
    TWin32Thunks(const TWin32Thunks&) = delete;
    TWin32Thunks& operator=(const TWin32Thunks&) = delete;

    /// Set before any function is made; without it errors are dropped.
    void SetReport(TBorderReport report);
    void Report(const std::exception& error) const;
    /// Called on `thread` each time the last call that was inside there comes to its end: nothing else of the
    /// library is on that thread's stack then. nil for none. Set while no call is inside there.
    void SetQuiet(std::uintptr_t thread, std::function<void()> quiet);

    /// See TCodeService::MakeFunction.
    TCodeAddress MakeFunction(TCallKind kind, unsigned arguments, TNativeBody body);
    /// Calls that arrive from now on go to `instead`, or answer 0 where that is 0.
    void FreeFunction(TCodeAddress function, TCodeAddress instead = 0);

    /// See TWindowService::MakeObjectInstance.
    TWndProc MakeWindowProc(TWindowProcedure procedure);
    /// Where messages go once the procedure is closed.
    void SetPrevious(TWndProc instance, TWndProc previous);
    void FreeWindowProc(TWndProc instance);

 private:
    struct TSlot;
    struct TState;
    struct TQuiet;
    class TInside;
    std::unique_ptr<TState> FState;
};

}  // namespace rux
