#include "platform/win32/Win32Kernel.h"

#include "platform/win32/Headers.h"
#include "platform/win32/Win32Handle.h"
#include "platform/win32/Win32NamedObjects.h"
#include "rtl/Exceptions.h"

namespace rux {
namespace {

/// The longest name that the system gives.
constexpr std::size_t LongestModuleName = 32768;

class TWin32Event final : public TEvent {
 public:
    explicit TWin32Event(TWin32Handle event) : FEvent(std::move(event)) {}
    /// Touches nothing of the object once the event is set.
    void SetEvent() override { ::SetEvent(FEvent.Get()); }
    TWaitResult WaitFor(std::uint32_t milliseconds) override { return FEvent.WaitFor(milliseconds); }

 private:
    const TWin32Handle FEvent;
};

/// The whole name however long; the system cuts what does not fit, and does not say so everywhere.
std::string ModuleFileName(HMODULE module) {
    std::string name(MAX_PATH, '\0');
    while (true) {
        const DWORD length = ::GetModuleFileNameA(module, name.data(), static_cast<DWORD>(name.size()));
        if (length < name.size() || name.size() >= LongestModuleName) {
            name.resize(length);
            return name;
        }
        name.resize(name.size() * 2);
    }
}

/// The module that holds this code.
HMODULE OwnModule() {
    constexpr DWORD flags =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE module = nullptr;
    ::GetModuleHandleExA(flags, reinterpret_cast<LPCSTR>(&OwnModule), &module);
    return module;
}

}  // namespace

TWin32Kernel::TWin32Kernel()
    : FModuleName(ModuleFileName(nullptr)), FLibraryName(ModuleFileName(OwnModule())) {}

std::unique_ptr<TEvent> TWin32Kernel::CreateEventA() {
    TWin32Handle event(::CreateEventA(nullptr, FALSE, FALSE, nullptr));
    if (!event) throw EOSError("System Error.  Code: " + std::to_string(::GetLastError()) + ".");
    return std::make_unique<TWin32Event>(std::move(event));
}

std::unique_ptr<TThreadHandle> TWin32Kernel::StartThread(std::function<void()> body) {
    return FThreads.Start(std::move(body));
}

void TWin32Kernel::Sleep(std::uint32_t milliseconds) {
    ::Sleep(milliseconds);
}

std::uint32_t TWin32Kernel::GetCurrentProcessId() {
    return ::GetCurrentProcessId();
}

std::uintptr_t TWin32Kernel::GetCurrentThreadId() {
    return ::GetCurrentThreadId();
}

std::uint32_t TWin32Kernel::GetLastError() {
    return ::GetLastError();
}

bool TWin32Kernel::OpenMutexA(const std::string& name) {
    return OpenNamedMutex(name);
}

bool TWin32Kernel::CreateMutexA(const std::string& name) {
    return CreateNamedMutex(name);
}

std::optional<std::string> TWin32Kernel::ReadFileMapping(const std::string& name, std::size_t size) {
    return ReadNamedMapping(name, size);
}

bool TWin32Kernel::HasModule(const std::string& name) {
    return ::GetModuleHandleA(name.c_str()) != nullptr;
}

std::optional<std::uint64_t> TWin32Kernel::GetPagefileUsage() {
    PROCESS_MEMORY_COUNTERS counters{};
    if (!::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters)) return std::nullopt;
    return counters.PagefileUsage;
}

void TWin32Kernel::OutputDebugStringA(const std::string& text) {
    ::OutputDebugStringA(text.c_str());
}

void TWin32Kernel::MessageBoxA(const std::string& text, const std::string& title) {
    ::MessageBoxA(nullptr, text.c_str(), title.c_str(), MB_OK);
}

void TWin32Kernel::ExitProcess(unsigned code) {
    ::ExitProcess(code);
}

}  // namespace rux
