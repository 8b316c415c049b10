#include "platform/win32/Win32Replacement.h"

#include <atomic>

#include "platform/shared/ServiceLimits.h"
#include "platform/win32/Headers.h"
#include "platform/win32/Win32FileNames.h"
#include "platform/win32/Win32Handle.h"
#include "rtl/Text.h"

namespace rux {
namespace {

/// Whoever reads the file holds it for moments only.
constexpr int MoveAttempts = 20;
constexpr DWORD MovePause = 10;  // milliseconds

struct TTemporaryFile {
    std::string Name;
    TWin32Handle File;
};

TTemporaryFile MakeTemporaryBeside(const std::string& target) {
    static constinit std::atomic<unsigned> counter{0};
    const std::string stem =
        ExtractFilePath(target) + "~rux-" + std::to_string(::GetCurrentProcessId()) + "-";
    for (int i = 0; i < TemporaryNameAttempts; ++i) {
        std::string name = stem + std::to_string(counter.fetch_add(1));
        TWin32Handle file(::CreateFileA(name.c_str(), GENERIC_WRITE | FILE_WRITE_ATTRIBUTES, 0, nullptr,
                                        CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (file || ::GetLastError() != ERROR_FILE_EXISTS) return {std::move(name), std::move(file)};
    }
    return {};
}

/// The system's time, later each time: its clock stands still between two ticks.
FILETIME NextStamp() {
    static constinit std::atomic<std::uint64_t> latest{0};
    FILETIME now;
    ::GetSystemTimeAsFileTime(&now);
    std::uint64_t stamp = std::uint64_t{now.dwHighDateTime} << 32 | now.dwLowDateTime, before = latest.load();
    do
        if (stamp <= before) stamp = before + 1;
    while (!latest.compare_exchange_weak(before, stamp));
    return {static_cast<DWORD>(stamp), static_cast<DWORD>(stamp >> 32)};
}

bool WriteAndStamp(HANDLE file, std::string_view bytes) {
    DWORD written = 0;
    const auto length = static_cast<DWORD>(bytes.size());
    if (!::WriteFile(file, bytes.data(), length, &written, nullptr) || written != length) return false;
    const FILETIME stamp = NextStamp();
    return ::SetFileTime(file, nullptr, nullptr, &stamp);
}

bool MoveOver(const std::string& from, const std::string& to) {
    for (int i = 0; i < MoveAttempts; ++i) {
        if (::MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING)) return true;
        const DWORD error = ::GetLastError();
        if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) return false;
        if (AttributesOf(to) & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) return false;
        ::Sleep(MovePause);
    }
    return false;
}

}  // namespace

bool ReplaceFileContent(const std::string& name, std::string_view bytes) {
    TTemporaryFile temporary = MakeTemporaryBeside(name);
    if (!temporary.File) return false;
    const bool written = WriteAndStamp(temporary.File.Get(), bytes);
    temporary.File.Close();
    if (written && MoveOver(temporary.Name, name)) return true;
    ::DeleteFileA(temporary.Name.c_str());
    return false;
}

}  // namespace rux
