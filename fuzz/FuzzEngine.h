// An engine for fuzz targets: the desktop in memory with one form, made once.
#pragma once

#include <cstdlib>
#include <memory>
#include <string>

#include "Engine/Start/RUXRegistration.h"
#include "platform/headless/HeadlessPlatform.h"
#include "platform/headless/forms/FormParser.h"
#include "platform/headless/loader/HFormLoader.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"

namespace rux::fuzz {

/// Files go nowhere: an input may fail a million times, and each failure is logged.
class TNoFiles final : public TFileService {
 public:
    bool FileExists(const std::string&) override { return false; }
    bool DirectoryExists(const std::string&) override { return false; }
    bool ForceDirectories(const std::string&) override { return false; }
    bool DeleteFile(const std::string&) override { return false; }
    bool DeleteTree(const std::string&) override { return false; }
    std::optional<std::string> ReadFile(const std::string&) override { return std::nullopt; }
    bool WriteFile(const std::string&, std::string_view) override { return true; }
    std::int64_t LastWriteTime(const std::string&) override { return 0; }
    std::unique_ptr<TAppendFile> OpenAppend(const std::string&) override { return nullptr; }
    std::vector<TFolderEntry> ReadFolder(const std::string&) override { return {}; }
};

struct TFuzzEngine {
    TFuzzEngine() {
        RegisterEverything(State);
        State.ServerPort = 1;
    }
    static TKernelFacts Facts() {
        SetAnsiCodePage(LoadCodePage(936));
        TellStackLimit();
        TKernelFacts facts;
        facts.ModuleName = "\\fuzz\\app.exe";
        facts.LibraryName = "\\fuzz\\rux.dll";
        return facts;
    }
    TManualClock Clock;
    TPosixKernel Kernel{Clock, Facts()};
    TPosixSockets Sockets{Clock};
    TNoFiles Files;
    THeadlessPlatform Desktop{Kernel, Clock, Sockets, Files};
    TEngineState State{Desktop.Platform()};
};

inline TFuzzEngine& FuzzEngine() {
    static TFuzzEngine engine;
    return engine;
}

/// What a fuzz target does when a property does not hold.
inline void Demand(bool condition) {
    if (!condition) std::abort();
}

}  // namespace rux::fuzz
