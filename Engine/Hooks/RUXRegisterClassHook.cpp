#include "Engine/Hooks/RUXRegisterClassHook.h"

#include "Engine/Hooks/RUXPatchedExport.h"

namespace rux {

TRegisterClassHook::TRegisterClassHook(TCodeService& code)
    : FPatch(std::make_shared<TPatchedExport>(code, TCallKind::Register)), FInstalled(true) {
    FPatch->Install("rtl100.bpl", "@Classes@RegisterClass$qqrp17System@TMetaClass", 1,
                    [patch = FPatch](std::span<const std::uintptr_t> arguments) {
                        try {
                            patch->CallOriginal(arguments);
                        } catch (...) {
                            // Mostly an EFilerError: there is a class of that name, and that one is as good.
                        }
                        return std::uintptr_t{0};
                    });
}

TRegisterClassHook::~TRegisterClassHook() {
    Remove();
}

void TRegisterClassHook::Remove() {
    FPatch->Remove();
    FInstalled = false;
}

}  // namespace rux
