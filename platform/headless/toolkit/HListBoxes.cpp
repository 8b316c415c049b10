#include "platform/headless/toolkit/HListBoxes.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HLists.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

namespace {

int KeptNumber(const HObject& object, TName name, int fallback) {
    return static_cast<int>(std::clamp<std::int64_t>(object.KeptOrdinal(name, fallback), 0, HCoordLimit));
}

}  // namespace

HCustomListBox::HCustomListBox(HToolkit& kit, const HClassDef& def) : With(kit, def, "TListBoxStrings") {}

HInsets HCustomListBox::Insets() const {
    return BorderInsets(*this);
}

void HCustomListBox::SetSorted(bool value) {
    FSorted = value;
    if (value) SortItems(Items());
}

void HCustomListBox::SetMultiSelect(bool value) {
    FMultiSelect = value;
    FSelected.clear();
}

void HCustomListBox::ItemsChanged() {
    if (Loading()) return;
    // A new list has no selection and begins at its top.
    FSelected.clear();
    SetItemIndex(-1);
    FTopIndex = 0;
    if (FSorted) SortItems(Items());
}

void HCustomListBox::Loaded() {
    if (FSorted) SortItems(Items());
    With::Loaded();
}

// ------------------------------------------------------------------------------------------ selection

void HCustomListBox::DemandItem(int index) {
    if (!HasItem(index)) throw EStringListError("List index out of bounds (" + std::to_string(index) + ")");
}

void HCustomListBox::SetItemIndex(int value) {
    if (Loading()) return HItemsControl::SetItemIndex(value);
    HItemsControl::SetItemIndex(HasItem(value) ? value : -1);
    ScrollTo(ItemIndex());
}

bool HCustomListBox::Selected(int index) {
    DemandItem(index);
    if (!FMultiSelect) return index == ItemIndex();
    const auto place = static_cast<std::size_t>(index);
    return place < FSelected.size() && FSelected[place];
}

void HCustomListBox::SelectOnly(int index) {
    FSelected.clear();
    Toggle(index);
}

void HCustomListBox::Toggle(int index) {
    const auto place = static_cast<std::size_t>(index);
    if (place >= FSelected.size()) FSelected.resize(place + 1);
    FSelected[place] = !FSelected[place];
}

void HCustomListBox::Choose(int index) {
    SetItemIndex(index);
    if (FMultiSelect && FExtendedSelect) SelectOnly(index);
    if (FMultiSelect && !FExtendedSelect) Toggle(index);
}

// ------------------------------------------------------------------------------------------ places

HCustomListBox::TGrid HCustomListBox::Grid() {
    static const TName itemHeight = InternName("ItemHeight"), columns = InternName("Columns");
    const TRect room = ClientRect();
    const int height = std::clamp(KeptNumber(*this, itemHeight, 16), 1, HItemHeightLimit);
    const int count = KeptNumber(*this, columns, 0);
    const int rows = std::max(room.Height() / height, 1);
    if (count == 0) return {std::max(room.Width(), 1), height, rows, 1};
    return {std::max((Width() + count - 3) / count, 1), height, rows, count};
}

TRect HCustomListBox::ItemRect(int index) {
    if (index < 0 || index > Items().Count()) return {};
    const TGrid grid = Grid();
    const bool columns = grid.Columns > 1;
    const int across = columns ? index / grid.Rows - FTopIndex / grid.Rows : 0;
    const std::int64_t x = std::int64_t{across} * grid.Width;
    const std::int64_t y = std::int64_t{columns ? index % grid.Rows : index - FTopIndex} * grid.Height;
    const auto bound = [](std::int64_t value) {
        return static_cast<std::int32_t>(
            std::clamp<std::int64_t>(value, -HScreenCoordLimit, HScreenCoordLimit));
    };
    return {bound(x), bound(y), bound(x + grid.Width), bound(y + grid.Height)};
}

int HCustomListBox::ItemAt(TPoint point) {
    const TGrid grid = Grid();
    const auto down = [](int value, int step) {
        return value >= 0 ? value / step : -((step - 1 - value) / step);
    };
    const int row = down(point.Y, grid.Height);
    const int across = grid.Columns > 1 ? FTopIndex / grid.Rows + down(point.X, grid.Width) : 0;
    const int index = grid.Columns > 1 ? across * grid.Rows + row : FTopIndex + row;
    const bool inColumn = grid.Columns == 1 || (row >= 0 && row < grid.Rows);
    return inColumn && HasItem(index) ? index : -1;
}

