// The kernel service on Windows.
#pragma once

#include <string>

#include "platform/KernelService.h"
#include "platform/win32/Win32Threads.h"

namespace rux {

/// Made while nobody waits for a thread under the loader's lock. Of its calls only HasModule takes that lock;
/// threads of the library do not call it.
class TWin32Kernel : public TKernelService {
 public:
    TWin32Kernel();

    std::unique_ptr<TEvent> CreateEventA() override;
    std::unique_ptr<TThreadHandle> StartThread(std::function<void()> body) override;
    void KeepOutNewThreads() override { FThreads.KeepOutNew(); }
    void Sleep(std::uint32_t milliseconds) override;
    std::uint32_t GetCurrentProcessId() override;
    std::uintptr_t GetCurrentThreadId() override;
    std::uint32_t GetLastError() override;
    bool OpenMutexA(const std::string& name) override;
    bool CreateMutexA(const std::string& name) override;
    std::optional<std::string> ReadFileMapping(const std::string& name, std::size_t size) override;
    std::string GetModuleName() override { return FModuleName; }
    std::string GetLibraryName() override { return FLibraryName; }
    bool HasModule(const std::string& name) override;
    /// Always False: the library carries a run-time library of its own that shares no class with the host,
    /// whatever packages that was built with. The host's toolkit is reached through a table of its own and
    /// not through shared classes, so nothing can go wrong that this question would have to prevent.
    bool HasOwnRunTime() override { return false; }
    std::optional<std::uint64_t> GetPagefileUsage() override;
    void OutputDebugStringA(const std::string& text) override;
    void MessageBoxA(const std::string& text, const std::string& title) override;
    [[noreturn]] void ExitProcess(unsigned code) override;

    /// For the library's end: see TWin32Threads::WaitForAll.
    void WaitForAllThreads() { FThreads.WaitForAll(); }

 private:
    /// To ask for a module's name takes the loader's lock.
    const std::string FModuleName;
    const std::string FLibraryName;
    TWin32Threads FThreads;
};

}  // namespace rux
