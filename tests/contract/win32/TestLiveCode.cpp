// Functions with beginnings of many kinds, patched in this process, called, and restored.
#include <gtest/gtest.h>

#include "Engine/Hooks/SolviHookUtils.h"
#include "hooks/CodeSupport.h"
#include "platform/win32/Win32Code.h"
#include "rtl/Exceptions.h"

namespace rux::test {

TEST(TestLiveCode, RunsPatchedMovedAndRestored) {
    constexpr TCodeAddress PageSize = 4096;
    const struct {
        TCodeAddress Place;
        TCallKind Kind;
        const char *Code, *Expected;
    } rows[] = {
        // A frame of sixteen bytes; a function made to be patched; one that calls what follows it.
        {0, TCallKind::StdCall, "55 8B EC 83 EC 10 8B 45 08 89 45 FC 03 45 FC C9 C2 04 00",
         "40; 6 moved, 40 old, 1042 new, page 20; 40, page 20"},
        {0, TCallKind::StdCall, "8B FF 55 8B EC 8B 45 08 83 C0 03 5D C2 04 00",
         "23; 5 moved, 23 old, 1024 new, page 20; 23, page 20"},
        {0, TCallKind::StdCall, "55 E8 08 00 00 00 03 44 24 08 5D C2 04 00 B8 07 00 00 00 C3",
         "27; 6 moved, 27 old, 1028 new, page 20; 27, page 20"},
        // In the last five bytes of a page, and with its argument in a register.
        {PageSize - 5, TCallKind::StdCall, "55 8B EC 33 C0 2B 45 08 5D C2 04 00",
         "-20; 5 moved, -20 old, 979 new, page 20; -20, page 40"},
        {0, TCallKind::Register, "53 89 C3 8D 43 64 5B C3",
         "120; 6 moved, 120 old, 1121 new, page 20; 120, page 20"},
    };
    TWin32Thunks thunks;
    TWin32Code code{thunks};
    for (const auto& row : rows) {
        const TCodeAddress block = code.VirtualAlloc(2 * PageSize, MEM_COMMIT, PAGE_READWRITE);
        const TCodeAddress function = block + row.Place;
        const std::vector<std::uint8_t> bytes = FromHex(row.Code);
        code.WriteMemory(function, bytes.data(), bytes.size());
        const auto protection = [&] {
            std::uint32_t old = 0, ignored = 0;
            code.VirtualProtect(function, 1, PAGE_EXECUTE_READ, old);
            code.VirtualProtect(function, 1, old, ignored);
            char text[16];
            std::snprintf(text, sizeof text, ", page %x", unsigned{old});
            return std::string(text);
        };
        const auto call = [&](TCodeAddress address, std::uintptr_t value) {
            return static_cast<int>(code.Call(row.Kind, address, {&value, 1}));
        };
        std::uint32_t old = 0;
        ASSERT_TRUE(code.VirtualProtect(block, 2 * PageSize, PAGE_EXECUTE_READ, old));
        TCodeAddress trampoline = 0;
        const TCodeAddress replacement = code.MakeFunction(row.Kind, 1, [&](auto values) {
            return static_cast<std::uintptr_t>(1000 + call(trampoline, values[0] + 1));
        });
        std::string text = std::to_string(call(function, 20));
        ASSERT_TRUE(HookCode(code, function, replacement, trampoline));
        std::uint8_t moved = 0;
        code.ReadMemory(trampoline - 1, &moved, 1);
        text += "; " + std::to_string(moved) + " moved, " + std::to_string(call(trampoline, 20)) + " old, " +
                std::to_string(call(function, 20)) + " new" + protection();
        const TCodeAddress page = trampoline - 5;
        EXPECT_TRUE(UnhookCode(code, trampoline) && trampoline == 0 && !UnhookCode(code, trampoline));
        EXPECT_THROW(code.ReadMemory(page, &moved, 1), EAccessViolation);
        text += "; " + std::to_string(call(function, 20)) + protection();
        EXPECT_EQ(text, row.Expected) << row.Code;
        std::vector<std::uint8_t> after(bytes.size());
        code.ReadMemory(function, after.data(), after.size());
        EXPECT_EQ(after, bytes) << row.Code;
        code.FreeFunction(replacement);
        code.VirtualFree(block, MEM_RELEASE);
    }
}

}  // namespace rux::test
