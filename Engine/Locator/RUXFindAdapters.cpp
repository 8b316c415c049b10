#include "Engine/Locator/RUXFindAdapters.h"

#include <limits>
#include <vector>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXUtils.h"
#include "Engine/Locator/RUXCommonLocator.h"
#include "Engine/Locator/RUXContentMatch.h"
#include "Engine/Locator/RUXFinderPool.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Controls.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// Finders live on the user-interface thread. No thread_local: on Windows one with a destructor keeps the
/// library in its process for as long as the thread lives.
TFinderPool Pool;

constexpr std::int32_t NoPlace = std::numeric_limits<std::int32_t>::max();

/// The control is somewhere right of the left edge and below the top one.
bool ReachesIn(const TRect& r) {
    return r.Right > 0 && r.Bottom > 0;
}

bool FillsParent(TControl& control) {
    TObject* parent = control.Parent();
    if (!parent) return false;
    const TRect own = control.BoundsRect(), around = Cast<TControl>(parent).BoundsRect();
    return own.Left == 0 && own.Top == 0 && own.Height() == around.Height() && own.Width() == around.Width();
}

}  // namespace

// ------------------------------------------------------------------------------------------ base

void* TRUXFindAdapter::operator new(std::size_t size) {
    return size <= TFinderPool::PieceSize ? Pool.Take() : ::operator new(size);
}

void TRUXFindAdapter::operator delete(void* storage, std::size_t size) {
    if (size <= TFinderPool::PieceSize)
        Pool.Give(storage);
    else
        ::operator delete(storage);
}

std::uint64_t TRUXFindAdapter::GetID() {
    return FInstance->RefNumber();
}

std::string TRUXFindAdapter::FirstText(TName first, TName second) {
    TPropValue value;
    if (FInstance->GetProp(first, value) && !IsBlank(value.Text)) return std::move(value.Text);
    if (FInstance->GetProp(second, value)) return std::move(value.Text);
    return {};
}

std::string TRUXFindAdapter::GetCaption() {
    const TPropertyNames& names = Engine().PropertyNames;
    return FirstText(names.Caption, names.Text);
}

TRect TRUXFindAdapter::GetBounds() {
    return {NoPlace, NoPlace, NoPlace, NoPlace};
}

const std::string& TRUXFindAdapter::GetClassName() {
    return FInstance->ClassType().Name();
}

std::string TRUXFindAdapter::GetPropValue(std::string_view name) {
    return rux::GetPropValue(FInstance, name);
}

bool TRUXFindAdapter::IsMatch(const TTextMatcher& text) {
    if (const std::string caption = GetCaption(); !IsBlank(caption)) return text.Matches(caption);
    if (const std::string content = GetContent(); !IsBlank(content)) return IsContentMatch(text, content);
    const TPropertyNames& names = Engine().PropertyNames;
    return text.Matches(FirstText(names.Hint, names.Name));
}

bool TRUXFindAdapter::IsContentMatch(const TTextMatcher& text, const std::string& content) {
    return text.PartMatch() ? text.Matches(Trim(content)) : MatchContentPrefix(Trim(content), text.Text());
}

int TRUXFindAdapter::FindChildren(ICommonLocator& list) {
    std::vector<std::unique_ptr<TChildWalk>> levels;
    const auto enter = [&](TRUXFindAdapter& finder) {
        std::unique_ptr<TChildWalk> walk = finder.StartWalk();
        if (walk && list.EnterOnce(finder)) levels.push_back(std::move(walk));
    };
    enter(*this);
    while (!levels.empty()) {
        TChildWalk::TStep step;
        if (!levels.back()->Next(step)) {
            levels.pop_back();
            continue;
        }
        list.AddUnique(step.Finder);
        // All finders descend from this class; the registry only does not know it.
        if (step.Enter) enter(static_cast<TRUXFindAdapter&>(*step.Finder));
    }
    return list.GetCount();
}

// ------------------------------------------------------------------------------------------ controls

TRect TControlFindAdapter::GetBounds() {
    auto& control = Cast<TControl>(Instance());
    return control.ClientRect().MovedBy(control.ClientOrigin());
}

bool TControlFindAdapter::IsVisible() {
    auto& control = Cast<TControl>(Instance());
    return control.Visible() && ReachesIn(control.BoundsRect());
}

bool TControlFindAdapter::IsEnabled() {
    return Cast<TControl>(Instance()).Enabled();
}

bool TWinControlFindAdapter::IsVisible() {
    if (!Cast<TControl>(Instance()).Visible()) return false;
    TRect rect;
    Platform().Windows.GetWindowRect(Cast<TWinControl>(Instance()).Handle(), rect);
    return ReachesIn(rect);
}

std::unique_ptr<TChildWalk> TWinControlFindAdapter::StartWalk() {
    // A walk that would give nothing is not begun: most controls hold no others.
    if (Cast<TWinControl>(Instance()).ControlCount() == 0 && !Cast<TControl>(Instance()).PopupMenu())
        return nullptr;
    return std::make_unique<TControlWalk>(Instance());
}

const std::string& TNoTypeWinControlFindAdapter::GetClassName() {
    static const std::string none;
    return none;
}

// ------------------------------------------------------------------------------------------ the walk

TControlWalk::TControlWalk(TObject* control)
    : FControl(control), FIndex(Is<TWinControl>(control) ? Cast<TWinControl>(control).ControlCount() : 0) {}

bool TControlWalk::Next(TStep& step) {
    if (!FMenuDone) {
        FMenuDone = true;
        // Whether or not the menu is showing.
        if (TObject* menu = Cast<TControl>(FControl).PopupMenu()) {
            step.Finder = Engine().Registry->CreateFindAdapter(menu);
            if (step.Finder) return true;
        }
    }
    // The lowest child of all is not asked: there is nothing left that it could hide.
    if (FLast && FIndex > 0 && Is<TControl>(FLast) && FillsParent(Cast<TControl>(FLast))) return false;
    while (FIndex > 0) {
        --FIndex;
        if (NextChild(step)) return true;
    }
    return false;
}

bool TControlWalk::NextChild(TStep& step) {
    // Looked up anew for each child: a finder may have run code of the application in between.
    TObject* child = Cast<TWinControl>(FControl).Controls(FIndex);
    step.Finder = Engine().Registry->CreateFindAdapter(child);
    // An invisible control hides all that lies below it, and covers nobody.
    if (!step.Finder || !step.Finder->IsVisible()) return false;
    if (FCoverage.IsCovered(Cast<TControl>(child).BoundsRect())) return false;
    FLast = step.Finder->GetObject();
    return true;
}

}  // namespace rux
