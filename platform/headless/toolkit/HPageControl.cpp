#include "platform/headless/toolkit/HPageControl.h"

#include <algorithm>

#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

namespace {

bool HasTab(const HTabSheet* page) {
    return page->HasTab();
}

}  // namespace

// ------------------------------------------------------------------------------------------ pages

HTabSheet::HTabSheet(HToolkit& kit, const HClassDef& def) : With(kit, def) {
    HControl::SetVisible(false);
}

TObject* HTabSheet::PageControl() {
    return FPageControl;
}

int HTabSheet::TabIndex() {
    if (!FPageControl || !FTabVisible) return -1;
    FPageControl->Row();  // brings the places up to date
    return FTabPlace;
}

void HTabSheet::SetParent(HWinControl* parent) {
    if (parent && Destroying()) return;
    if (HPageControl* before = std::exchange(FPageControl, nullptr)) before->RemovePage(*this);
    // Code that was told of the page that came up instead may have freed this one, or its new parent, or put
    // it elsewhere.
    if (Dead() || FPageControl || (parent && parent->Dead())) return;
    HWinControl::SetParent(parent);
    FPageControl = dynamic_cast<HPageControl*>(parent);
    // Flat pages belong on flat controls; on any other one they are plain controls.
    const auto isFlat = [](const HObject& o, TFacetId kind) { return o.ClassType().Is(kind); };
    if (FPageControl &&
        isFlat(*FPageControl, TFacetId::FlatPageControl) != isFlat(*this, TFacetId::FlatTabSheet))
        FPageControl = nullptr;
    if (FPageControl) FPageControl->AddPage(*this);
}

void HTabSheet::SetText(const std::string& text) {
    HWinControl::SetText(text);
    if (FPageControl) FPageControl->MarkTabsStale();
}

void HTabSheet::SetTabVisible(bool value) {
    if (FTabVisible == value) return;
    FTabVisible = value;
    if (FPageControl) FPageControl->TabChanged(*this);
}

int HTabSheet::PageIndex() const {
    if (!FPageControl) return -1;
    const auto& pages = FPageControl->Sheets();
    return static_cast<int>(std::find(pages.begin(), pages.end(), this) - pages.begin());
}

void HTabSheet::SetVisible(bool value) {
    HWinControl::SetVisible(value);
    TellShowing();
}

void HTabSheet::TellShowing() {
    const HNames& names = Kit().Names();
    if (Dead() || (!Assigned(names.OnShow) && !Assigned(names.OnHide))) return;
    HCustomForm* form = ParentForm();
    const bool showing = form && form->IsVisible() && IsShowingOn(*form);
    if (std::exchange(FShowing, showing) != showing) FireGuarded(showing ? names.OnShow : names.OnHide);
}

// ------------------------------------------------------------------------------------------ the pages' list

void HPageControl::CountTabs(int more) {
    const bool had = HasTabs();
    FTabCount += more;
    MarkTabsStale();
    // Without any tab the page fills its control from the origin.
    if (!Loading() && !Destroying() && had != HasTabs()) Arrange();
}

void HPageControl::AddPage(HTabSheet& page) {
    FPages.push_back(&page);
    if (page.HasTab()) CountTabs(1);
    if (Loading()) return;
    page.SetBounds(PageRoom());
    // The first tab that comes is chosen by itself.
    if (page.HasTab() && FTabCount == 1 && !FActivePage && ChoosesPage()) SetActivePageObject(&page);
    if (!Dead() && !page.Dead() && FActivePage != &page) page.SetVisible(false);
}

void HPageControl::RemovePage(HTabSheet& page) {
    // Pages mostly go in the reverse order of their coming.
    const auto place = std::find(FPages.rbegin(), FPages.rend(), &page);
    if (place == FPages.rend()) return;
    const auto next = FPages.erase(std::next(place).base());
    // The one behind it comes up, else the first.
    HTabSheet* shown = nullptr;
    if (FActivePage == &page && ChoosesPage()) {
        auto other = std::find_if(next, FPages.end(), HasTab);
        if (other == FPages.end()) other = std::find_if(FPages.begin(), next, HasTab);
        if (other != FPages.end()) shown = *other;
    }
    const bool wasActive = FActivePage == &page;
    if (wasActive) FActivePage = nullptr;
    if (page.HasTab()) CountTabs(-1);
    if (wasActive && !Destroying()) SetActivePageObject(shown);
}

