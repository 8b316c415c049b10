#include "platform/headless/toolkit/HContainers.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HButtons.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

// ------------------------------------------------------------------------------------------ pages

TRect RoomBelowTabs(const HControl& control) {
    return {HTabBorder, HTabHeight, control.Width() - HTabBorder, control.Height() - HTabBorder};
}

HTabSheet::HTabSheet(HToolkit& kit, const HClassDef& def) : HWinControl(kit, def) {
    HControl::SetVisible(false);
}

void HTabSheet::SetParent(HWinControl* parent) {
    if (FPageControl) FPageControl->RemovePage(*this);
    HWinControl::SetParent(parent);
    FPageControl = dynamic_cast<HPageControl*>(parent);
    if (FPageControl) FPageControl->AddPage(*this);
}

void HTabSheet::SetTabVisible(bool value) {
    FTabVisible = value;
    if (FPageControl && !FPageControl->Loading()) FPageControl->Arrange();
}

int HTabSheet::PageIndex() const {
    if (!FPageControl) return -1;
    const auto& pages = FPageControl->Pages();
    return static_cast<int>(std::find(pages.begin(), pages.end(), this) - pages.begin());
}

HPageControl::HPageControl(HToolkit& kit, const HClassDef& def) : HWinControl(kit, def) {
    FTabStop = true;
}

void HPageControl::AddPage(HTabSheet& page) {
    FPages.push_back(&page);
    if (!Loading()) Arrange();
}

void HPageControl::RemovePage(HTabSheet& page) {
    // Pages mostly go in the reverse order of their coming.
    const auto place = std::find(FPages.rbegin(), FPages.rend(), &page);
    if (place == FPages.rend()) return;
    const auto next = FPages.erase(std::next(place).base());
    if (FActivePage != &page) return;
    FActivePage = nullptr;
    if (Destroying()) return;
    // The one behind it comes up, else the first.
    std::vector<HTabSheet*> order(next, FPages.end());
    order.insert(order.end(), FPages.begin(), next);
    const auto shown = std::find_if(order.begin(), order.end(), [](HTabSheet* p) { return p->TabVisible(); });
    SetActivePageObject(shown == order.end() ? nullptr : *shown);
}

void HPageControl::SetActivePageObject(HObject* page) {
    auto* sheet = dynamic_cast<HTabSheet*>(page);
    if (sheet && sheet->PageControl() != this) return;
    FActivePage = sheet;
    if (!Loading()) Arrange();
}

void HPageControl::SetBounds(const TRect& bounds) {
    HWinControl::SetBounds(bounds);
    if (!Loading()) Arrange();
}

void HPageControl::Loaded() {
    HWinControl::Loaded();
    const auto shown = [](HTabSheet* page) { return page->TabVisible(); };
    if (!FActivePage) {
        const auto first = std::find_if(FPages.begin(), FPages.end(), shown);
        if (first != FPages.end()) FActivePage = *first;
    }
    Arrange();
}

void HPageControl::Arrange() {
    const bool tabs = std::any_of(FPages.begin(), FPages.end(), [](HTabSheet* p) { return p->TabVisible(); });
    // Without any tab the page fills its control from the origin.
    const TRect room = tabs ? RoomBelowTabs(*this) : TRect{0, 0, Width(), Height()};
    for (HTabSheet* page : FPages) {
        page->SetBounds(room);
        if (page != FActivePage) page->SetVisible(false);
    }
    if (FActivePage) FActivePage->SetVisible(true);
}

// ------------------------------------------------------------------------------------------ items

HItemsControl::HItemsControl(HToolkit& kit, const HClassDef& def, std::string_view stringsClass)
    : HWinControl(kit, def) {
    FTabStop = true;
    // What a click is, the kind of control says by itself.
    FClickEvents = false;
    FCaptureMouse = false;
    auto items = std::make_unique<HStrings>(kit, *kit.ClassDefs().FindDef(stringsClass));
    items->SetOnChange([this] { ItemsChanged(); });
    FItems = items.get();
    Adopt(std::move(items));
}

void HItemsControl::SetItemIndex(int value) {
    const bool known = value >= -1 && value < static_cast<int>(FItems->Count());
    if (known || Loading()) FItemIndex = value;
}

