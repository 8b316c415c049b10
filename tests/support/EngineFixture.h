// An engine over the desktop in memory, without a daemon: everything happens on the test's own thread.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "Engine/Start/RUXRegistration.h"
#include "platform/headless/HeadlessPlatform.h"
#include "platform/headless/forms/FormParser.h"
#include "platform/headless/loader/HFormLoader.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"
#include "platform/posix/SystemNames.h"

namespace rux::test {

/// The kernel of a host that ends itself for good: the end is thrown instead.
class TTestKernel final : public TPosixKernel {
 public:
    using TPosixKernel::TPosixKernel;
    struct TExit {
        unsigned Code;
    };
    std::string Messages;
    bool OwnRunTime = false;
    bool HasToolkit = true;
    bool HasOwnRunTime() override { return OwnRunTime; }
    bool HasModule(const std::string& name) override { return HasToolkit && TPosixKernel::HasModule(name); }
    void MessageBoxA(const std::string& text, const std::string& title) override {
        Messages += title + ": " + text;
    }
    [[noreturn]] void ExitProcess(unsigned code) override { throw TExit{code}; }
};

class TEngineTest : public testing::Test {
 protected:
    TEngineTest() {
        RegisterEverything(Engine);
        Engine.ServerPort = 1;  // the log's folder needs a number
    }
    ~TEngineTest() override { std::filesystem::remove_all(FFolder); }

    /// Loads a form (UTF-8), shows it and answers it.
    HCustomForm& Load(std::string_view text) {
        HFormLoader loader(Kit(), FParents);
        const std::vector<HComponent*> roots =
            loader.Load({ParseFormFile("form", "\xEF\xBB\xBF" + std::string(text))});
        auto& form = dynamic_cast<HCustomForm&>(*roots.at(0));
        form.Show();
        return form;
    }
    HToolkit& Kit() { return Desktop.Toolkit(); }
    std::string Log() {
        const auto bytes = Files.ReadFile(NameFromSystem((FFolder / "RUX_1" / "RUX.log").string()));
        return AnsiToUtf8(bytes.value_or("no log"));
    }
    std::filesystem::path Folder() const { return FFolder; }

 private:
    static std::filesystem::path NewFolder() {
        return mkdtemp((std::filesystem::temp_directory_path() / "rux-engine-XXXXXX").string().data());
    }
    static TKernelFacts Facts(const std::filesystem::path& folder) {
        SetAnsiCodePage(LoadCodePage(936));
        TellStackLimit();
        TKernelFacts facts;
        facts.ModuleName = NameFromSystem((folder / "app.exe").string());
        facts.LibraryName = NameFromSystem((folder / "rux.dll").string());
        facts.ObjectFolder = (folder / "objects").string();
        return facts;
    }
    const std::filesystem::path FFolder = NewFolder();
    HClassParents FParents;

 protected:
    TManualClock Clock;
    TTestKernel Kernel{Clock, Facts(FFolder)};
    TPosixSockets Sockets{Clock};
    TPosixFiles Files;
    THeadlessPlatform Desktop{Kernel, Clock, Sockets, Files};
    TEngineState Engine{Desktop.Platform()};
};

}  // namespace rux::test
