// An engine over the desktop in memory, without a daemon, for questions about finding.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "Engine/Locator/RUXTestLocatorParser.h"
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

class TLocatorTest : public testing::Test {
 protected:
    TLocatorTest() {
        RegisterEverything(Engine);
        Engine.ServerPort = 1;  // the log's folder needs a number
    }
    ~TLocatorTest() override { std::filesystem::remove_all(FFolder); }

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

    /// Names of what the locator (UTF-8) finds, each with a blank behind it, or the failure.
    std::string Locate(std::string_view locator, bool partMatch = true) {
        TSolviLocatorParser parser(&Kit().Application(), partMatch);
        try {
            std::string names;
            const TIntf<ICommonLocator> list = parser.Locate(Ansi(locator));
            for (int i = 0; i < list->GetCount(); ++i) names += NameOf(list->GetItem(i)->GetObject()) + " ";
            return names;
        } catch (const EAssertionFailed& error) {
            return std::string(error.ClassName());
        } catch (const Exception& error) {
            return std::string(error.ClassName()) + ": " + error.Message();
        }
    }
    static std::string NameOf(TObject* object) {
        return Is<TComponent>(object) ? Cast<TComponent>(object).Name() : object->ClassType().Name();
    }
    std::string Log() {
        const auto bytes = Posix.Files.ReadFile(NameFromSystem((FFolder / "RUX_1" / "RUX.log").string()));
        return AnsiToUtf8(bytes.value_or("no log"));
    }

 private:
    static std::filesystem::path NewFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "rux-locator-XXXXXX").string();
        return mkdtemp(name.data());
    }
    static TKernelFacts Facts(const std::filesystem::path& folder) {
        SetAnsiCodePage(LoadCodePage(936));
        TellStackLimit();
        TKernelFacts facts;
        facts.ModuleName = NameFromSystem((folder / "app.exe").string());
        facts.LibraryName = NameFromSystem((folder / "rux.dll").string());
        return facts;
    }
    const std::filesystem::path FFolder = NewFolder();
    HClassParents FParents;

 protected:
    TPosixPlatform Posix{Facts(FFolder), {}, std::make_unique<TManualClock>()};
    THeadlessPlatform Desktop{Posix.Kernel, *Posix.Clock, Posix.Sockets, Posix.Files};
    TEngineState Engine{Desktop.Platform()};
};

}  // namespace rux::test
