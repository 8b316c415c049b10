// An engine over a form of any size, for measuring.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "Engine/Start/RUXRegistration.h"
#include "platform/headless/HeadlessPlatform.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/PosixPlatform.h"
#include "platform/posix/SystemNames.h"

namespace rux::bench {

class TBenchEngine {
 public:
    TBenchEngine() {
        RegisterEverything(State);
        State.ServerPort = 1;
    }
    ~TBenchEngine() { std::filesystem::remove_all(FFolder); }

    HToolkit& Kit() { return Desktop.Toolkit(); }

    /// A form with `count` controls in panels of up to `inPanel` each, half of them labels. The caption of
    /// control i is "caption <i>".
    HCustomForm& MakeForm(int count, int inPanel = 20) {
        auto form = Kit().MakeAs<HCustomForm>("TForm");
        form->SetText("bench");
        form->SetBounds({0, 0, 4000, 4000});
        auto& kept = static_cast<HCustomForm&>(Kit().App().Own(std::move(form)));
        HWinControl* parent = &kept;
        for (int i = 0; i < count; ++i) {
            const bool panel = i % inPanel == 0;
            auto control = Kit().MakeAs<HControl>(panel ? "TPanel" : i % 2 ? "TLabel" : "TButton");
            control->SetText("caption " + std::to_string(i));
            auto& made = static_cast<HControl&>(kept.Own(std::move(control)));
            const int place = panel ? i / inPanel : i % inPanel;
            const int side = panel ? 100 : 4, row = panel ? 30 : 400;
            made.SetBounds({place % row * side, place / row * side, place % row * side + side,
                            place / row * side + side});
            made.SetParent(panel ? static_cast<HWinControl*>(&kept) : parent);
            if (panel) parent = static_cast<HWinControl*>(&made);
        }
        kept.Show();
        return kept;
    }

 private:
    static TKernelFacts Facts(const std::filesystem::path& folder) {
        SetAnsiCodePage(LoadCodePage(936));
        TellStackLimit();
        TKernelFacts facts;
        facts.ModuleName = NameFromSystem((folder / "app.exe").string());
        facts.LibraryName = NameFromSystem((folder / "rux.dll").string());
        return facts;
    }
    static std::filesystem::path NewFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "rux-bench-XXXXXX").string();
        return mkdtemp(name.data());
    }
    const std::filesystem::path FFolder = NewFolder();

 public:
    TPosixPlatform Posix{Facts(FFolder)};
    THeadlessPlatform Desktop{Posix.Kernel, *Posix.Clock, Posix.Sockets, Posix.Files};
    TEngineState State{Desktop.Platform()};
};

}  // namespace rux::bench
