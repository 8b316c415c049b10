// The finder of what is no object of the toolkit: native windows.
#pragma once

#include <memory>
#include <string>

#include "Engine/Locator/RUXFindAdapters.h"

namespace rux {

class TVirtualWinControl;

class TVirtualWinControlFinder final : public TRUXFindAdapter {
 public:
    using TRUXFindAdapter::TRUXFindAdapter;

    /// The window: two objects for it are one thing to the locator.
    std::uint64_t GetID() override;
    /// The title, else the class word: never empty.
    std::string GetCaption() override;
    TRect GetBounds() override;
    /// Title, name and class word all count, so that `Button` names every native button.
    bool IsMatch(const TTextMatcher& text) override;
    bool IsVisible() override;
    bool IsEnabled() override;
    std::unique_ptr<TChildWalk> StartWalk() override;

    /// The walk that found this one gives everything below it, too: the next walk has nothing to add.
    void MarkWalked() { FWalked = true; }

 private:
    TVirtualWinControl& Control() const;
    bool FWalked = false;
};

}  // namespace rux
