// Patching code: what is asked of the code service, and the bytes that result.
#include <gtest/gtest.h>

#include <utility>

#include "Engine/Hooks/SolviHookUtils.h"
#include "HexText.h"
#include "platform/headless/code/HCodeSpace.h"
#include "rtl/Exceptions.h"

namespace rux::test {

namespace {

std::string Hex(std::uint32_t value) {
    char text[12];
    std::snprintf(text, sizeof text, "%X", value);
    return text;
}

/// Memory with code, and a line for every change that is asked for.
class TRecorder final : public TCodeService {
 public:
    static constexpr TCodeAddress Page = 0x10000000, NextPage = 0x10001000, Block = 0x10002000;

    /// The page behind the code's first is there when the code reaches it.
    TRecorder(TCodeAddress address, std::string_view hex) {
        for (int i = 0; i < 2; ++i) FSpace.VirtualAlloc(4096, MEM_COMMIT, PAGE_EXECUTE_READWRITE);
        const std::vector<std::uint8_t> bytes = FromHex(hex);
        FSpace.WriteMemory(address, bytes.data(), bytes.size());
        SetProtection(Page, PAGE_EXECUTE_READ);
        SetProtection(NextPage, PAGE_EXECUTE_READ);
        if (address + bytes.size() <= NextPage) FSpace.VirtualFree(NextPage, MEM_RELEASE);
    }
    std::uint32_t SetProtection(TCodeAddress address, std::uint32_t protection) {
        std::uint32_t old = 0;
        FSpace.VirtualProtect(address, 1, protection, old);
        return old;
    }
    std::string Bytes(TCodeAddress address, std::size_t size) {
        std::vector<std::uint8_t> bytes(size);
        FSpace.ReadMemory(address, bytes.data(), size);
        return ToHex(bytes);
    }
    std::string TakeLog() { return std::exchange(FLog, {}); }

    bool NtFamily = true, OutOfMemory = false;

    TCodeAddress GetProcAddress(const std::string&, const std::string&) override { return 0; }
    bool IsNtFamily() override { return NtFamily; }
    bool VirtualProtect(TCodeAddress address, std::size_t size, std::uint32_t protection,
                        std::uint32_t& old) override {
        const bool done = FSpace.VirtualProtect(address, size, protection, old);
        Log("protect " + Hex(address) + "+" + std::to_string(size) + " " + Hex(protection) +
            (done ? " was " + Hex(old) : " fails"));
        return done;
    }
    TCodeAddress VirtualAlloc(std::size_t size, std::uint32_t type, std::uint32_t protection) override {
        const TCodeAddress block = OutOfMemory ? 0 : FSpace.VirtualAlloc(size, type, protection);
        Log("alloc " + std::to_string(size) + " " + Hex(type) + " " + Hex(protection));
        return block;
    }
    bool VirtualFree(TCodeAddress address, std::uint32_t type) override {
        Log("free " + Hex(address) + " " + Hex(type));
        return FSpace.VirtualFree(address, type);
    }
    void ReadMemory(TCodeAddress address, void* bytes, std::size_t size) override {
        FSpace.ReadMemory(address, bytes, size);
    }
    void WriteMemory(TCodeAddress address, const void* bytes, std::size_t size) override {
        Log("write " + Hex(address) + ": " + ToHex({static_cast<const std::uint8_t*>(bytes), size}));
        FSpace.WriteMemory(address, bytes, size);
    }
    TCodeAddress MakeFunction(TCallKind, unsigned, TNativeBody) override { return 0; }
    void FreeFunction(TCodeAddress) override {}
    std::uintptr_t Call(TCallKind, TCodeAddress, std::span<const std::uintptr_t>) override { return 0; }

 private:
    void Log(const std::string& line) { FLog += line + "\n"; }

