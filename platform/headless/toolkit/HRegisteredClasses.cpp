#include "platform/headless/toolkit/HRegisteredClasses.h"

#include "rtl/Exceptions.h"
#include "rtl/Text.h"

namespace rux {

namespace {

constexpr const char* Module = "rtl100.bpl";
constexpr const char* Name = "@Classes@RegisterClass$qqrp17System@TMetaClass";

}  // namespace

HRegisteredClasses::HRegisteredClasses(HCodeSpace& code) : FCode(code) {
    FCode.Export(Module, Name, TCallKind::Register, 1, [this](std::span<const std::uintptr_t> arguments) {
        Add(reinterpret_cast<const TClass*>(arguments[0]));
        return std::uintptr_t{0};
    });
    FExport = FCode.GetProcAddress(Module, Name);
}

HRegisteredClasses::~HRegisteredClasses() {
    FCode.RemoveExport(Module, Name);
}

void HRegisteredClasses::RegisterClass(const TClass& aClass) {
    const std::uintptr_t arguments[] = {reinterpret_cast<std::uintptr_t>(&aClass)};
    FCode.Call(TCallKind::Register, FExport, arguments);
}

const TClass* HRegisteredClasses::GetClass(std::string_view name) {
    const std::lock_guard lock(FLock);
    const auto found = FByName.find(LowerCase(name));
    return found == FByName.end() ? nullptr : found->second;
}

void HRegisteredClasses::Add(const TClass* aClass) {
    if (!aClass) RaiseNilAccess();
    const std::lock_guard lock(FLock);
    const auto [place, added] = FByName.emplace(LowerCase(aClass->Name()), aClass);
    if (!added && place->second != aClass)
        throw EFilerError("A class named " + aClass->Name() + " already exists");
}

}  // namespace rux
