// Code of the process, as every platform has it: memory, functions, an export that is patched.
#include <mutex>

#include "Engine/Hooks/RUXPatchedExport.h"
#include "WindowContract.h"

namespace rux::test {

using TValues = std::span<const std::uintptr_t>;

constexpr std::size_t PageSize = 4096;

TEST_P(WindowContract, ExportsByName) {
    const TCodeAddress show = Code.GetProcAddress("user32.dll", "ShowWindow");
    EXPECT_NE(show, 0u);
    EXPECT_EQ(Code.GetProcAddress("USER32.Dll", "ShowWindow"), show);
    EXPECT_EQ(Code.GetProcAddress("user32", "ShowWindow"), show);
    EXPECT_NE(Code.GetProcAddress("user32.dll", "PrintWindow"), show);
    constexpr const char* none[][2] = {
        {"user32.dll", "showwindow"}, {"user32.dll", ""}, {"", "ShowWindow"}, {"nowhere.dll", "ShowWindow"}};
    for (const auto& [module, name] : none)
        EXPECT_EQ(Code.GetProcAddress(module, name), 0u) << module << name;
    EXPECT_TRUE(Code.IsNtFamily());
}

TEST_P(WindowContract, MemoryAndItsProtection) {
    const TCodeAddress block = Code.VirtualAlloc(PageSize + 1, MEM_COMMIT, PAGE_READWRITE);
    ASSERT_NE(block, 0u);
    const TCodeAddress second = block + PageSize, end = second + PageSize;
    const std::uint32_t value = 0x11223344;
    std::uint32_t read = 0, old = 0;
    Code.WriteMemory(second - 2, &value, 4);
    ASSERT_TRUE(Code.VirtualProtect(end - 1, 1, PAGE_EXECUTE_READ, old));
    EXPECT_EQ(old, PAGE_READWRITE);
    // Nothing is written of what would go half into protected memory, or beyond its end.
    const std::uint32_t other = 0x55667788;
    EXPECT_THROW(Code.WriteMemory(second - 2, &other, 4), EAccessViolation);
    EXPECT_THROW(Code.WriteMemory(end - 2, &other, 4), EAccessViolation);
    EXPECT_THROW(Code.ReadMemory(end - 2, &read, 4), EAccessViolation);
    Code.ReadMemory(second - 2, &read, 4);
    EXPECT_EQ(read, value);
    // Nor is anything changed where one of the pages does not exist.
    for (const auto& [address, size] :
         {std::pair{block, 2 * PageSize + 1}, {end, std::size_t{1}}, {block, std::size_t{0}}})
        EXPECT_FALSE(Code.VirtualProtect(address, size, PAGE_EXECUTE_READWRITE, old)) << size;
    EXPECT_TRUE(Code.VirtualProtect(second - 1, 2, PAGE_EXECUTE_READWRITE, old));
    EXPECT_EQ(old, PAGE_READWRITE);
    EXPECT_TRUE(Code.VirtualProtect(block, 2 * PageSize, PAGE_EXECUTE_READ, old));
    EXPECT_EQ(old, PAGE_EXECUTE_READWRITE);
    EXPECT_THROW(Code.WriteMemory(block, &other, 1), EAccessViolation);
    Code.WriteMemory(0, &other, 0);
    EXPECT_FALSE(Code.VirtualFree(second, MEM_RELEASE));
    EXPECT_TRUE(Code.VirtualFree(block, MEM_RELEASE));
    EXPECT_FALSE(Code.VirtualFree(block, MEM_RELEASE) || Code.VirtualProtect(block, 1, PAGE_READWRITE, old));
    for (const TCodeAddress nothing : {TCodeAddress{0}, block, TCodeAddress{0xFFFFFFFE}}) {
        EXPECT_THROW(Code.ReadMemory(nothing, &read, 4), EAccessViolation) << nothing;
        EXPECT_THROW(Code.WriteMemory(nothing, &read, 4), EAccessViolation) << nothing;
        EXPECT_THROW(Code.Call(TCallKind::StdCall, nothing, {}), EAccessViolation) << nothing;
    }
    EXPECT_EQ(Code.VirtualAlloc(0xF0000000, MEM_COMMIT, PAGE_READWRITE), 0u);
    const TCodeAddress data = Code.VirtualAlloc(1, MEM_COMMIT, PAGE_READWRITE);
    EXPECT_THROW(Code.Call(TCallKind::StdCall, data, {}), EAccessViolation);
    EXPECT_TRUE(Code.VirtualFree(data, MEM_RELEASE));
}

TEST_P(WindowContract, FunctionsAndTheirArguments) {
    for (const TCallKind kind : {TCallKind::StdCall, TCallKind::Register})
        for (unsigned count = 0; count <= 6; ++count) {
            const TCodeAddress function = Code.MakeFunction(kind, count, [](TValues values) {
                std::uintptr_t digits = 7;
                for (const std::uintptr_t value : values) digits = digits * 10 + value;
                return digits;
            });
            const std::uintptr_t values[] = {1, 2, 3, 4, 5, 6};
            std::uintptr_t expected = 7;
            for (unsigned i = 0; i < count; ++i) expected = expected * 10 + values[i];
            for (int i = 0; i < 100; ++i) ASSERT_EQ(Code.Call(kind, function, {values, count}), expected);
            Code.FreeFunction(function);
        }
    // No error crosses one, and those around it go on.
    const TCodeAddress fails =
        Code.MakeFunction(TCallKind::Register, 1, [](TValues values) -> std::uintptr_t {
            if (values[0] == 1) throw EConvertError("bad");
            throw 5;
        });
    const TCodeAddress outer = Code.MakeFunction(TCallKind::StdCall, 1, [&](TValues values) {
        return 10 + Code.Call(TCallKind::Register, fails, values);
    });
    for (const std::uintptr_t value : {1, 2})
        EXPECT_EQ(Code.Call(TCallKind::StdCall, outer, {&value, 1}), 10u);
    ASSERT_EQ(Stage->Errors.size(), 2u);
    EXPECT_EQ(Stage->Errors.front(), "bad");

    // One that is freed in the middle of a call comes to its end; later calls go on elsewhere, or do nothing.
    const std::uintptr_t value = 1;
    for (const TCodeAddress instead : {outer, TCodeAddress{0}}) {
        TCodeAddress freed = 0;
        const auto kept = std::make_shared<int>(5);
        freed = Code.MakeFunction(TCallKind::StdCall, 1, [&, kept](TValues) {
            Code.FreeFunction(freed, instead);
            return static_cast<std::uintptr_t>(*kept);
        });
        EXPECT_EQ(Code.Call(TCallKind::StdCall, freed, {&value, 1}), 5u);
        EXPECT_EQ(kept.use_count(), 1);
        for (int i = 0; i < 2; ++i)
            EXPECT_EQ(Code.Call(TCallKind::StdCall, freed, {&value, 1}), instead ? 10u : 0u);
    }
    for (const TCodeAddress function : {outer, fails, TCodeAddress{0}}) Code.FreeFunction(function);
}

TEST_P(WindowContract, PatchedShowWindowMeetsEveryCall) {
    std::mutex lock;
    std::vector<HWnd> shown;
    std::atomic<int> calls{0};
    const HWnd window = Make({"Plain", ""});
    const auto patch = std::make_shared<TPatchedExport>(Code, TCallKind::StdCall);
    ASSERT_TRUE(patch->Install("user32.dll", "ShowWindow", 2, [&, patch](TValues arguments) {
        const std::uintptr_t answer = patch->CallOriginal(arguments);
        ++calls;
        const std::lock_guard guard(lock);
        if (arguments[1] != SW_HIDE && (shown.empty() || shown.back() != arguments[0]))
            shown.push_back(arguments[0]);
        return answer;
    }));
    // Every window once that a box or a dialog brings up; how many calls it takes is the system's affair.
    HWnd box = 0;
    const auto close = [&](const std::string& caption) {
        Stage->Later([&, caption] { Windows.PostMessageA(box = DialogOf(caption), WM_CLOSE, 0, 0); });
    };
    close("Box");
    Stage->RunMessageBox("text", "Box", 0, 0);
    std::vector<HWnd> expected{box};
    close("Modal");
    expected.push_back(Stage->ShowDialog("Modal", true));
    EXPECT_EQ(expected.back(), box);
    expected.push_back(Stage->ShowDialog("Modeless", false));
    EXPECT_EQ(shown, expected);
    Stage->Destroy(expected.back());
    // From any thread, with what the real one answers: whether it was visible.
    calls = 0;
    std::uintptr_t answers = 0;
    const std::uintptr_t show[] = {window, SW_SHOWNOACTIVATE}, hide[] = {window, SW_HIDE};
    RunBeside([&] {
        const TCodeAddress entry = Code.GetProcAddress("user32.dll", "ShowWindow");
        for (int i = 0; i < 150; ++i) {
            answers += Code.Call(TCallKind::StdCall, entry, show) ? 100 : 0;
            answers += Code.Call(TCallKind::StdCall, entry, hide) ? 1 : 0;
        }
    });
    EXPECT_EQ(calls, 300);
    EXPECT_EQ(answers, 150u);
    patch->Remove();
    Stage->Show(window, SW_SHOWNOACTIVATE);
    EXPECT_EQ(calls, 300);
    EXPECT_TRUE(Windows.IsWindowVisible(window));
    EXPECT_TRUE(Stage->Errors.empty());
}

}  // namespace rux::test
