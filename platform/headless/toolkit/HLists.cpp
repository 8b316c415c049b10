#include "platform/headless/toolkit/HLists.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HClasses.h"
#include "rtl/Text.h"

namespace rux {

namespace {

HInsets BorderInsets(const HObject& object) {
    static const TName borderStyle = InternName("BorderStyle");
    const TPropValue* style = object.Kept(borderStyle);
    // bsNone is 0.
    if (!style || style->Ordinal == 0) return {};
    return {HClientEdge, HClientEdge, HClientEdge, HClientEdge};
}

/// Nothing happens where the lines are in order: setting them reports a change.
void SortItems(HStrings& items) {
    std::vector<std::string> lines = items.Lines();
    const auto before = [](const std::string& a, const std::string& b) { return CompareText(a, b) < 0; };
    if (std::is_sorted(lines.begin(), lines.end(), before)) return;
    std::stable_sort(lines.begin(), lines.end(), before);
    items.SetLines(std::move(lines));
}

}  // namespace

template <>
const HEnumInfo& HEnumOf<HComboBoxStyle>() {
    static const HEnumInfo info{
        "TComboBoxStyle",
        {"csDropDown", "csSimple", "csDropDownList", "csOwnerDrawFixed", "csOwnerDrawVariable"}};
    return info;
}

HInsets HBorderedControl::Insets() const {
    return BorderInsets(*this);
}

// ------------------------------------------------------------------------------------------ list boxes

HCustomListBox::HCustomListBox(HToolkit& kit, const HClassDef& def)
    : HItemsControl(kit, def, "TListBoxStrings") {}

HInsets HCustomListBox::Insets() const {
    return BorderInsets(*this);
}

void HCustomListBox::SetSorted(bool value) {
    FSorted = value;
    if (value) SortItems(Items());
}

void HCustomListBox::ItemsChanged() {
    if (Loading()) return;
    // A new list has no selection.
    SetItemIndex(-1);
    if (FSorted) SortItems(Items());
}

void HCustomListBox::Loaded() {
    if (FSorted) SortItems(Items());
    HItemsControl::Loaded();
}

// ------------------------------------------------------------------------------------------ combo boxes

HCustomComboBox::HCustomComboBox(HToolkit& kit, const HClassDef& def)
    : HItemsControl(kit, def, "TComboBoxStrings") {}

void HCustomComboBox::SetSorted(bool value) {
    FSorted = value;
    if (value) SortItems(Items());
}

void HCustomComboBox::SetItemIndex(int value) {
    HItemsControl::SetItemIndex(value);
    if (Loading()) return;
    const int index = ItemIndex();
    SetText(index < 0 ? std::string() : Items().Lines()[static_cast<std::size_t>(index)]);
}

void HCustomComboBox::SelectAfresh(const std::function<void()>& select) {
    const std::string typed = TextRef();
    select();
    // What stands in the edit outlives the items.
    if (HasEdit() && ItemIndex() < 0) SetText(typed);
}

void HCustomComboBox::ItemsChanged() {
    if (Loading()) return;
    SelectAfresh([this] { SetItemIndex(-1); });
    if (FSorted) SortItems(Items());
}

void HCustomComboBox::Loaded() {
    if (FSorted) SortItems(Items());
    SelectAfresh([this] { HItemsControl::Loaded(); });
}

}  // namespace rux
