#include "Engine/Locator/RUXNotVCLFindAdapter.h"

#include <utility>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXTextMatcher.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "Engine/Virtual/RUXVirtualControls.h"
#include "platform/WindowService.h"

namespace rux {

namespace {

/// The children of a native window are all windows below it, at any depth and in the order in which a walk
/// through the levels would come by them. So native children are not gone into: it would give again what
/// comes next anyhow, once for each level. Controls of the toolkit are, since what has a parent is no child.
class TNativeWalk : public TChildWalk {
 public:
    explicit TNativeWalk(TVirtualWinControl& control) : FControl(control) {}
    bool Next(TStep& step) override {
        while (FNext < FControl.GetChildCount()) {
            step.Finder = Engine().Registry->CreateFindAdapter(FControl.GetChild(FNext++));
            if (!step.Finder || !step.Finder->IsVisible()) continue;
            if (auto* native = dynamic_cast<TVirtualWinControlFinder*>(step.Finder.Get()))
                native->MarkWalked();
            return true;
        }
        return false;
    }

 private:
    TVirtualWinControl& FControl;
    int FNext = 0;
};

class TEmptyWalk : public TChildWalk {
 public:
    bool Next(TStep&) override { return false; }
};

}  // namespace

TVirtualWinControl& TVirtualWinControlFinder::Control() const {
    return VirtualCast<TVirtualWinControl>(Instance());
}

std::uint64_t TVirtualWinControlFinder::GetID() {
    return Control().Handle();
}

std::string TVirtualWinControlFinder::GetCaption() {
    const TVirtualWinControl& control = Control();
    std::string caption = control.Caption();
    return caption.empty() ? std::string(control.WindowClassName()) : caption;
}

TRect TVirtualWinControlFinder::GetBounds() {
    TRect rect;
    Platform().Windows.GetWindowRect(Control().Handle(), rect);
    return rect;
}

bool TVirtualWinControlFinder::IsMatch(const TTextMatcher& text) {
    const TVirtualWinControl& control = Control();
    return text.Matches(control.Caption()) || text.Matches(control.Name()) ||
           text.Matches(control.WindowClassName());
}

bool TVirtualWinControlFinder::IsVisible() {
    return Platform().Windows.IsWindowVisible(Control().Handle());
}

bool TVirtualWinControlFinder::IsEnabled() {
    return Platform().Windows.IsWindowEnabled(Control().Handle());
}

std::unique_ptr<TChildWalk> TVirtualWinControlFinder::StartWalk() {
    if (std::exchange(FWalked, false)) return std::make_unique<TEmptyWalk>();
    return std::make_unique<TNativeWalk>(Control());
}

}  // namespace rux
