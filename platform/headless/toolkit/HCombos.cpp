#include "platform/headless/toolkit/HCombos.h"

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

template <>
const HEnumInfo& HEnumOf<HComboBoxStyle>() {
    static const HEnumInfo info{
        "TComboBoxStyle",
        {"csDropDown", "csSimple", "csDropDownList", "csOwnerDrawFixed", "csOwnerDrawVariable"}};
    return info;
}

template <>
const HEnumInfo& HEnumOf<HComboBoxExStyle>() {
    static const HEnumInfo info{"TComboBoxExStyle", {"csExDropDown", "csExSimple", "csExDropDownList"}};
    return info;
}

HCustomComboBox::HCustomComboBox(HToolkit& kit, const HClassDef& def) : With(kit, def, "TComboBoxStrings") {}

void HCustomComboBox::SetSorted(bool value) {
    FSorted = value;
    if (value) SortItems(Items());
}

void HCustomComboBox::SetItemIndex(int value) {
    if (Loading()) {
        HItemsControl::SetItemIndex(value);
        return;
    }
    const bool known = HasItem(value);
    HItemsControl::SetItemIndex(known ? value : -1);
    FText = known ? Items().Get(value) : std::string();
}

void HCustomComboBox::SetText(const std::string& text) {
    if (HasEdit() || Loading()) {
        FText = text;
        return;
    }
    if (const int index = Items().IndexOf(text); index >= 0) SetItemIndex(index);
}

void HCustomComboBox::ItemsChanged() {
    if (Loading()) return;
    const std::string typed = FText;
    SetItemIndex(-1);
    // What stands in the edit outlives the items.
    if (HasEdit()) FText = typed;
    if (FSorted) SortItems(Items());
}

void HCustomComboBox::Loaded() {
    if (FSorted) SortItems(Items());
    const std::string typed = FText;
    HItemsControl::Loaded();
    if (HasEdit() && ItemIndex() < 0) FText = typed;
}

// ------------------------------------------------------------------------------------------ mouse and keys

bool HCustomComboBox::IsArrowAt(TPoint point) {
    if (FStyle == HComboBoxStyle::csSimple) return false;
    const TRect room = ClientRect();
    return room.Contains(point) && (!HasEdit() || point.X >= room.Right - HClientEdge - HComboArrow);
}

void HCustomComboBox::DropDown(bool value) {
    if (FDroppedDown == value || Destroying()) return;
    FDroppedDown = value;
    NotifyParent(value ? CBN_DROPDOWN : CBN_CLOSEUP);
}

void HCustomComboBox::KeyDown(unsigned key) {
    if (key == VK_RETURN || key == VK_ESCAPE) DropDown(false);
    if (key != VK_UP && key != VK_DOWN) return;
    const int next = ItemIndex() + (key == VK_UP ? -1 : 1);
    if (!HasItem(next)) return;
    SetItemIndex(next);
    NotifyParent(CBN_SELCHANGE);
}

bool HCustomComboBox::WantsKey(unsigned key) {
    return FDroppedDown && (key == VK_RETURN || key == VK_ESCAPE);
}

void HCustomComboBox::DefaultHandler(HMessage& message) {
    switch (message.Number) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            Kit().Desktop().SetFocus(Window());
            if (!Dead() && IsArrowAt(message.Point())) DropDown(!FDroppedDown);
            return;
        case WM_KILLFOCUS:
            DropDown(false);
            return;
        case WM_KEYDOWN:
            KeyDown(static_cast<unsigned>(message.W));
            return;
        default:
            With::DefaultHandler(message);
    }
}

void HCustomComboBox::Chosen() {
    const HNames& names = Kit().Names();
    FText = Items().Get(ItemIndex());
    Click();
    if (!Fire(names.OnSelect)) Fire(names.OnChange);
}

void HCustomComboBox::CNCommand(unsigned code) {
    const HNames& names = Kit().Names();
    if (code == CBN_SELCHANGE) Chosen();
    if (code == CBN_DBLCLK) DblClick();
    if (code == CBN_EDITCHANGE) Fire(names.OnChange);
    if (code == CBN_DROPDOWN) Fire(names.OnDropDown);
    if (code == CBN_CLOSEUP) Fire(names.OnCloseUp);
}

// ------------------------------------------------------------------------------------------ with pictures

void HCustomComboBoxEx::Loaded() {
    TPropValue part;
    auto* items = GetProp(FindName("ItemsEx"), part) ? dynamic_cast<HCollection*>(part.Object) : nullptr;
    if (items) {
        std::vector<std::string> captions;
        for (const HObject* item : items->Items()) {
            const TPropValue* caption = item->Kept(Kit().Names().Caption);
            captions.push_back(caption ? caption->Text : std::string());
        }
        ReplaceItems(std::move(captions));
    }
    HCustomComboBox::Loaded();
}

}  // namespace rux
