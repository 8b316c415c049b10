// What the controller hands over in its mapping, read and used in a real process.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

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

std::uint32_t AddressOf(const void* place) {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(place));
}

class TMapping {
 public:
    explicit TMapping(const std::vector<std::uint32_t>& values) {
        const auto size = static_cast<DWORD>(values.size() * sizeof values[0]);
        const std::string name =
            "RUX.{09491275-8671-4C09-9404-76E78D4AF883}." + std::to_string(::GetCurrentProcessId());
        FHandle = ::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, size, name.c_str());
        void* view = ::MapViewOfFile(FHandle, FILE_MAP_WRITE, 0, 0, 0);
        std::memcpy(view, values.data(), size);
        ::UnmapViewOfFile(view);
    }
    TMapping(const TMapping&) = delete;
    TMapping& operator=(const TMapping&) = delete;
    ~TMapping() { ::CloseHandle(FHandle); }

 private:
    HANDLE FHandle;
};

}  // namespace

TEST(Parameters, ResolveEntry) {
    TWin32Platform services;
    TPlatform platform = services.Platform();
    TEngineState state(platform);
    const std::uint32_t real = AddressOf(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("kernel32.dll"), "GetTickCount")));
    const std::uint32_t own = AddressOf(reinterpret_cast<const void*>(&Resolve));
    // Values, what is resolved, what was asked.
    struct TRow {
        const char* Name;
        std::vector<std::uint32_t> Values;
        std::uint32_t First, Second, Entry, Resolved;
        const char* Asked;
    };
    const TRow rows[] = {
        {"absent", {}, 0, 0, 0, real, ""},
        {"present", {1, 2, own}, 1, 2, own, 0x12345678, "kernel32.dll!GetTickCount"},
        {"none", {3, 4, 0}, 3, 4, 0, real, ""},
        {"larger", {5, 6, own, 7, 8}, 5, 6, own, 0x12345678, "kernel32.dll!GetTickCount"},
        // The system gives whole pages, and what was not asked for holds zeros.
        {"too small", {9, 10}, 9, 10, 0, real, ""},
    };
    for (const TRow& row : rows) {
        SCOPED_TRACE(row.Name);
        Asked.clear();
        auto mapping = row.Values.empty() ? nullptr : std::make_unique<TMapping>(row.Values);
        const TRUXEngineService service;
        // It was copied: that it vanishes changes nothing.
        mapping.reset();
        EXPECT_EQ(service.FirstValue(), row.First);
        EXPECT_EQ(service.SecondValue(), row.Second);
        EXPECT_EQ(service.ResolveEntry(), row.Entry);
        EXPECT_EQ(service.ResolveProc("kernel32.dll", "GetTickCount"), row.Resolved);
        EXPECT_EQ(Asked, row.Asked);
        EXPECT_EQ(TRUXEngineService().ResolveEntry(), 0u);
    }
    const TMapping nonsense({0, 0, 0x10});
    EXPECT_THROW(TRUXEngineService().ResolveProc("kernel32.dll", "GetTickCount"), EAccessViolation);
}

}  // namespace rux::test
