#include "platform/win32/Win32Code.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "platform/win32/Headers.h"
#include "platform/win32/Win32GuardedCall.h"
#include "rtl/Exceptions.h"

namespace rux {

namespace {

constexpr std::uint32_t Executable =
    PAGE_EXECUTE | PAGE_EXECUTE_READ | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
constexpr std::uint32_t Writable =
    PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
constexpr std::uint32_t Readable = Writable | PAGE_READONLY | PAGE_EXECUTE_READ;

/// Pages next to each other that came from one allocation and have one protection.
struct TRegion {
    std::uint64_t Begin = 0, End = 0;
    std::uint32_t Protection = 0;
};

void* PointerOf(std::uint64_t address) {
    return reinterpret_cast<void*>(static_cast<std::uintptr_t>(address));
}

/// False where nothing is.
bool RegionAt(std::uint64_t address, TRegion& region) {
    MEMORY_BASIC_INFORMATION info;
    if (address > 0xFFFFFFFF || ::VirtualQuery(PointerOf(address), &info, sizeof info) == 0) return false;
    if (info.State != MEM_COMMIT) return false;
    const std::uint64_t begin = reinterpret_cast<std::uintptr_t>(info.BaseAddress);
    region = {begin, begin + info.RegionSize, static_cast<std::uint32_t>(info.Protect)};
    return true;
}

/// Those that the bytes lie in, cut to them; empty where one of the pages does not exist.
std::vector<TRegion> RegionsOf(TCodeAddress address, std::size_t size) {
    std::vector<TRegion> regions;
    const std::uint64_t end = std::uint64_t{address} + size;
    for (std::uint64_t at = address; at < end; at = regions.back().End) {
        TRegion region;
        if (!RegionAt(at, region)) return {};
        regions.push_back({at, std::min(region.End, end), region.Protection});
    }
    return regions;
}

bool Allows(const TRegion& region, std::uint32_t protections) {
    return (region.Protection & protections) && !(region.Protection & PAGE_GUARD);
}

[[noreturn]] void Violation(const char* verb, std::uint64_t address) {
    char text[96];
    const auto number = static_cast<unsigned>(address);
    std::snprintf(text, sizeof text, "Access violation at address %08X. %s of address %08X", number, verb,
                  number);
    throw EAccessViolation(text);
}

/// Every byte must be one that may be accessed in this way.
void CheckAccess(const char* verb, TCodeAddress address, std::size_t size, std::uint32_t protections) {
    const std::uint64_t end = std::uint64_t{address} + size;
    for (std::uint64_t at = address; at < end;) {
        TRegion region;
        if (!RegionAt(at, region) || !Allows(region, protections)) Violation(verb, at);
        at = region.End;
    }
}

bool ProtectRegion(const TRegion& region, std::uint32_t protection) {
    DWORD old = 0;
    return ::VirtualProtect(PointerOf(region.Begin), static_cast<SIZE_T>(region.End - region.Begin),
                            protection, &old) != 0;
}

}  // namespace

TCodeAddress TWin32Code::GetProcAddress(const std::string& module, const std::string& name) {
    // Without a name it would be the application's own module.
    const HMODULE loaded = module.empty() ? nullptr : ::GetModuleHandleA(module.c_str());
    if (!loaded) return 0;
    return static_cast<TCodeAddress>(
        reinterpret_cast<std::uintptr_t>(::GetProcAddress(loaded, name.c_str())));
}

bool TWin32Code::IsNtFamily() {
    return (::GetVersion() & 0x80000000) == 0;
}

bool TWin32Code::VirtualProtect(TCodeAddress address, std::size_t size, std::uint32_t protection,
                                std::uint32_t& oldProtection) {
    // The system's own call takes the pages of one allocation alone.
    const std::vector<TRegion> regions = RegionsOf(address, size);
    for (auto step = regions.begin(); step != regions.end(); ++step) {
        if (ProtectRegion(*step, protection)) continue;
        while (step != regions.begin()) {
            --step;
            ProtectRegion(*step, step->Protection);
        }
        return false;
    }
    if (regions.empty()) return false;
    oldProtection = regions.front().Protection;
    return true;
}

TCodeAddress TWin32Code::VirtualAlloc(std::size_t size, std::uint32_t type, std::uint32_t protection) {
    return static_cast<TCodeAddress>(
        reinterpret_cast<std::uintptr_t>(::VirtualAlloc(nullptr, size, type, protection)));
}

bool TWin32Code::VirtualFree(TCodeAddress address, std::uint32_t type) {
    return ::VirtualFree(PointerOf(address), 0, type) != 0;
}

void TWin32Code::ReadMemory(TCodeAddress address, void* bytes, std::size_t size) {
    if (size == 0) return;
    CheckAccess("Read", address, size, Readable);
    // Another thread may take the memory away meanwhile: the system's copy fails then, and does not fault.
    SIZE_T done = 0;
    if (!::ReadProcessMemory(::GetCurrentProcess(), PointerOf(address), bytes, size, &done) || done != size)
        Violation("Read", address);
}

void TWin32Code::WriteMemory(TCodeAddress address, const void* bytes, std::size_t size) {
    if (size == 0) return;
    // The system's copy alone would also write to code that is protected.
    CheckAccess("Write", address, size, Writable);
    SIZE_T done = 0;
    if (!::WriteProcessMemory(::GetCurrentProcess(), PointerOf(address), bytes, size, &done) || done != size)
        Violation("Write", address);
    ::FlushInstructionCache(::GetCurrentProcess(), PointerOf(address), size);
}

TCodeAddress TWin32Code::MakeFunction(TCallKind kind, unsigned arguments, TNativeBody body) {
    return FThunks.MakeFunction(kind, arguments, std::move(body));
}

void TWin32Code::FreeFunction(TCodeAddress function, TCodeAddress instead) {
    FThunks.FreeFunction(function, instead);
}

std::uintptr_t TWin32Code::Call(TCallKind kind, TCodeAddress function,
                                std::span<const std::uintptr_t> arguments) {
    // Where the processor cannot forbid it, data would be run.
    CheckAccess("Read", function, 1, Executable);
    return CallGuarded(kind, function, arguments);
}

}  // namespace rux