void HCustomListBox::ScrollTo(int index) {
    if (index < 0) return;
    const TGrid grid = Grid();
    if (grid.Columns > 1) {
        const int column = index / grid.Rows, top = FTopIndex / grid.Rows;
        FTopIndex = std::clamp(top, std::max(column - grid.Columns + 1, 0), column) * grid.Rows;
        return;
    }
    FTopIndex = std::clamp(FTopIndex, std::max(index - grid.Rows + 1, 0), index);
}

// ------------------------------------------------------------------------------------------ mouse and keys

void HCustomListBox::ButtonDown(TPoint point) {
    Kit().Desktop().SetFocus(Window());
    if (Dead()) return;
    const int index = ItemAt(point);
    if (index < 0) return;
    Kit().Desktop().SetCapture(Window());
    FPressed = true;
    Choose(index);
}

void HCustomListBox::ButtonUp() {
    if (!std::exchange(FPressed, false) || Kit().Desktop().GetCapture() != Window()) return;
    Kit().Desktop().ReleaseCapture();
    NotifyParent(LBN_SELCHANGE);
}

void HCustomListBox::KeyDown(unsigned key) {
    const int count = Items().Count(), index = ItemIndex();
    int next = index;
    if (key == VK_UP) next = std::max(index - 1, 0);
    if (key == VK_DOWN) next = std::min(index + 1, count - 1);
    if (key == VK_HOME) next = 0;
    if (key == VK_END) next = count - 1;
    const bool moves = key == VK_UP || key == VK_DOWN || key == VK_HOME || key == VK_END;
    const bool toggles = key == VK_SPACE && FMultiSelect && index >= 0;
    if (count == 0 || (!moves && !toggles)) return;
    // Where each item is toggled by itself the arrows move the focus alone.
    if (moves && FMultiSelect && !FExtendedSelect)
        SetItemIndex(next);
    else
        Choose(next);
    NotifyParent(LBN_SELCHANGE);
}

void HCustomListBox::DefaultHandler(HMessage& message) {
    switch (message.Number) {
        case WM_LBUTTONDOWN:
            ButtonDown(message.Point());
            return;
        case WM_LBUTTONUP:
            ButtonUp();
            return;
        case WM_LBUTTONDBLCLK:
            NotifyParent(LBN_DBLCLK);
            return;
        case WM_KEYDOWN:
            KeyDown(static_cast<unsigned>(message.W));
            return;
        default:
            With::DefaultHandler(message);
    }
}

void HCustomListBox::CNCommand(unsigned code) {
    if (code == LBN_SELCHANGE) Click();
    if (code == LBN_DBLCLK) DblClick();
}

// ------------------------------------------------------------------------------------------ check squares

void HCheckListBox::ItemsChanged() {
    FStates.clear();
    With::ItemsChanged();
}

HCheckBoxState HCheckListBox::State(int index) {
    DemandItem(index);
    const auto place = static_cast<std::size_t>(index);
    return place < FStates.size() ? FStates[place] : HCheckBoxState::cbUnchecked;
}

void HCheckListBox::SetState(int index, HCheckBoxState value) {
    DemandItem(index);
    const auto place = static_cast<std::size_t>(index);
    if (place >= FStates.size()) FStates.resize(place + 1, HCheckBoxState::cbUnchecked);
    FStates[place] = value;
}

void HCheckListBox::SetChecked(int index, bool value) {
    SetState(index, value ? HCheckBoxState::cbChecked : HCheckBoxState::cbUnchecked);
}

void HCheckListBox::ToggleByUser(int index) {
    if (!HasItem(index)) return;
    const HCheckBoxState state = State(index);
    const bool grays = state == HCheckBoxState::cbUnchecked && FAllowGrayed;
    if (grays)
        SetState(index, HCheckBoxState::cbGrayed);
    else
        SetChecked(index, state != HCheckBoxState::cbChecked);
    Fire(Kit().Names().OnClickCheck);
}

void HCheckListBox::MouseDown(HMouseButton button, TPoint point) {
    With::MouseDown(button, point);
    if (Dead() || button != HMouseButton::Left || !ClientRect().Contains(point)) return;
    const int index = ItemAt(point);
    if (index >= 0 && point.X - ItemRect(index).Left < HCheckWidth) ToggleByUser(index);
}

void HCheckListBox::DefaultHandler(HMessage& message) {
    With::DefaultHandler(message);
    if (message.Number == WM_CHAR && message.W == ' ' && !Dead()) ToggleByUser(ItemIndex());
}

std::string HCheckListBox::ItemState(int index) {
    const HCheckBoxState state = State(index);
    std::string text = With::ItemState(index);
    if (state == HCheckBoxState::cbUnchecked) return text;
    return text + (text.empty() ? "" : ", ") + (state == HCheckBoxState::cbChecked ? "checked" : "grayed");
}

}  // namespace rux
