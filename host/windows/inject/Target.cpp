#include "host/windows/inject/Target.h"

#include <cstring>
#include <stdexcept>
#include <utility>

namespace rux {

namespace {

/// Milliseconds.
constexpr DWORD StartLimit = 10000;

constexpr unsigned Patience = 30000, Step = 20;

[[noreturn]] void Fail(const std::string& what) {
    throw std::runtime_error(what + " (error " + std::to_string(GetLastError()) + ")");
}

struct TSearch {
    DWORD Process;
    const std::string& ClassName;
    HWND Found = nullptr;
};

BOOL CALLBACK LookAt(HWND window, LPARAM param) noexcept {
    auto& search = *reinterpret_cast<TSearch*>(param);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    char name[256] = "";
    if (process != search.Process || !IsWindowVisible(window) || !GetClassNameA(window, name, sizeof name))
        return TRUE;
    if (search.ClassName == name) search.Found = window;
    return search.Found == nullptr;
}

}  // namespace

TTarget TTarget::Start(const std::string& commandLine) {
    STARTUPINFOA how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION started;
    std::string line = commandLine;
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &started))
        Fail("cannot start " + commandLine);
    CloseHandle(started.hThread);
    // Before it waits for input it has no windows, and not all of its own modules.
    WaitForInputIdle(started.hProcess, StartLimit);
    return {started.hProcess, started.dwProcessId};
}

TTarget TTarget::Open(DWORD process) {
    const HANDLE handle = OpenProcess(PROCESS_ALL_ACCESS, FALSE, process);
    if (!handle) Fail("no process " + std::to_string(process));
    return {handle, process};
}

TTarget::TTarget(TTarget&& other) noexcept
    : FProcess(std::exchange(other.FProcess, nullptr)), FId(other.FId) {}

TTarget::~TTarget() {
    if (FProcess) CloseHandle(FProcess);
}

HWND TTarget::FindWindow(const std::string& className) const {
    TSearch search{FId, className};
    EnumWindows(&LookAt, reinterpret_cast<LPARAM>(&search));
    return search.Found;
}

HWND TTarget::AwaitWindow(const std::string& className) const {
    for (unsigned waited = 0; waited < Patience && !Ended(); waited += Step) {
        if (const HWND window = FindWindow(className)) return window;
        Sleep(Step);
    }
    throw std::runtime_error("no window of the class " + className);
}

DWORD TTarget::Load(const std::string& library) const {
    const std::size_t size = library.size() + 1;
    void* name = VirtualAllocEx(FProcess, nullptr, size, MEM_COMMIT, PAGE_READWRITE);
    if (!name || !WriteProcessMemory(FProcess, name, library.c_str(), size, nullptr))
        Fail("cannot write into the process");
    // The same address in every process.
    const FARPROC load = GetProcAddress(GetModuleHandleA("kernel32.dll"), "LoadLibraryA");
    const auto entry = reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<std::uintptr_t>(load));
    const HANDLE thread = CreateRemoteThread(FProcess, nullptr, 0, entry, name, 0, nullptr);
    if (!thread) Fail("cannot make a thread in the process");
    WaitForSingleObject(thread, INFINITE);
    DWORD code = 0;
    GetExitCodeThread(thread, &code);
    CloseHandle(thread);
    VirtualFreeEx(FProcess, name, 0, MEM_RELEASE);
    return code;
}

DWORD TTarget::WaitForEnd() const {
    WaitForSingleObject(FProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(FProcess, &code);
    return code;
}

TParameters::TParameters(DWORD process, const std::uint32_t (&values)[3]) {
    const std::string name = "RUX.{09491275-8671-4C09-9404-76E78D4AF883}." + std::to_string(process);
    FMapping =
        CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof values, name.c_str());
    void* view = FMapping ? MapViewOfFile(FMapping, FILE_MAP_WRITE, 0, 0, sizeof values) : nullptr;
    if (!view) Fail("cannot make the parameters");
    std::memcpy(view, values, sizeof values);
    UnmapViewOfFile(view);
}

TParameters::~TParameters() {
    CloseHandle(FMapping);
}

}  // namespace rux
