// Patching code: what is asked of the code service, and the bytes that result.
#include <gtest/gtest.h>

#include "CodeSupport.h"
#include "Engine/Hooks/SolviHookUtils.h"
#include "platform/headless/code/HCodeSpace.h"
#include "rtl/Exceptions.h"

namespace rux::test {

namespace {

/// Numbers and words, with a blank behind each.
template <class... TValue>
std::string Hex(TValue... values) {
    std::ostringstream text;
    text << std::hex << std::uppercase;
    ((text << values << ' '), ...);
    return text.str();
}

constexpr TCodeAddress Page = 0x10000000, NextPage = 0x10001000, Start = Page + 0x20;

/// Memory with code, and a line for every change that is asked for and every answer.
class TRecorder final : public TCodeService {
 public:
    /// The page behind the code's first is there when the code reaches it.
    TRecorder(TCodeAddress address, std::string_view hex) {
        for (int i = 0; i < 2; ++i) FSpace.VirtualAlloc(4096, MEM_COMMIT, PAGE_EXECUTE_READWRITE);
        const std::vector<std::uint8_t> bytes = FromHex(hex);
        FSpace.WriteMemory(address, bytes.data(), bytes.size());
        for (const TCodeAddress page : {Page, NextPage}) SetProtection(page, PAGE_EXECUTE_READ);
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
    bool Hook(TCodeAddress target) {
        const bool done = HookCode(*this, target, 0x20000000, Trampoline);
        Log(done ? "hooked" : "not hooked", Trampoline);
        return done;
    }
    void Unhook() {
        const bool done = UnhookCode(*this, Trampoline);
        Log(done ? "unhooked" : "not unhooked", Trampoline);
    }
    std::string TakeLog() { return std::exchange(FLog, {}); }

    bool NtFamily = true, OutOfMemory = false;
    TCodeAddress Trampoline = 0;

    bool IsNtFamily() override { return NtFamily; }
    TCodeAddress GetProcAddress(const std::string&, const std::string&) override { return 0; }
    TCodeAddress MakeFunction(TCallKind, unsigned, TNativeBody) override { return 0; }
    void FreeFunction(TCodeAddress, TCodeAddress) override {}
    std::uintptr_t Call(TCallKind, TCodeAddress, std::span<const std::uintptr_t>) override { return 0; }
    bool VirtualProtect(TCodeAddress address, std::size_t size, std::uint32_t protection,
                        std::uint32_t& old) override {
        const bool done = FSpace.VirtualProtect(address, size, protection, old);
        Log("protect", address, size, protection, done ? old : 0);
        return done;
    }
    TCodeAddress VirtualAlloc(std::size_t size, std::uint32_t type, std::uint32_t protection) override {
        Log("alloc", size, type, protection);
        return OutOfMemory ? 0 : FSpace.VirtualAlloc(size, type, protection);
    }
    bool VirtualFree(TCodeAddress address, std::uint32_t type) override {
        Log("free", address, type);
        return FSpace.VirtualFree(address, type);
    }
    void ReadMemory(TCodeAddress address, void* bytes, std::size_t size) override {
        FSpace.ReadMemory(address, bytes, size);
    }
    void WriteMemory(TCodeAddress address, const void* bytes, std::size_t size) override {
        Log("write", address, ToHex({static_cast<const std::uint8_t*>(bytes), size}));
        FSpace.WriteMemory(address, bytes, size);
    }

 private:
    template <class... TValue>
    void Log(const char* what, TValue... values) {
        FLog += Hex(what, values...) + "| ";
    }

    HCodeSpace FSpace;
    std::string FLog;
};

/// "count and code of the trampoline | where the protection was put back | the code and its page's protection
/// in the end" of code that is patched and restored.
std::string PatchAndRestore(TCodeAddress target, std::string_view code) {
    TRecorder recorder(target, code);
    std::string text = "no hook ";
    if (recorder.Hook(target)) {
        const std::string count = recorder.Bytes(recorder.Trampoline - 1, 1);
        text = recorder.Bytes(recorder.Trampoline - 1, 6 + std::stoul(count, nullptr, 16));
        recorder.Unhook();
        const std::string log = recorder.TakeLog();
        text += " | " + log.substr(log.rfind("protect ") + 8, 9);
    }
    EXPECT_EQ(recorder.Trampoline, 0u);
    const std::string after = recorder.Bytes(target, FromHex(code).size());
    return text + "| " + (after == code ? "same " : after + " ") +
           Hex(recorder.SetProtection(target, PAGE_EXECUTE_READ));
}

}  // namespace

TEST(TestHookCode, WhatIsAskedOfTheService) {
    const char* const bytes = "55 8B EC 83 EC 10 33 C0";
    TRecorder code(Start, bytes);
    for (const TCodeAddress nothing : {0u, 0xFFFFFFFEu}) code.Hook(nothing);
    code.OutOfMemory = true;
    EXPECT_THROW(code.Hook(Start), EAccessViolation);
    EXPECT_EQ(code.Bytes(Start, 8) + Hex(code.Trampoline), std::string(bytes) + "0 ");
    code.OutOfMemory = false;
    code.Hook(Start);
    for (int i = 0; i < 2; ++i) code.Unhook();
    EXPECT_EQ(code.TakeLog(),
              "protect 0 5 40 0 | not hooked 0 | protect FFFFFFFE 5 40 0 | not hooked 0 | "
              "protect 10000020 5 40 20 | alloc 1000 1000 40 | "
              "write 0 20 00 00 10 06 55 8B EC 83 EC 10 E9 16 00 00 10 | protect 10000020 5 20 40 | "
              "protect 10000020 5 40 20 | alloc 1000 1000 40 | "
              "write 10002000 20 00 00 10 06 55 8B EC 83 EC 10 E9 16 E0 FF FF | "
              "write 10000020 E9 DB FF FF 0F | protect 10000020 5 20 40 | hooked 10002005 | "
              "protect 10000020 5 40 20 | write 10000020 55 8B EC 83 EC | protect 10000026 5 20 40 | "
              "free 10002000 8000 | unhooked 0 | not unhooked 0 | ");
    // A trampoline that was freed, and one whose function has gone.
    for (const std::string first : {"", "protect 10000020 5 40 0 | "}) {
        ASSERT_TRUE(code.Hook(Start));
        const TCodeAddress kept = code.Trampoline;
        code.VirtualFree(first.empty() ? kept - 5 : Page, MEM_RELEASE);
        code.TakeLog();
        code.Unhook();
        EXPECT_EQ(code.TakeLog(), first + "not unhooked " + Hex(kept) + "| ");
    }
}

TEST(TestHookCode, MovedAndRestoredBytes) {
    const struct {
        TCodeAddress Target;
        const char *Code, *Expected;
    } rows[] = {
        {0x10000025, "8B FF 55 8B EC 90", "05 8B FF 55 8B EC E9 1B E0 FF FF | 1000002A | same 20 "},
        // Relative ones find their aim from the trampoline as well.
        {Start, "55 E8 11 22 33 44 C3", "06 55 E8 2C 02 33 44 E9 16 E0 FF FF | 10000026 | same 20 "},
        {Start, "E9 00 00 00 80", "05 E9 1B E0 FF 7F E9 16 E0 FF FF | 10000025 | same 20 "},
        // Short jumps stay as they are, and what is behind a short function's end moves with it.
        {Start, "74 11 EB F0 6A 01", "06 74 11 EB F0 6A 01 E9 16 E0 FF FF | 10000026 | same 20 "},
        {Start, "B0 01 C3 33 C0", "05 B0 01 C3 33 C0 E9 16 E0 FF FF | 10000025 | same 20 "},
        // The opcode of a conditional jump changes, and is not known again. A call through memory is taken
        // for a relative one; its form changes, and the walk over the restored code loses its step.
        {Start, "0F 84 11 22 33 44",
         "06 0F 9F F1 21 33 44 E9 16 E0 FF FF | 10000026 | 0F 9F F1 21 33 44 20 "},
        {Start, "FF 15 11 22 33 44 90 90", "06 FF 30 F1 21 33 44 E9 16 E0 FF FF | 10000028 | same 20 "},
        // One through a register has no room for the value that is added, and gives back what never was.
        {Start, "55 8B EC FF D0 33 C0 C3",
         "05 55 8B EC FF EB E9 16 E0 FF FF | 10000025 | 55 8B EC FF D0 53 C0 C3 20 "},
        {Start, "90 66 E8 11 22 33 44", "05 90 66 E8 2C 02 E9 16 E0 FF FF | 10000025 | same 20 "},
        // Where the moved instructions end with the page, or behind it, it stays writable.
        {0x10000FFB, "55 8B EC 33 C0 C3", "05 55 8B EC 33 C0 E9 F1 EF FF FF | 10001000 | same 40 "},
        {0x10000FFB, "55 8B EC 83 EC 10", "06 55 8B EC 83 EC 10 E9 F1 EF FF FF | 10001001 | same 40 "},
        {0x10000FFB, "55 8B EC 33 C0", "05 55 8B EC 33 C0 E9 F1 EF FF FF | 10001000 | same 40 "},
        // Five bytes must be there, and their instructions whole.
        {0x10000FFA, "55 8B EC 81 EC 10", "no hook | same 20 "},
        {0x10000FFC, "55 8B EC 90", "no hook | same 20 "},
        {Start, "66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 90", "no hook | same 20 "},
    };
    for (const auto& row : rows) EXPECT_EQ(PatchAndRestore(row.Target, row.Code), row.Expected) << row.Code;
}

TEST(TestHookCode, StubsAreFollowed) {
    const struct {
        TCodeAddress Address;
        const char* Code;
        TCodeAddress Expected, ExpectedBeforeNt;
    } rows[] = {
        {0, "", 0, 0},
        {Start, "55 8B EC 83 EC 10", Start, Start},
        {Start, "FF 25 28 00 00 10 90 90 44 33 22 11", 0x11223344, 0x11223344},
        {Start, "FF 15 28 00 00 10 90 90 44 33 22 11", Start, Start},
        // Through memory that is not there; code that is not there, or not whole.
        {Start, "FF 25 00 00 00 66 90 90", Start, Start},
        {0x66000000, "", 0x66000000, 0x66000000},
        {0x10000FFE, "FF 25", 0x10000FFE, 0x10000FFE},
        // A thunk of the old family, to a function or to a stub of its own.
        {Start, "68 44 33 22 11 E9 00 00 00 00", Start, 0x11223344},
        {Start, "68 44 33 22 11 EB 00", Start, Start},
        {Start, "68 2A 00 00 10 E9 00 00 00 00 FF 25 30 00 00 10 88 77 66 55", Start, 0x55667788},
    };
    for (const auto& row : rows) {
        TRecorder code(*row.Code ? row.Address : Page, row.Code);
        EXPECT_EQ(ResolveCodeAddress(code, row.Address), row.Expected) << row.Code;
        code.NtFamily = false;
        EXPECT_EQ(ResolveCodeAddress(code, row.Address), row.ExpectedBeforeNt) << row.Code;
        EXPECT_EQ(code.TakeLog(), "");
    }
}

}  // namespace rux::test
