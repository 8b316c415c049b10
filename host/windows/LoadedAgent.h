// The agent for as long as its library is loaded.
#pragma once

#include <memory>

#include "Engine/Start/RUXApplication.h"
#include "platform/win32/Win32Platform.h"

namespace rux {

/// Made and freed by the loader's calls, on whatever thread loads and unloads the library, while the loader
/// holds its lock.
///
/// So neither may wait for anything that itself needs that lock. Loading waits for nobody: the daemon's
/// thread begins when the loader is done. Unloading waits for the library's threads to leave its code, which
/// they do without the loader: see Win32Threads. It does not wait for the user-interface thread: while that
/// is inside the library, the library is held, and is unloaded when it has come out: see Win32Thunks.
class TLoadedAgent {
 public:
    /// Ends the process where the host is none that the agent can live in. Raises EOSError when the process
    /// has no window to meet its messages at.
    TLoadedAgent();
    ~TLoadedAgent();

 private:
    /// The library's threads of objects, as the application's toolkit expects them to be set up by whoever
    /// lives in it; undone on the same thread alone.
    class TObjectThread {
     public:
        TObjectThread();
        ~TObjectThread();

     private:
        const unsigned long FThread;
        const bool FEntered;
    };

    TObjectThread FObjectThread;
    TWin32Platform FServices;
    TPlatform FPlatform;
    TRUXApplication FApplication;
};

}  // namespace rux
