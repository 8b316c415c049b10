#include "Engine/Locator/RUXTabFindAdapters.h"

#include <vector>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "Engine/Virtual/RUXVirtualTabs.h"
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/ExtraCtrls.h"
#include "rtl/StringList.h"

namespace rux {

namespace {

class TTabSetWalk : public TChildWalk {
 public:
    TTabSetWalk(TCustomTabSetFindAdapter& tabs, TObject* control) : FTabs(&tabs), FControls(control) {}
    bool Next(TStep& step) override {
        if (!FControlsDone && FControls.Next(step)) return true;
        FControlsDone = true;
        step.Enter = false;
        while (FNext < FTabs->GetTabCount()) {
            const int index = FNext++;
            if (index == FTabs->GetTabIndex()) continue;
            step.Finder = Engine().Registry->CreateFindAdapter(&FTabs->CreateVirtualTab(index));
            if (step.Finder) return true;
        }
        return false;
    }

 private:
    TIntf<TCustomTabSetFindAdapter> FTabs;
    TControlWalk FControls;
    bool FControlsDone = false;
    int FNext = 0;
};

std::string DelimitedTabs(TStrings& tabs) {
    std::vector<std::string> texts;
    const int count = tabs.Count();
    for (int i = 0; i < count; ++i) texts.push_back(tabs.Get(i));
    return JoinDelimited(texts, '|');
}

}  // namespace

std::unique_ptr<TChildWalk> TCustomTabSetFindAdapter::StartWalk() {
    return std::make_unique<TTabSetWalk>(*this, Instance());
}

// ------------------------------------------------------------------------------------------ tab controls

std::string TTabControlFindAdapter::GetContent() {
    return DelimitedTabs(Cast<TCustomTabControl>(Instance()).Tabs());
}

int TTabControlFindAdapter::GetTabCount() {
    return Cast<TCustomTabControl>(Instance()).Tabs().Count();
}

int TTabControlFindAdapter::GetTabIndex() {
    return Cast<TCustomTabControl>(Instance()).TabIndex();
}

TObject& TTabControlFindAdapter::CreateVirtualTab(int index) {
    return CreateVirtualControl<TVirtualTabControlTab>(Instance(), index);
}

// ------------------------------------------------------------------------------------------ tab sets

std::string TTabSetFindAdapter::GetContent() {
    return DelimitedTabs(Cast<TTabSet>(Instance()).Tabs());
}

int TTabSetFindAdapter::GetTabCount() {
    return Cast<TTabSet>(Instance()).Tabs().Count();
}

int TTabSetFindAdapter::GetTabIndex() {
    return Cast<TTabSet>(Instance()).TabIndex();
}

TObject& TTabSetFindAdapter::CreateVirtualTab(int index) {
    return CreateVirtualControl<TVirtualTab>(Instance(), index);
}

std::string TTBXImageTabSetFindAdapter::GetContent() {
    auto& tabs = Cast<TTBXImageTabSet>(Instance());
    std::string content;
    const int count = tabs.TabItemCount();
    for (int i = 0; i < count; ++i) content += (i == 0 ? "" : "|") + tabs.TabItemCaption(i);
    return content;
}

int TTBXImageTabSetFindAdapter::GetTabCount() {
    return Cast<TTBXImageTabSet>(Instance()).TabItemCount();
}

int TTBXImageTabSetFindAdapter::GetTabIndex() {
    return Cast<TTBXImageTabSet>(Instance()).TabIndex();
}

TObject& TTBXImageTabSetFindAdapter::CreateVirtualTab(int index) {
    return CreateVirtualControl<TTBXImageVirtualTab>(Instance(), index);
}

// ------------------------------------------------------------------------------------------ virtual tabs

std::uint64_t TVirtualTabFindAdapter::GetID() {
    const auto& tab = VirtualCast<TVirtualTabBase>(Instance());
    return tab.Control()->RefNumber() + static_cast<std::uint64_t>(tab.Index()) + 4;
}

std::string TVirtualTabFindAdapter::GetCaption() {
    return VirtualCast<TVirtualTabBase>(Instance()).Caption();
}

TRect TVirtualTabFindAdapter::GetBounds() {
    return VirtualCast<TVirtualTabBase>(Instance()).Rect();
}

}  // namespace rux
