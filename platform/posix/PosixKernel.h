// The kernel service on Linux.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/KernelService.h"
#include "platform/posix/NamedObjects.h"
#include "platform/posix/PosixLimits.h"
#include "platform/posix/PosixThreads.h"
#include "platform/posix/WaitClock.h"

namespace rux {

/// What the host tells about itself. Names of modules are in the code page, with backslashes.
struct TKernelFacts {
    std::string ModuleName = {};
    std::string LibraryName = {};
    /// Modules that count as loaded: an application on the headless desktop stands for one with the packages
    /// of the toolkit.
    std::vector<std::string> Modules = {"vcl100.bpl"};
    bool HasOwnRunTime = false;
    std::size_t ThreadStackSize = WorkerStackSize;
    /// Folder of the named objects, as the system spells it; empty for the one that all processes share.
    std::string ObjectFolder = {};
    bool DebugToStandardError = false;
    /// Gets every debug text, from any thread.
    std::function<void(const std::string&)> DebugSink = {};
};

class TPosixKernel : public TKernelService {
 public:
    TPosixKernel(TWaitClock& clock, TKernelFacts facts);

    std::unique_ptr<TEvent> CreateEventA() override;
    std::unique_ptr<TThreadHandle> StartThread(std::function<void()> body) override;
    void KeepOutNewThreads() override {}
    void Sleep(std::uint32_t milliseconds) override;
    std::uint32_t GetCurrentProcessId() override;
    std::uintptr_t GetCurrentThreadId() override;
    std::uint32_t GetLastError() override;
    bool OpenMutexA(const std::string& name) override { return FObjects.OpenMutex(name); }
    bool CreateMutexA(const std::string& name) override { return FObjects.CreateMutex(name); }
    std::optional<std::string> ReadFileMapping(const std::string& name, std::size_t size) override {
        return FObjects.ReadMapping(name, size);
    }
    std::string GetModuleName() override { return FFacts.ModuleName; }
    std::string GetLibraryName() override { return FFacts.LibraryName; }
    bool HasModule(const std::string& name) override;
    bool HasOwnRunTime() override { return FFacts.HasOwnRunTime; }
    std::optional<std::uint64_t> GetPagefileUsage() override;
    void OutputDebugStringA(const std::string& text) override;
    /// Nobody may be there to close a box: the text goes to the standard error output.
    void MessageBoxA(const std::string& text, const std::string& title) override;
    [[noreturn]] void ExitProcess(unsigned code) override;

    /// For the platform's end: waits until every thread started here has ended.
    void WaitForAllThreads() { FThreads.WaitForAll(); }
    TNamedObjects& NamedObjects() { return FObjects; }

 private:
    TWaitClock& FClock;
    const TKernelFacts FFacts;
    /// Asked for each window of a search, and no small matter for the system to tell.
    const std::uint32_t FProcessId;
    TPosixThreads FThreads;
    TNamedObjects FObjects;
    TFileDescriptor FMemoryFigures;
};

}  // namespace rux
