// The engine as a whole: made by the host at load, started, stopped, freed.
#pragma once

#include <cstdint>
#include <memory>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Hooks/RUXRegisterClassHook.h"
#include "Engine/Host/RUXHttpServer.h"
#include "Engine/Start/RUXEngineService.h"

namespace rux {

/// Ends the host, with a message box, when it is no application that the engine can live in.
void CheckHost(TPlatform& platform);

/// One at a time in a process. Made, started, stopped and freed on the user-interface thread, or on whatever
/// thread loads and unloads a library that holds it; never stopped while the user-interface thread runs a
/// handler of the engine's.
class TRUXApplication {
 public:
    /// Fills the class lists; nothing runs yet.
    explicit TRUXApplication(TPlatform& platform);
    /// Stops what runs.
    ~TRUXApplication();

    /// Takes the port, makes the task centre, installs the hooks, prepares the folders and starts the daemon,
    /// in this order.
    void Start();
    /// In the reverse: the daemon ends, the hooks go, the task centre goes; then connections and waiting
    /// requests are ended. Nothing happens when nothing runs.
    void Stop();

    /// 0 until started.
    std::uint16_t ServerPort() const { return FState.ServerPort; }
    /// nil until started.
    TRUXHttpDaemon* Daemon() const { return FDaemon.get(); }
    TEngineState& State() { return FState; }
    const TRUXEngineService& Service() const { return FService; }

 private:
    /// First to come and last to go: what the library brings may be registered already.
    TRegisterClassHook FRegisterClassHook;
    TEngineState FState;
    TRUXEngineService FService;
    std::unique_ptr<TRUXHttpDaemon> FDaemon;
};

}  // namespace rux
