// The code of this process.
#pragma once

#include "platform/CodeService.h"
#include "platform/win32/Win32Thunks.h"

namespace rux {

class TWin32Code final : public TCodeService {
 public:
    explicit TWin32Code(TWin32Thunks& thunks) : FThunks(thunks) {}

    TCodeAddress GetProcAddress(const std::string& module, const std::string& name) override;
    bool IsNtFamily() override;
    bool VirtualProtect(TCodeAddress address, std::size_t size, std::uint32_t protection,
                        std::uint32_t& oldProtection) override;
    TCodeAddress VirtualAlloc(std::size_t size, std::uint32_t type, std::uint32_t protection) override;
    bool VirtualFree(TCodeAddress address, std::uint32_t type) override;
    void ReadMemory(TCodeAddress address, void* bytes, std::size_t size) override;
    void WriteMemory(TCodeAddress address, const void* bytes, std::size_t size) override;
    TCodeAddress MakeFunction(TCallKind kind, unsigned arguments, TNativeBody body) override;
    void FreeFunction(TCodeAddress function, TCodeAddress instead = 0) override;
    std::uintptr_t Call(TCallKind kind, TCodeAddress function,
                        std::span<const std::uintptr_t> arguments) override;

 private:
    TWin32Thunks& FThunks;
};

}  // namespace rux
