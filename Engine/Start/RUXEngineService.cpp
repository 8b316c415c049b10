#include "Engine/Start/RUXEngineService.h"

#include "Engine/Core/RUXEngineState.h"
#include "platform/CodeService.h"
#include "platform/KernelService.h"
#include "rtl/Numbers.h"

namespace rux {

namespace {

constexpr const char* MappingFormat = "RUX.{09491275-8671-4C09-9404-76E78D4AF883}.%d";
constexpr std::size_t ValueSize = 4;

/// Little-endian, as the controller's processor writes it.
std::uint32_t ValueAt(const std::string& bytes, std::size_t index) {
    std::uint32_t value = 0;
    for (std::size_t i = ValueSize; i-- > 0;)
        value = (value << 8) | static_cast<unsigned char>(bytes[index * ValueSize + i]);
    return value;
}

}  // namespace

TRUXEngineService::TRUXEngineService() {
    TKernelService& kernel = Platform().Kernel;
    const std::string name = Format(MappingFormat, {kernel.GetCurrentProcessId()});
    const std::optional<std::string> bytes = kernel.ReadFileMapping(name, 3 * ValueSize);
    if (!bytes) return;
    FFirst = ValueAt(*bytes, 0);
    FSecond = ValueAt(*bytes, 1);
    FResolveEntry = ValueAt(*bytes, 2);
}

TCodeAddress TRUXEngineService::ResolveProc(const std::string& module, const std::string& name) const {
    TCodeService& code = Platform().Code;
    if (FResolveEntry == 0) return code.GetProcAddress(module, name);
    const std::uintptr_t names[] = {reinterpret_cast<std::uintptr_t>(module.c_str()),
                                    reinterpret_cast<std::uintptr_t>(name.c_str())};
    return static_cast<TCodeAddress>(code.Call(TCallKind::StdCall, FResolveEntry, names));
}

}  // namespace rux