void HItemsControl::Loaded() {
    HWinControl::Loaded();
    const int wanted = FItemIndex;
    FItemIndex = -1;
    SetItemIndex(wanted);
}

HRadioGroup::HRadioGroup(HToolkit& kit, const HClassDef& def) : HItemsControl(kit, def) {
    FTabStop = false;
}

void HRadioGroup::ItemsChanged() {
    for (HComponent* button : FButtons) button->Free();
    FButtons.clear();
    for (const std::string& line : Items().Lines()) {
        auto button = Kit().MakeAs<HRadioButton>("TGroupButton");
        button->SetText(line);
        button->SetEnabled(IsEnabled());
        HRadioButton& kept = static_cast<HRadioButton&>(Own(std::move(button)));
        kept.SetParent(this);
        FButtons.push_back(&kept);
        kept.SetHandler("OnClick", [this, &kept](HObject&, HEventArgs&) {
            if (FUpdating) return;
            const auto place = std::find(FButtons.begin(), FButtons.end(), &kept);
            HItemsControl::SetItemIndex(static_cast<int>(place - FButtons.begin()));
            Fire(Kit().Names().OnClick);
        });
    }
    Arrange();
    if (Loading()) return;
    HItemsControl::SetItemIndex(std::min(ItemIndex(), static_cast<int>(FButtons.size()) - 1));
    FUpdating = true;
    ShowItemIndex();
    FUpdating = false;
}

void HRadioGroup::Loaded() {
    FUpdating = true;
    HItemsControl::Loaded();
    FUpdating = false;
}

void HRadioGroup::SetEnabled(bool value) {
    HItemsControl::SetEnabled(value);
    for (HComponent* button : FButtons) static_cast<HRadioButton*>(button)->SetEnabled(value);
}

void HRadioGroup::SetColumns(int value) {
    FColumns = std::max(value, 1);
    Arrange();
}

void HRadioGroup::SetBounds(const TRect& bounds) {
    HItemsControl::SetBounds(bounds);
    Arrange();
}

void HRadioGroup::SetItemIndex(int value) {
    HItemsControl::SetItemIndex(value);
    ShowItemIndex();
}

void HRadioGroup::ShowItemIndex() {
    const int index = ItemIndex();
    for (std::size_t i = 0; i < FButtons.size(); ++i)
        static_cast<HRadioButton*>(FButtons[i])->SetChecked(static_cast<int>(i) == index);
}

void HRadioGroup::Arrange() {
    if (FButtons.empty()) return;
    constexpr int textHeight = 13, margin = 8;
    const int count = static_cast<int>(FButtons.size());
    const int perColumn = (count + FColumns - 1) / FColumns;
    const int width = (Width() - 10) / FColumns;
    const int room = Height() - textHeight - 5;
    const int height = room / perColumn;
    const int top = textHeight + 1 + (room % perColumn) / 2;
    for (int i = 0; i < count; ++i) {
        const int left = (i / perColumn) * width + margin, y = (i % perColumn) * height + top;
        static_cast<HRadioButton*>(FButtons[static_cast<std::size_t>(i)])
            ->SetBounds({left, y, left + width, y + height});
    }
}

// ------------------------------------------------------------------------------------------ timers

void HTimer::SetEnabled(bool value) {
    FEnabled = value;
    Restart();
}

void HTimer::SetInterval(int value) {
    FInterval = value;
    Restart();
}

void HTimer::Loaded() {
    HComponent::Loaded();
    Restart();
}

void HTimer::Detach() {
    if (FTimer) Kit().Desktop().KillTimer(FTimer);
    FTimer = 0;
}

void HTimer::Restart() {
    Detach();
    if (!FEnabled || FInterval <= 0 || Loading() || !HasCode(Kit().Names().OnTimer)) return;
    FTimer = Kit().Desktop().SetTimer(static_cast<std::uint32_t>(FInterval), [this] {
        try {
            Fire(Kit().Names().OnTimer);
        } catch (const std::exception& error) {
            Kit().App().HandleException(error);
        }
    });
}

}  // namespace rux
