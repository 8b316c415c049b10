#include "platform/headless/toolkit/HItems.h"

#include <algorithm>

#include "platform/headless/toolkit/HButtons.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/Text.h"

namespace rux {

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
    if (value == -1 || HasItem(value) || Loading()) FItemIndex = value;
}

void HItemsControl::Loaded() {
    HWinControl::Loaded();
    const int wanted = FItemIndex;
    FItemIndex = -1;
    SetItemIndex(wanted);
}

std::vector<HContentLine> HItemsControl::ItemLines() {
    std::vector<HContentLine> lines;
    int index = 0;
    for (std::string& text : Items().Lines())
        lines.push_back({"item", 0, {std::move(text)}, ItemState(index++)});
    return lines;
}

void SortItems(HStrings& items) {
    std::vector<std::string> lines = items.Lines();
    const auto before = [](const std::string& a, const std::string& b) { return CompareText(a, b) < 0; };
    // Setting them reports a change.
    if (std::is_sorted(lines.begin(), lines.end(), before)) return;
    std::stable_sort(lines.begin(), lines.end(), before);
    items.SetLines(std::move(lines));
}

// ------------------------------------------------------------------------------------------ radio groups

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

}  // namespace rux
