#include "Engine/Hooks/RUXRegisterClassHook.h"

#include <mutex>

#include "Engine/Hooks/SolviHookUtils.h"
#include "rtl/Exceptions.h"

namespace rux {

namespace {

constexpr const char* Module = "rtl100.bpl";
constexpr const char* Name = "@Classes@RegisterClass$qqrp17System@TMetaClass";

}  // namespace

struct TRegisterClassHook::TPatch {
    TCodeService& Code;
    TCodeAddress Target = 0;
    TCodeAddress Trampoline = 0;
    std::mutex Lock;

    /// A call that was on its way here when the hook was removed finds the function as it was.
    TCodeAddress Original() {
        const std::lock_guard lock(Lock);
        return Trampoline ? Trampoline : Target;
    }
    void RegisterClass(std::span<const std::uintptr_t> arguments) {
        try {
            Code.Call(TCallKind::Register, Original(), arguments);
        } catch (...) {
            // Mostly an EFilerError: there is a class of that name, and that one is as good.
        }
    }
};

TRegisterClassHook::TRegisterClassHook(TCodeService& code) : FPatch(new TPatch{code, 0, 0, {}}) {
    FPatch->Target = ResolveCodeAddress(code, code.GetProcAddress(Module, Name));
    if (FPatch->Target != 0)
        FReplacement = code.MakeFunction(TCallKind::Register, 1,
                                         [patch = FPatch](std::span<const std::uintptr_t> arguments) {
                                             patch->RegisterClass(arguments);
                                             return std::uintptr_t{0};
                                         });
    if (FReplacement != 0) {
        const std::lock_guard lock(FPatch->Lock);
        try {
            HookCode(code, FPatch->Target, FReplacement, FPatch->Trampoline);
        } catch (const EAccessViolation&) {
            // No memory for the trampoline: registration stays as strict as it was, and the engine lives.
        }
    }
    FInstalled = true;
}

TRegisterClassHook::~TRegisterClassHook() {
    Remove();
}

void TRegisterClassHook::Remove() {
    if (!FInstalled) return;
    FInstalled = false;
    {
        const std::lock_guard lock(FPatch->Lock);
        UnhookCode(FPatch->Code, FPatch->Trampoline);
    }
    // Where the patch could not be undone, the function must go on to lead somewhere.
    if (FReplacement != 0 && FPatch->Trampoline == 0) FPatch->Code.FreeFunction(FReplacement);
}

}  // namespace rux
