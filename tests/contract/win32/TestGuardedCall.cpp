// Native functions that raise structured exceptions, or leave the stack as they should not.
#include <gtest/gtest.h>

#include "platform/win32/Win32Code.h"
#include "rtl/Exceptions.h"
// After the boundary.
#include "platform/win32/Headers.h"

namespace rux::test {

namespace {

TWin32Thunks Thunks;
TWin32Code Code{Thunks};

int __stdcall ReadsFrom(const volatile int* place) {
    return *place;
}
int __stdcall WritesTo(volatile int* place) {
    *place = 1;
    return 1;
}
int __stdcall Raises(DWORD number) {
    ::RaiseException(number, EXCEPTION_NONCONTINUABLE, 0, nullptr);
    return 0;
}
int __stdcall Recurses(int depth) {
    volatile char room[1000] = {};
    return depth == -1 ? 0 : Recurses(depth + 1) + room[500];
}
/// Leaves its argument on the stack.
int __cdecl LeavesItsArgument(int value) {
    return value + 1;
}

void* HandlerChain() {
    void* first;
    asm volatile("movl %%fs:0, %0" : "=r"(first));
    return first;
}

template <class F>
TCodeAddress AddressOf(F* function) {
    return static_cast<TCodeAddress>(reinterpret_cast<std::uintptr_t>(function));
}

template <class F>
std::string Call(F* function, std::uintptr_t argument) {
    try {
        return std::to_string(Code.Call(TCallKind::StdCall, AddressOf(function), {&argument, 1}));
    } catch (const Exception& error) {
        return std::string(error.ClassName()) + ": " + error.Message();
    }
}

}  // namespace

TEST(TestGuardedCall, ErrorsOfNativeFunctionsComeOut) {
    int place = 41;
    const auto good = reinterpret_cast<std::uintptr_t>(&place);
    void* const chain = HandlerChain();
    // More often than the stack would stand it if anything were left there.
    for (int i = 0; i < 3000; ++i) {
        ASSERT_EQ(Call(&ReadsFrom, good), "41");
        ASSERT_TRUE(Call(&ReadsFrom, 8).ends_with(". Read of address 00000008"));
        ASSERT_TRUE(Call(&WritesTo, 0).starts_with("EAccessViolation: Access violation at address "));
        ASSERT_EQ(Call(&Raises, 0x0EEDFADE), "Exception: External exception 0EEDFADE");
        ASSERT_EQ(Call(&Raises, STATUS_INTEGER_DIVIDE_BY_ZERO), "Exception: External exception C0000094");
        ASSERT_EQ(Call(&LeavesItsArgument, 41), "42");
        ASSERT_EQ(HandlerChain(), chain);
    }
    for (int i = 0; i < 2; ++i) EXPECT_EQ(Call(&Recurses, 0), "EStackOverflow: Stack overflow");
}

TEST(TestGuardedCall, ErrorsPassFunctionsOfTheirOwn) {
    // A made function that calls one that fails, called by native code.
    const TCodeAddress inner = Thunks.MakeFunction(TCallKind::StdCall, 1, [](auto values) -> std::uintptr_t {
        return Code.Call(TCallKind::StdCall, AddressOf(&ReadsFrom), values);
    });
    std::string reported;
    Thunks.SetReport([&](const std::exception& error) { reported = error.what(); });
    EXPECT_EQ(Call(reinterpret_cast<int(__stdcall*)(int)>(std::uintptr_t{inner}), 4), "0");
    EXPECT_TRUE(reported.ends_with("Read of address 00000004")) << reported;
    Thunks.SetReport(nullptr);
    Thunks.FreeFunction(inner);
}

}  // namespace rux::test
