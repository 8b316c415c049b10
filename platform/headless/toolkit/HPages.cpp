#include "platform/headless/toolkit/HPages.h"

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

// ------------------------------------------------------------------------------------------ tab sets

HTabSet::HTabSet(HToolkit& kit, const HClassDef& def) : With(kit, def) {
    FClickEvents = false;
    auto tabs = std::make_unique<HStrings>(kit, *kit.ClassDefs().FindDef("TTabList"));
    tabs->SetOnChange([this] { TabsChanged(); });
    FTabs = tabs.get();
    Adopt(std::move(tabs));
}

void HTabSet::SetTabIndex(int value) {
    if (Loading()) {
        FTabIndex = value;
        return;
    }
    if (value == FTabIndex) return;
    if (value < -1 || value >= FTabs->Count()) throw EListError("Tab index out of bounds");
    HEventArgs args{.Value = value, .Point = {}};
    Fire(Kit().Names().OnChange, args);
    // What was asked may have taken tabs away.
    if (!args.Allow || Dead() || value >= FTabs->Count()) return;
    FTabIndex = value;
    Click();
}

void HTabSet::TabsChanged() {
    FRow.MarkStale();
    if (Loading()) return;
    const int count = FTabs->Count();
    if (FTabIndex < 0 || FTabIndex >= count) FTabIndex = count > 0 ? 0 : -1;
}

void HTabSet::Loaded() {
    HWinControl::Loaded();
    TabsChanged();
}

void HTabSet::SetBounds(const TRect& bounds) {
    HWinControl::SetBounds(bounds);
    FRow.MarkStale();
}

const HTabRow& HTabSet::Row() {
    if (FRow.Stale()) FRow.Arrange(FTabs->Lines(), HTabRaise, Height());
    return FRow;
}

void HTabSet::MouseDown(HMouseButton button, TPoint point) {
    HWinControl::MouseDown(button, point);
    if (Dead() || button != HMouseButton::Left) return;
    if (const int index = Row().At(point); index >= 0) SetTabIndex(index);
}

std::vector<HContentLine> HTabSet::Content() {
    return TabLines(FTabs->Lines(), FTabIndex);
}

// ------------------------------------------------------------------------------------------ notebooks

HNotebook::HNotebook(HToolkit& kit, const HClassDef& def) : HCustomTabControl(kit, def) {
    FTabStop = false;
    FClickEvents = true;
    FCaptureMouse = true;
}

void HNotebook::SetPageIndex(int value) {
    const bool known = value >= 0 && static_cast<std::size_t>(value) < WindowedControls().size();
    if (!known && !Loading()) return;
    FPageIndex = value;
    MarkTabsStale();
    if (!Loading()) Arrange();
}

std::string HNotebook::ActivePage() const {
    const auto index = static_cast<std::size_t>(FPageIndex);
    return index < WindowedControls().size() ? WindowedControls()[index]->TextRef() : std::string();
}

std::vector<std::string> HNotebook::Captions() const {
    std::vector<std::string> captions;
    for (const HWinControl* page : WindowedControls()) captions.push_back(page->TextRef());
    return captions;
}

HObject* HNotebook::Pages() {
    if (FPages) return FPages;
    auto pages = std::make_unique<HTextLines>(Kit(), *Kit().ClassDefs().FindDef("TPageAccess"));
    // Pages come from the form file; their list only shows them.
    const auto text = [this] {
        std::string all;
        for (const std::string& caption : Captions()) all += caption + "\r\n";
        return all;
    };
    pages->Attach(text, [](const std::string&) {});
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
    MarkTabsStale();
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

std::vector<HContentLine> HNotebook::Content() {
    return TabLines(Captions(), FPageIndex);
}

HTabbedNotebook::HTabbedNotebook(HToolkit& kit, const HClassDef& def) : HNotebook(kit, def) {
    FTabStop = true;
    FClickEvents = false;
    FCaptureMouse = false;
}

int HTabbedNotebook::TabIndex() {
    Row();  // brings the index up to date
    return FTabIndex;
}

void HTabbedNotebook::Change() {
    if (const int index = TabIndex(); index >= 0) SetPageIndex(index);
    if (!Dead()) HNotebook::Change();
}

void HTabbedNotebook::CollectTabs(HStrings& texts) {
    texts.SetLines(Captions());
    FTabIndex = PageIndex() < texts.Count() ? PageIndex() : -1;
}

void HNotebookPage::SetText(const std::string& text) {
    HWinControl::SetText(text);
    MarkTabsStale();
}

void HNotebookPage::SetParent(HWinControl* parent) {
    MarkTabsStale();
    HWinControl::SetParent(parent);
    MarkTabsStale();
}

void HNotebookPage::MarkTabsStale() {
    if (auto* notebook = dynamic_cast<HNotebook*>(ParentControl())) notebook->MarkTabsStale();
}

}  // namespace rux