void HPageControl::TabChanged(HTabSheet& page) {
    CountTabs(page.HasTab() ? 1 : -1);
    if (Loading() || Destroying() || !ChoosesPage()) return;
    if (page.HasTab()) {
        if (FTabCount == 1 && !FActivePage) SetActivePageObject(&page);
        return;
    }
    if (FActivePage != &page) return;
    // The tab that moves into the gap comes up, else the last one.
    const auto place = std::find(FPages.begin(), FPages.end(), &page);
    const auto behind = std::find_if(place, FPages.end(), HasTab);
    if (behind != FPages.end()) return SetActivePageObject(*behind);
    const auto before = std::find_if(std::make_reverse_iterator(place), FPages.rend(), HasTab);
    SetActivePageObject(before == FPages.rend() ? nullptr : *before);
}

HTabSheet* HPageControl::Pages(int index) {
    if (index < 0 || index >= PageCount())
        throw EListError("List index out of bounds (" + std::to_string(index) + ")");
    return FPages[static_cast<std::size_t>(index)];
}

// ------------------------------------------------------------------------------------------ tabs

void HPageControl::CollectTabs(HStrings& texts) {
    std::vector<std::string> captions;
    FTabPages.clear();
    for (HTabSheet* page : FPages) {
        if (!page->HasTab()) continue;
        page->FTabPlace = static_cast<int>(FTabPages.size());
        FTabPages.push_back(page);
        captions.push_back(page->TextRef());
    }
    texts.SetLines(std::move(captions));
    FTabIndex = FActivePage && FActivePage->HasTab() ? FActivePage->FTabPlace : -1;
}

int HPageControl::TabIndex() {
    Row();  // brings the index up to date
    return FTabIndex;
}

void HPageControl::SetTabIndex(int value) {
    if (!Loading()) HCustomTabControl::SetTabIndex(value);
}

void HPageControl::Change() {
    // A page without a tab stays.
    if (const int index = TabIndex(); index >= 0)
        SetActivePageObject(FTabPages[static_cast<std::size_t>(index)]);
    if (!Dead()) HCustomTabControl::Change();
}

std::vector<HContentLine> HPageControl::Content() {
    std::vector<HContentLine> lines;
    for (const HTabSheet* page : FPages) {
        std::string state = page == FActivePage ? "selected" : "";
        if (!page->HasTab()) state += state.empty() ? "hidden" : ", hidden";
        lines.push_back({"tab", 0, {page->TextRef()}, std::move(state)});
    }
    return lines;
}

// ------------------------------------------------------------------------------------------ the shown page

void HPageControl::SetActivePage(TObject* page) {
    SetActivePageObject(dynamic_cast<HObject*>(page));
}

void HPageControl::SetActivePageObject(HObject* page) {
    auto* sheet = dynamic_cast<HTabSheet*>(page);
    if (page && (!sheet || sheet->Control() != this)) return;
    HTabSheet* const before = std::exchange(FActivePage, sheet);
    if (Loading()) return MarkTabsStale();
    Row();
    FTabIndex = sheet && sheet->HasTab() ? sheet->FTabPlace : -1;
    ShowInstead(sheet, before == sheet ? nullptr : before);
}

void HPageControl::ShowInstead(HTabSheet* page, HTabSheet* before) {
    const HRef<HTabSheet> old(before), shown(page);
    if (shown) shown->SetBounds(PageRoom());
    if (shown) shown->SetVisible(true);
    // Code that was told of it may have taken pages away or chosen another one.
    if (!Dead() && old && old.Get() != FActivePage) old->SetVisible(false);
}

TRect HPageControl::PageRoom() const {
    return HasTabs() ? RoomBelowTabs(*this) : TRect{0, 0, Width(), Height()};
}

void HPageControl::SetBounds(const TRect& bounds) {
    HWinControl::SetBounds(bounds);
    if (!Loading()) Arrange();
}

void HPageControl::Loaded() {
    HWinControl::Loaded();
    const auto first = std::find_if(FPages.begin(), FPages.end(), HasTab);
    if (!FActivePage && ChoosesPage() && first != FPages.end()) FActivePage = *first;
    MarkTabsStale();
    Arrange();
}

void HPageControl::Arrange() {
    const TRect room = PageRoom();
    if (FActivePage) FActivePage->SetVisible(true);
    // Code that is told of it may take pages away.
    for (std::size_t i = 0; i < FPages.size(); ++i) {
        const HRef<HTabSheet> page(FPages[i]);
        page->SetBounds(room);
        if (page && page->Control() == this && page.Get() != FActivePage) page->SetVisible(false);
    }
}

}  // namespace rux
