// Code of this very process, as far as patching asks for it.
#pragma once

#include <sys/mman.h>

#include <cinttypes>
#include <cstdio>
#include <cstring>

#include "platform/CodeService.h"
#include "rtl/Exceptions.h"

namespace rux::live {

class TLiveCode final : public TCodeService {
 public:
    /// Protection of the page at `address`; 0 when there is none.
    static std::uint32_t ProtectionOf(TCodeAddress address) {
        std::FILE* const maps = std::fopen("/proc/self/maps", "r");
        char line[512], rights[5];
        std::uint32_t protection = 0;
        while (maps && std::fgets(line, sizeof line, maps)) {
            std::uint32_t first = 0, end = 0;
            if (std::sscanf(line, "%" SCNx32 "-%" SCNx32 " %4s", &first, &end, rights) != 3) continue;
            if (address < first || address >= end || rights[0] != 'r') continue;
            const bool writable = rights[1] == 'w', executable = rights[2] == 'x';
            protection = executable ? (writable ? PAGE_EXECUTE_READWRITE : PAGE_EXECUTE_READ)
                                    : (writable ? PAGE_READWRITE : ReadOnly);
        }
        if (maps) std::fclose(maps);
        return protection;
    }

    bool IsNtFamily() override { return true; }
    bool VirtualProtect(TCodeAddress address, std::size_t size, std::uint32_t protection,
                        std::uint32_t& oldProtection) override {
        if (!Grants(address, size, AnyRight)) return false;
        oldProtection = ProtectionOf(address);
        const TCodeAddress first = address / PageSize * PageSize;
        return mprotect(Pointer(first), address - first + size, Native(protection)) == 0;
    }
    TCodeAddress VirtualAlloc(std::size_t size, std::uint32_t, std::uint32_t protection) override {
        void* const block = mmap(nullptr, size, Native(protection), MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        return block == MAP_FAILED ? 0 : static_cast<TCodeAddress>(reinterpret_cast<std::uintptr_t>(block));
    }
    bool VirtualFree(TCodeAddress address, std::uint32_t) override {
        return munmap(Pointer(address), PageSize) == 0;
    }
    void ReadMemory(TCodeAddress address, void* bytes, std::size_t size) override {
        if (!Grants(address, size, AnyRight)) throw EAccessViolation("Read");
        std::memcpy(bytes, Pointer(address), size);
    }
    void WriteMemory(TCodeAddress address, const void* bytes, std::size_t size) override {
        if (!Grants(address, size, PAGE_READWRITE | PAGE_EXECUTE_READWRITE)) throw EAccessViolation("Write");
        std::memcpy(Pointer(address), bytes, size);
    }

    // The program calls and makes its functions itself.
    TCodeAddress GetProcAddress(const std::string&, const std::string&) override { return 0; }
    TCodeAddress MakeFunction(TCallKind, unsigned, TNativeBody) override { return 0; }
    void FreeFunction(TCodeAddress) override {}
    std::uintptr_t Call(TCallKind, TCodeAddress, std::span<const std::uintptr_t>) override { return 0; }

 private:
    static constexpr TCodeAddress PageSize = 4096;
    static constexpr std::uint32_t ReadOnly = 0x02, AnyRight = 0xFF;

    static void* Pointer(TCodeAddress address) {
        return reinterpret_cast<void*>(static_cast<std::uintptr_t>(address));
    }
    /// False when one of the pages grants none of `rights`.
    static bool Grants(TCodeAddress address, std::size_t size, std::uint32_t rights) {
        const std::uint64_t end = std::uint64_t{address} + size;
        for (std::uint64_t page = address / PageSize * PageSize; page < end; page += PageSize)
            if (!(ProtectionOf(static_cast<TCodeAddress>(page)) & rights)) return false;
        return true;
    }
    static int Native(std::uint32_t protection) {
        const int write = protection & (PAGE_READWRITE | PAGE_EXECUTE_READWRITE) ? PROT_WRITE : 0;
        const int execute = protection & (PAGE_EXECUTE_READ | PAGE_EXECUTE_READWRITE) ? PROT_EXEC : 0;
        return PROT_READ | write | execute;
    }
};

}  // namespace rux::live
