#include "platform/win32/Win32Stack.h"

#include "rtl/Stack.h"

namespace rux {

namespace {

/// The guard pages at the end of a stack, which raise an error of their own.
constexpr std::uintptr_t GuardSize = 0x3000;

/// A thread's own block holds the lowest address that is reserved for its stack at 0xE0C.
std::uintptr_t LowestOfThisThread() {
    std::uintptr_t reservedFrom;
    asm("movl %%fs:0xE0C, %0" : "=r"(reservedFrom));
    return reservedFrom + GuardSize;
}

}  // namespace

void TellStackLimits() {
    SetStackLimitSource(&LowestOfThisThread);
}

}  // namespace rux
