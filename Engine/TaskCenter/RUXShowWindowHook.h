// The eye on windows that come up while a request is served: every ShowWindow of the process passes here.
#pragma once

#include <memory>
#include <shared_mutex>

#include "Engine/Hooks/RUXPatchedExport.h"
#include "platform/Platform.h"
#include "platform/Types.h"

namespace rux {

/// Stands in the place of the window system's ShowWindow from Install to Remove. Calls may come on any
/// thread, and one that is inside while the hook is removed goes on without the engine.
class TShowWindowHook : public std::enable_shared_from_this<TShowWindowHook> {
 public:
    /// Made on the user-interface thread.
    explicit TShowWindowHook(TPlatform& platform);
    /// False, and nothing patched, where the export cannot be found or written to. User-interface thread.
    bool Install();
    void Remove();

 private:
    /// What the patched function does now. Answers what the real one answered, whatever happens afterwards.
    std::uintptr_t ShowWindowHook(std::span<const std::uintptr_t> arguments);
    bool IsWindowOfInterest(HWnd window, int command);
    bool IsModalOrForeignWindow(HWnd window);
    void Report(HWnd window, bool endsPopups);

    TPlatform& FPlatform;
    const std::uintptr_t FThread;
    TPatchedExport FShowWindow;
    /// Held for reading while the engine is used; never across a call that another thread must answer.
    std::shared_mutex FLock;
    bool FActive = false;
};

/// Each does nothing when called a second time. False when windows will not be watched. User-interface
/// thread.
bool InstallShowWindowHook();
void RemoveShowWindowHook();

}  // namespace rux
