// Patches functions of this 32-bit program and calls them. A line for each function.
#include <sys/mman.h>

#include <cinttypes>
#include <cstring>
#include <fstream>
#include <iostream>

#include "Engine/Hooks/SolviHookUtils.h"
#include "rtl/Exceptions.h"
#include "tests/hooks/CodeSupport.h"

// Each takes one argument on the stack and takes it off, LiveRegister in eax. The first bytes are spelled
// where an assembler has a choice.
asm(R"(
    .intel_syntax noprefix
    .globl LiveFrame, LiveHotPatch, LiveCall, LiveStub, LiveBehind, LiveRegister, LiveEdge
    .text; .balign 4096
LiveFrame: push ebp; .byte 0x8B, 0xEC; sub esp, 16
    mov eax, [ebp + 8]; mov [ebp - 4], eax; add eax, [ebp - 4]; leave; ret 4; .balign 32
LiveHotPatch: .byte 0x8B, 0xFF; push ebp; .byte 0x8B, 0xEC
    mov eax, [ebp + 8]; add eax, 3; pop ebp; ret 4; .balign 32
LiveCall: push ebp; call Seven; add eax, [esp + 8]; pop ebp; ret 4
Seven: mov eax, 7; ret; .balign 32
LiveStub: jmp dword ptr [LiveSlot]; .balign 32
LiveBehind: push ebx; mov ebx, [esp + 8]; lea eax, [ebx + ebx * 4]; pop ebx; ret 4; .balign 32
LiveRegister: push ebx; mov ebx, eax; lea eax, [ebx + 100]; pop ebx; ret
    .balign 4096; .skip 4091, 0x90
LiveEdge: push ebp; .byte 0x8B, 0xEC; xor eax, eax  # a page's last five bytes
    sub eax, [ebp + 8]; pop ebp; ret 4; .balign 4096
    .data
LiveSlot: .long LiveBehind
    .text
    .att_syntax
)");

extern "C" const char LiveFrame[], LiveHotPatch[], LiveCall[], LiveStub[], LiveBehind[], LiveEdge[],
    LiveRegister[];

namespace rux::test {

namespace {

/// Protection of the page at `address`; 0 when there is none.
std::uint32_t ProtectionOf(TCodeAddress address) {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        std::uint32_t first = 0, end = 0;
        char rights[5];
        if (std::sscanf(line.c_str(), "%" SCNx32 "-%" SCNx32 " %4s", &first, &end, rights) != 3) continue;
        if (address < first || address >= end || rights[0] != 'r') continue;
        const bool writable = rights[1] == 'w', executable = rights[2] == 'x';
        return !executable ? 0x02 : writable ? PAGE_EXECUTE_READWRITE : PAGE_EXECUTE_READ;
    }
    return 0;
}

void* Pointer(TCodeAddress address) {
    return reinterpret_cast<void*>(static_cast<std::uintptr_t>(address));
}

template <class T>
TCodeAddress AddressOf(T* place) {
    return static_cast<TCodeAddress>(reinterpret_cast<std::uintptr_t>(place));
}

class TLiveCode final : public TCodeMemory {
 public:
    bool VirtualProtect(TCodeAddress address, std::size_t size, std::uint32_t protection,
                        std::uint32_t& old) override {
        old = ProtectionOf(address);
        const TCodeAddress inPage = address % PageSize;
        return old && mprotect(Pointer(address - inPage), inPage + size, Native(protection)) == 0;
    }
    TCodeAddress VirtualAlloc(std::size_t size, std::uint32_t, std::uint32_t protection) override {
        return AddressOf(mmap(nullptr, size, Native(protection), MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    }
    bool VirtualFree(TCodeAddress address, std::uint32_t) override {
        return munmap(Pointer(address), PageSize) == 0;
    }
    /// Nothing that is read is larger than a page.
    void ReadMemory(TCodeAddress address, void* bytes, std::size_t size) override {
        if (!ProtectionOf(address) || !ProtectionOf(address + size - 1)) throw EAccessViolation("Read");
        std::memcpy(bytes, Pointer(address), size);
    }
    void WriteMemory(TCodeAddress address, const void* bytes, std::size_t size) override {
        std::memcpy(Pointer(address), bytes, size);
    }

 private:
    static constexpr TCodeAddress PageSize = 4096;

    static int Native(std::uint32_t protection) {
        return PROT_READ | PROT_EXEC | (protection == PAGE_EXECUTE_READWRITE ? PROT_WRITE : 0);
    }
};

using TOnStack = int(__attribute__((stdcall)) *)(int);
using TInRegister = int(__attribute__((regparm(1))) *)(int);

TLiveCode Code;
TCodeAddress Trampoline = 0;

/// As a caller that the compiler knows nothing of.
template <class TFunction>
int CallAt(TCodeAddress address, int argument) {
    volatile TCodeAddress at = address;
    return reinterpret_cast<TFunction>(static_cast<std::uintptr_t>(at))(argument);
}

int __attribute__((stdcall)) OnStackReplacement(int argument) {
    return 1000 + CallAt<TOnStack>(Trampoline, argument + 1);
}

int __attribute__((regparm(1))) InRegisterReplacement(int argument) {
    return 1000 + CallAt<TInRegister>(Trampoline, argument + 1);
}

/// Patches `body`, which is found behind `caller`, and restores it.
template <class TFunction>
void Try(const char* name, const char* caller, const char* body, TFunction replacement) {
    const TCodeAddress entry = AddressOf(caller), found = ResolveCodeAddress(Code, entry);
    const auto* const bytes = static_cast<const char*>(Pointer(found));
    const std::string before(bytes, 32);
    const auto kept = [&](std::size_t from) {
        return before.substr(from) == std::string(bytes + from, 32 - from) ? "kept" : "changed";
    };
    const auto call = [](TCodeAddress address) { return CallAt<TFunction>(address, 20); };
    std::cout << name << (found == AddressOf(body) ? ": " : " not found: ") << call(entry) << std::flush;
    const bool hooked = HookCode(Code, found, AddressOf(replacement), Trampoline);
    const TCodeAddress block = Trampoline - 5;
    std::cout << (hooked ? "; " : "; not patched ") << int{static_cast<const char*>(Pointer(block))[4]}
              << " moved, " << call(Trampoline) << " old, " << call(entry) << " new, rest " << kept(5)
              << ", page " << std::hex << ProtectionOf(found) << std::dec << std::flush;
    const bool restored = UnhookCode(Code, Trampoline) && Trampoline == 0 && !UnhookCode(Code, Trampoline);
    std::cout << (restored ? "; " : "; not restored ") << kept(0) << ", " << call(entry) << ", page "
              << std::hex << ProtectionOf(found) << ", block " << ProtectionOf(block) << std::dec
              << std::endl;
}

}  // namespace

}  // namespace rux::test

int main() {
    using namespace rux::test;
    Try("LiveFrame", LiveFrame, LiveFrame, OnStackReplacement);
    Try("LiveHotPatch", LiveHotPatch, LiveHotPatch, OnStackReplacement);
    Try("LiveCall", LiveCall, LiveCall, OnStackReplacement);
    Try("LiveStub", LiveStub, LiveBehind, OnStackReplacement);
    Try("LiveEdge", LiveEdge, LiveEdge, OnStackReplacement);
    Try("LiveRegister", LiveRegister, LiveRegister, InRegisterReplacement);
    for (const rux::TCodeAddress nothing : {0u, 0xFFFFF000u})
        std::cout << HookCode(Code, nothing, AddressOf(OnStackReplacement), Trampoline) << std::endl;
}
