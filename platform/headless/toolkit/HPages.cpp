#include "platform/headless/toolkit/HPages.h"

#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

// ------------------------------------------------------------------------------------------ tabs

HTabsControl::HTabsControl(HToolkit& kit, const HClassDef& def, std::string_view stringsClass)
    : HWinControl(kit, def) {
    FTabStop = true;
    FClickEvents = false;
    auto tabs = std::make_unique<HStrings>(kit, *kit.ClassDefs().FindDef(stringsClass));
    tabs->SetOnChange([this] { TabsChanged(); });
    FTabs = tabs.get();
    Adopt(std::move(tabs));
}

void HTabsControl::SetTabIndex(int value) {
    const bool known = value >= 0 && value < static_cast<int>(FTabs->Count());
    if (known || Loading()) FTabIndex = value;
}

void HTabsControl::TabsChanged() {
    if (Loading()) return;
    const int count = static_cast<int>(FTabs->Count());
    if (FTabIndex < 0 || FTabIndex >= count) FTabIndex = count > 0 ? 0 : -1;
}

void HTabsControl::Loaded() {
    HWinControl::Loaded();
    TabsChanged();
}

HTabSet::HTabSet(HToolkit& kit, const HClassDef& def) : HTabsControl(kit, def, "TTabList") {
    FTabStop = false;
}

// ------------------------------------------------------------------------------------------ notebooks

void HNotebook::SetPageIndex(int value) {
    const bool known = value >= 0 && static_cast<std::size_t>(value) < WindowedControls().size();
    if (!known && !Loading()) return;
    FPageIndex = value;
    if (!Loading()) Arrange();
}

std::string HNotebook::ActivePage() const {
    const auto index = static_cast<std::size_t>(FPageIndex);
    return index < WindowedControls().size() ? WindowedControls()[index]->TextRef() : std::string();
}

std::string HNotebook::Captions() const {
    std::string text;
    for (const HWinControl* page : WindowedControls()) text += page->TextRef() + "\r\n";
    return text;
}

HObject* HNotebook::Pages() {
    if (FPages) return FPages;
    auto pages = std::make_unique<HTextLines>(Kit(), *Kit().ClassDefs().FindDef("TPageAccess"));
    // Pages come from the form file; their list only shows them.
    pages->Attach([this] { return Captions(); }, [](const std::string&) {});
    FPages = pages.get();
    Adopt(std::move(pages));
    return FPages;
}

void HNotebook::SetBounds(const TRect& bounds) {
    HWinControl::SetBounds(bounds);
    if (!Loading()) Arrange();
}

void HNotebook::Loaded() {
    HWinControl::Loaded();
    if (static_cast<std::size_t>(FPageIndex) >= WindowedControls().size()) FPageIndex = 0;
    Arrange();
}

void HNotebook::Arrange() {
    const TRect room = PageRoom();
    for (std::size_t i = 0; i < WindowedControls().size(); ++i) {
        HWinControl& page = *WindowedControls()[i];
        page.SetBounds(room);
        page.SetVisible(static_cast<int>(i) == FPageIndex);
    }
}

HTabbedNotebook::HTabbedNotebook(HToolkit& kit, const HClassDef& def) : HNotebook(kit, def) {
    FTabStop = true;
}

TRect HTabbedNotebook::PageRoom() const {
    return RoomBelowTabs(*this);
}

}  // namespace rux
