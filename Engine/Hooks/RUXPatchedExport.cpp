#include "Engine/Hooks/RUXPatchedExport.h"

#include <utility>

#include "Engine/Hooks/SolviHookUtils.h"
#include "rtl/Exceptions.h"

namespace rux {

bool TPatchedExport::Install(const std::string& module, const std::string& name, unsigned arguments,
                             TNativeBody replacement) {
    const std::lock_guard lock(FLock);
    FTarget = ResolveCodeAddress(FCode, FCode.GetProcAddress(module, name));
    if (FTarget == 0) return false;
    FReplacement = FCode.MakeFunction(FKind, arguments, std::move(replacement));
    if (FReplacement == 0) return false;
    try {
        if (HookCode(FCode, FTarget, FReplacement, FTrampoline)) return true;
    } catch (const EAccessViolation&) {  // no memory for the trampoline
    }
    FCode.FreeFunction(std::exchange(FReplacement, 0), FTarget);
    return false;
}

void TPatchedExport::Remove() {
    const std::lock_guard lock(FLock);
    // Where the patch cannot be undone, the function must go on to lead somewhere.
    if (UnhookCode(FCode, FTrampoline)) FCode.FreeFunction(std::exchange(FReplacement, 0), FTarget);
}

std::uintptr_t TPatchedExport::CallOriginal(std::span<const std::uintptr_t> arguments) {
    TCodeAddress original = 0;
    {
        const std::lock_guard lock(FLock);
        original = FTrampoline ? FTrampoline : FTarget;
    }
    Assert(original != 0);
    return FCode.Call(FKind, original, arguments);
}

}  // namespace rux
