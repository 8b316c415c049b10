// An export of the process with a replacement over it: what all users of the patching have in common.
#pragma once

#include <mutex>
#include <span>
#include <string>

#include "platform/CodeService.h"

namespace rux {

/// Patched where its code lies, behind any jump that leads there, so that every caller in the process is met.
/// Install and Remove on one thread; the replacement runs on any, and lives as long as calls are inside it:
/// what it refers to, this object too, must be kept by the function that is given.
class TPatchedExport {
 public:
    TPatchedExport(TCodeService& code, TCallKind kind) : FCode(code), FKind(kind) {}
    TPatchedExport(const TPatchedExport&) = delete;
    TPatchedExport& operator=(const TPatchedExport&) = delete;

    /// False, and nothing patched, where the export cannot be found or written to, or memory is short.
    bool Install(const std::string& module, const std::string& name, unsigned arguments,
                 TNativeBody replacement);
    /// Nothing happens where nothing is patched.
    void Remove();
    /// The old behaviour. A call that was on its way to the replacement when that was removed finds the
    /// function as it was. What the function raises passes through.
    std::uintptr_t CallOriginal(std::span<const std::uintptr_t> arguments);

 private:
    TCodeService& FCode;
    const TCallKind FKind;
    TCodeAddress FReplacement = 0;
    std::mutex FLock;
    TCodeAddress FTarget = 0;
    TCodeAddress FTrampoline = 0;
};

}  // namespace rux
