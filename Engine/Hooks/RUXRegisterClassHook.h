// Makes the toolkit's class registration tolerant: the application has registered its classes already, and a
// library that brings classes of the same names must not fail over them.
#pragma once

#include <memory>

#include "platform/CodeService.h"

namespace rux {

class TPatchedExport;

/// While one of these lives, no call of RegisterClass in the process raises; the class registered first
/// stays. Made before anything registers a class. User-interface thread; registrations may come on any
/// thread.
class TRegisterClassHook {
 public:
    /// Nothing is patched where the export cannot be found, or where there is no memory for it.
    explicit TRegisterClassHook(TCodeService& code);
    ~TRegisterClassHook();
    TRegisterClassHook(const TRegisterClassHook&) = delete;
    TRegisterClassHook& operator=(const TRegisterClassHook&) = delete;

    /// From the making to Remove, whether or not anything was patched.
    bool Installed() const { return FInstalled; }
    void Remove();

 private:
    /// Shared with calls that are inside while the hook is removed.
    const std::shared_ptr<TPatchedExport> FPatch;
    bool FInstalled;
};

}  // namespace rux
