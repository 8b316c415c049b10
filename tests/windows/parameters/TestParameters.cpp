// What the controller hands over in its mapping, used in a real process. What is read of mappings of all
// sizes, and what without one, the tests of the kernel and of the task centre tell.
#include <gtest/gtest.h>

#include <cstring>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Start/RUXEngineService.h"
#include "platform/win32/Win32Platform.h"
#include "rtl/Exceptions.h"

#include <windows.h>

namespace rux::test {

namespace {

std::string Asked;

/// As a controller brings it into the process.
std::uintptr_t __stdcall Resolve(const char* module, const char* name) {
    Asked = std::string(module) + "!" + name;
    return 0x12345678;
}

}  // namespace

TEST(Parameters, ResolveEntry) {
    TWin32Platform services;
    TPlatform platform = services.Platform();
    TEngineState state(platform);
    const FARPROC real = ::GetProcAddress(::GetModuleHandleA("kernel32.dll"), "GetTickCount");
    const std::uint32_t own = reinterpret_cast<std::uintptr_t>(&Resolve), nonsense = 0x10;
    const std::string name =
        "RUX.{09491275-8671-4C09-9404-76E78D4AF883}." + std::to_string(::GetCurrentProcessId());
    for (const std::uint32_t entry : {own, 0u, nonsense}) {
        const std::uint32_t values[] = {1, 2, entry, 7};
        const HANDLE mapping = ::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                                    sizeof values, name.c_str());
        void* view = ::MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, 0);
        std::memcpy(view, values, sizeof values);
        ::UnmapViewOfFile(view);
        const TRUXEngineService service;
        // It was copied: that it vanishes changes nothing.
        ::CloseHandle(mapping);
        EXPECT_EQ(service.FirstValue(), 1u);
        EXPECT_EQ(service.SecondValue(), 2u);
        EXPECT_EQ(service.ResolveEntry(), entry);
        const auto resolved = [&] { return service.ResolveProc("kernel32.dll", "GetTickCount"); };
        if (entry == nonsense) {
            EXPECT_THROW(resolved(), EAccessViolation);
        } else {
            EXPECT_EQ(resolved(), entry ? 0x12345678 : reinterpret_cast<std::uintptr_t>(real));
        }
        EXPECT_EQ(std::exchange(Asked, ""), entry == own ? "kernel32.dll!GetTickCount" : "");
    }
    EXPECT_EQ(TRUXEngineService().ResolveEntry(), 0u);
}

}  // namespace rux::test
