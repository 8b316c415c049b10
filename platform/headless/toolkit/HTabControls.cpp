#include "platform/headless/toolkit/HTabControls.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

TRect RoomBelowTabs(const HControl& control) {
    // A control too small for a page has one without a size.
    return {HTabBorder, HTabHeight, std::max(HTabBorder, control.Width() - HTabBorder),
            std::max(HTabHeight, control.Height() - HTabBorder)};
}

std::vector<HContentLine> TabLines(const std::vector<std::string>& texts, int chosen) {
    std::vector<HContentLine> lines;
    for (const std::string& text : texts) {
        const bool selected = static_cast<int>(lines.size()) == chosen;
        lines.push_back({"tab", 0, {text}, selected ? "selected" : ""});
    }
    return lines;
}

HCustomTabControl::HCustomTabControl(HToolkit& kit, const HClassDef& def) : With(kit, def) {
    FTabStop = true;
    // What a click is, the kind of control says by itself.
    FClickEvents = false;
    FCaptureMouse = false;
    auto tabs = std::make_unique<HStrings>(kit, *kit.ClassDefs().FindDef("TTabStrings"));
    FTabs = tabs.get();
    Adopt(std::move(tabs));
}

HStrings& HCustomTabControl::Strings() {
    Row();
    return *FTabs;
}

const HTabRow& HCustomTabControl::Row() {
    if (!FRow.Stale()) return FRow;
    CollectTabs(*FTabs);
    FRow.Arrange(FTabs->Lines(), HTabRaise, HTabHeight - HTabRaise);
    return FRow;
}

void HCustomTabControl::SetTabIndex(int value) {
    if (value >= -1 && value < Strings().Count()) FTabIndex = value;
}

bool HCustomTabControl::CanChange() {
    HEventArgs args;
    Fire(Kit().Names().OnChanging, args);
    return args.Allow;
}

void HCustomTabControl::Change() {
    Fire(Kit().Names().OnChange);
}

void HCustomTabControl::SelectByUser(int index) {
    if (index < 0 || index >= Strings().Count() || index == TabIndex()) return;
    if (!CanChange() || Dead()) return;
    SetTabIndex(index);
    // What was asked may have taken tabs away.
    if (TabIndex() == index) Change();
}

bool HCustomTabControl::WantsKey(unsigned key) {
    return key == VK_LEFT || key == VK_RIGHT;
}

void HCustomTabControl::DefaultHandler(HMessage& message) {
    switch (message.Number) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            SelectByUser(Row().At(message.Point()));
            return;
        case WM_KEYDOWN:
            if (message.W == VK_LEFT) SelectByUser(TabIndex() - 1);
            if (message.W == VK_RIGHT) SelectByUser(TabIndex() + 1);
            return;
        default:
            HWinControl::DefaultHandler(message);
    }
}

std::vector<HContentLine> HCustomTabControl::Content() {
    return TabLines(Strings().Lines(), TabIndex());
}

// ------------------------------------------------------------------------------------------ tab controls

HTabsControl::HTabsControl(HToolkit& kit, const HClassDef& def) : HCustomTabControl(kit, def) {
    Strings().SetOnChange([this] { TabsChanged(); });
}

void HTabsControl::SetTabIndex(int value) {
    if (Loading())
        FTabIndex = value;
    else
        HCustomTabControl::SetTabIndex(value);
}

void HTabsControl::TabsChanged() {
    MarkTabsStale();
    if (Loading()) return;
    // The first tab that comes is chosen by itself.
    const int count = Strings().Count();
    if (FTabIndex < 0 || FTabIndex >= count) FTabIndex = count > 0 ? 0 : -1;
}

void HTabsControl::Loaded() {
    HWinControl::Loaded();
    TabsChanged();
}

}  // namespace rux