    HCodeSpace FSpace;
    std::string FLog;
};

constexpr TCodeAddress Replacement = 0x20000000;

/// "count and code of the trampoline | where the protection was put back | the code and its page's protection
/// in the end" of code that is patched and restored.
std::string PatchAndRestore(TCodeAddress target, std::string_view code) {
    TRecorder recorder(target, code);
    TCodeAddress trampoline = 0;
    std::string text = "no hook";
    if (HookCode(recorder, target, Replacement, trampoline)) {
        const std::string count = recorder.Bytes(trampoline - 1, 1);
        text = recorder.Bytes(trampoline - 1, 6 + std::stoul(count, nullptr, 16));
        recorder.TakeLog();
        EXPECT_TRUE(UnhookCode(recorder, trampoline));
        const std::string log = recorder.TakeLog();
        text += " | " + log.substr(log.rfind("protect ") + 8, 8);
    }
    EXPECT_EQ(trampoline, 0u);
    const std::string after = recorder.Bytes(target, FromHex(code).size());
    return text + " | " + (after == code ? "as before " : after + " ") +
           Hex(recorder.SetProtection(target, PAGE_EXECUTE_READ));
}

}  // namespace

TEST(TestHookCode, WhatIsAskedOfTheService) {
    const TCodeAddress target = 0x10000020;
    TRecorder recorder(target, "55 8B EC 83 EC 10 33 C0");
    TCodeAddress trampoline = 0;
    EXPECT_TRUE(HookCode(recorder, target, Replacement, trampoline));
    EXPECT_EQ(trampoline, 0x10002005u);
    EXPECT_EQ(recorder.TakeLog(),
              "protect 10000020+5 40 was 20\n"
              "alloc 4096 1000 40\n"
              "write 10002000: 20 00 00 10 06 55 8B EC 83 EC 10 E9 16 E0 FF FF\n"
              "write 10000020: E9 DB FF FF 0F\n"
              "protect 10000020+5 20 was 40\n");
    EXPECT_TRUE(UnhookCode(recorder, trampoline));
    EXPECT_EQ(trampoline, 0u);
    EXPECT_EQ(recorder.TakeLog(),
              "protect 10000020+5 40 was 20\n"
              "write 10000020: 55 8B EC 83 EC\n"
              "protect 10000026+5 20 was 40\n"
              "free 10002000 8000\n");
    EXPECT_FALSE(UnhookCode(recorder, trampoline));
    EXPECT_EQ(recorder.TakeLog(), "");
}

TEST(TestHookCode, MovedAndRestoredBytes) {
    const struct {
        TCodeAddress Target;
        const char *Code, *Expected;
    } rows[] = {
        {0x10000025, "8B FF 55 8B EC 90", "05 8B FF 55 8B EC E9 1B E0 FF FF | 1000002A | as before 20"},
        // Relative ones find their aim from the trampoline as well.
        {0x10000020, "55 E8 11 22 33 44 C3", "06 55 E8 2C 02 33 44 E9 16 E0 FF FF | 10000026 | as before 20"},
        {0x10000020, "E9 00 00 00 80", "05 E9 1B E0 FF 7F E9 16 E0 FF FF | 10000025 | as before 20"},
        // Short jumps stay as they are, and what is behind a short function's end moves with it.
        {0x10000020, "74 11 EB F0 6A 01", "06 74 11 EB F0 6A 01 E9 16 E0 FF FF | 10000026 | as before 20"},
        {0x10000020, "B0 01 C3 33 C0", "05 B0 01 C3 33 C0 E9 16 E0 FF FF | 10000025 | as before 20"},
        // The opcode of a conditional jump changes, and is not known again. A call through memory is taken
        // for a relative one; its form changes, and the walk over the restored code loses its step.
        {0x10000020, "0F 84 11 22 33 44",
         "06 0F 9F F1 21 33 44 E9 16 E0 FF FF | 10000026 | 0F 9F F1 21 33 44 20"},
        {0x10000020, "FF 15 11 22 33 44 90 90",
         "06 FF 30 F1 21 33 44 E9 16 E0 FF FF | 10000028 | as before 20"},
        // One through a register has no room for the value that is added, and gives back what never was.
        {0x10000020, "55 8B EC FF D0 33 C0 C3",
         "05 55 8B EC FF EB E9 16 E0 FF FF | 10000025 | 55 8B EC FF D0 53 C0 C3 20"},
        {0x10000020, "90 66 E8 11 22 33 44", "05 90 66 E8 2C 02 E9 16 E0 FF FF | 10000025 | as before 20"},
        // Where the moved instructions end with the page, or behind it, it stays writable.
        {0x10000FFB, "55 8B EC 33 C0 C3", "05 55 8B EC 33 C0 E9 F1 EF FF FF | 10001000 | as before 40"},
        {0x10000FFB, "55 8B EC 83 EC 10", "06 55 8B EC 83 EC 10 E9 F1 EF FF FF | 10001001 | as before 40"},
        {0x10000FFB, "55 8B EC 33 C0", "05 55 8B EC 33 C0 E9 F1 EF FF FF | 10001000 | as before 40"},
        // Five bytes must be there, and their instructions whole.
        {0x10000FFA, "55 8B EC 81 EC 10", "no hook | as before 20"},
        {0x10000FFC, "55 8B EC 90", "no hook | as before 20"},
        {0x10000020, "66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 90", "no hook | as before 20"},
    };
    for (const auto& row : rows) EXPECT_EQ(PatchAndRestore(row.Target, row.Code), row.Expected) << row.Code;
}

TEST(TestHookCode, WhatIsNotThere) {
    const char* const code = "55 8B EC 83 EC 10";
    TRecorder recorder(0x10000020, code);
    TCodeAddress trampoline = 0;
    EXPECT_FALSE(HookCode(recorder, 0, Replacement, trampoline));
    EXPECT_FALSE(HookCode(recorder, 0xFFFFFFFE, Replacement, trampoline));
    EXPECT_EQ(recorder.TakeLog(), "protect 0+5 40 fails\nprotect FFFFFFFE+5 40 fails\n");

    // Without memory the first write is to address 0.
    recorder.OutOfMemory = true;
    EXPECT_THROW(HookCode(recorder, 0x10000020, Replacement, trampoline), EAccessViolation);
    EXPECT_EQ(recorder.TakeLog(),
              "protect 10000020+5 40 was 20\nalloc 4096 1000 40\n"
              "write 0: 20 00 00 10 06 55 8B EC 83 EC 10 E9 16 00 00 10\n"
              "protect 10000020+5 20 was 40\n");
    EXPECT_EQ(recorder.Bytes(0x10000020, 6), code);
    EXPECT_EQ(trampoline, 0u);

    // A trampoline that was freed, and one whose function has gone.
    recorder.OutOfMemory = false;
    for (const TCodeAddress gone : {TRecorder::Block, TRecorder::Page}) {
        EXPECT_TRUE(HookCode(recorder, 0x10000020, Replacement, trampoline));
        const TCodeAddress kept = trampoline;
        recorder.VirtualFree(gone == TRecorder::Page ? gone : kept - 5, MEM_RELEASE);
        EXPECT_FALSE(UnhookCode(recorder, trampoline));
        EXPECT_EQ(trampoline, kept);
    }
}

TEST(TestHookCode, StubsAreFollowed) {
    const struct {
        bool NtFamily;
        TCodeAddress Address;
        const char* Code;
        TCodeAddress Expected;
    } rows[] = {
        {true, 0, "", 0},
        {true, 0x10000020, "55 8B EC 83 EC 10", 0x10000020},
        {true, 0x10000020, "FF 25 28 00 00 10 90 90 44 33 22 11", 0x11223344},
        {true, 0x10000020, "FF 15 28 00 00 10 90 90 44 33 22 11", 0x10000020},
        {true, 0x10000020, "FF 25 00 00 00 66 90 90", 0x10000020},  // through memory that is not there
        {true, 0x66000000, "", 0x66000000},
        {true, 0x10000FFE, "FF 25", 0x10000FFE},
        // A thunk of the old family, to a function or to a stub of its own.
        {false, 0x10000020, "68 44 33 22 11 E9 00 00 00 00", 0x11223344},
        {true, 0x10000020, "68 44 33 22 11 E9 00 00 00 00", 0x10000020},
        {false, 0x10000020, "68 44 33 22 11 EB 00", 0x10000020},
        {false, 0x10000020, "68 2A 00 00 10 E9 00 00 00 00 FF 25 30 00 00 10 88 77 66 55", 0x55667788},
        {false, 0x10000020, "FF 25 28 00 00 10 90 90 44 33 22 11", 0x11223344},
    };
    for (const auto& row : rows) {
        TRecorder recorder(*row.Code ? row.Address : TRecorder::Page, row.Code);
        recorder.NtFamily = row.NtFamily;
        EXPECT_EQ(ResolveCodeAddress(recorder, row.Address), row.Expected) << row.NtFamily << " " << row.Code;
        EXPECT_EQ(recorder.TakeLog(), "");
    }
}

}  // namespace rux::test
