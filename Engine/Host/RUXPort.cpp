#include "Engine/Host/RUXPort.h"

#include <mutex>

#include "Engine/Core/RUXEngineState.h"
#include "platform/KernelService.h"
#include "platform/SocketService.h"
#include "rtl/Numbers.h"
#include "rtl/StringList.h"
#include "rtl/Text.h"

namespace rux {

namespace {

constexpr std::uint16_t FirstPort = 4440;
constexpr std::uint16_t LastPort = 65535;
constexpr const char* PortMutexFormat = "{CB35D3B5-7016-4831-9464-361F97D3ED52}.%d";
constexpr const char* EngineMutexName = "{A8CF3D27-15DE-4B85-85AB-3542899F10AF}";

bool TryPort(std::uint16_t port) {
    const std::string name = Format(PortMutexFormat, {static_cast<int>(port)});
    if (MutexExists(name) || Platform().Sockets.IsPortBound(port)) return false;
    // Another engine may have announced the port since it was looked at.
    if (!CreateGlobalMutex(name)) return false;
    CreateGlobalMutex(EngineMutexName);
    return true;
}

}  // namespace

bool MutexExists(const std::string& name) {
    for (const std::string& item : SplitDelimited(Format("%0:s,Global\\%0:s", {name}), ',')) {
        const std::string_view trimmed = Trim(item);
        if (!trimmed.empty() && Platform().Kernel.OpenMutexA(std::string(trimmed))) return true;
    }
    return false;
}

bool CreateGlobalMutex(const std::string& name) {
    TKernelService& kernel = Platform().Kernel;
    const bool isNew = kernel.CreateMutexA(name);
    return kernel.CreateMutexA("Global\\" + name) && isNew;
}

std::uint16_t AcquireServerPort() {
    static std::mutex lock;
    static std::uint16_t taken = 0;
    const std::lock_guard guard(lock);
    if (taken != 0) return taken;
    std::uint16_t port = FirstPort;
    while (port < LastPort && !TryPort(port)) ++port;
    return taken = port;
}

}  // namespace rux
