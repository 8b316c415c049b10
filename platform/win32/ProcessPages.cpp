#include "platform/win32/ProcessPages.h"

#include <cstring>
#include <mutex>
#include <utility>

#include "platform/win32/Headers.h"

namespace rux {

namespace {

/// What the system reserves for an allocation anyway.
constexpr std::size_t BlockSize = 64 * 1024;
constexpr std::size_t Alignment = 16;

struct TBlock {
    std::mutex Lock;
    std::uint32_t Next = 0;
    std::size_t Left = 0;
};

}  // namespace

std::uint32_t TakeProcessMemory(std::size_t size) {
    static TBlock block;
    const std::lock_guard lock(block.Lock);
    size = (size + Alignment - 1) / Alignment * Alignment;
    if (size > block.Left) {
        void* made = ::VirtualAlloc(nullptr, BlockSize, MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE);
        if (!made) return 0;
        block.Next = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(made));
        block.Left = BlockSize;
    }
    block.Left -= size;
    return std::exchange(block.Next, block.Next + static_cast<std::uint32_t>(size));
}

void WriteProcessCode(std::uint32_t address, std::string_view code) {
    void* place = reinterpret_cast<void*>(static_cast<std::uintptr_t>(address));
    std::memcpy(place, code.data(), code.size());
    ::FlushInstructionCache(::GetCurrentProcess(), place, code.size());
}

}  // namespace rux
