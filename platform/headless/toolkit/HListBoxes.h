// List boxes, plain and with check squares.
#pragma once

#include <string>
#include <vector>

#include "platform/headless/toolkit/HButtons.h"
#include "platform/headless/toolkit/HItems.h"
#include "platform/toolkit/StdCtrls.h"

namespace rux {

/// Over the window class LISTBOX: a button that goes down on an item chooses it, and when it comes up the
/// control hears of it from its parent.
class HCustomListBox : public With<HItemsControl, TCustomListBox> {
 public:
    HCustomListBox(HToolkit& kit, const HClassDef& def);

    // TCustomListBox
    HStrings& Items() override { return HItemsControl::Items(); }
    int ItemIndex() override { return HItemsControl::ItemIndex(); }
    /// With several items to choose from it moves the focus alone.
    void SetItemIndex(int value) override;
    bool Selected(int index) override;
    TRect ItemRect(int index) override;

    bool Sorted() const { return FSorted; }
    void SetSorted(bool value);
    bool MultiSelect() const { return FMultiSelect; }
    void SetMultiSelect(bool value);
    bool ExtendedSelect() const { return FExtendedSelect; }
    void SetExtendedSelect(bool value) { FExtendedSelect = value; }
    /// The first item that is shown.
    int TopIndex() const { return FTopIndex; }
    /// The item at a point of the client area, -1 for none. Outside of it the list goes on.
    int ItemAt(TPoint point);
    void Loaded() override;
    std::vector<HContentLine> Content() override { return ItemLines(); }

 protected:
    HInsets Insets() const override;
    void ItemsChanged() override;
    void DefaultHandler(HMessage& message) override;
    void CNCommand(unsigned code) override;
    std::string ItemState(int index) override { return Selected(index) ? "selected" : ""; }
    /// Raises EStringListError for an index outside.
    void DemandItem(int index);

 private:
    /// How the items lie: `Rows` below each other, and as many columns as find room.
    struct TGrid {
        int Width, Height, Rows, Columns;
    };
    TGrid Grid();
    void ScrollTo(int index);
    void SelectOnly(int index);
    void Toggle(int index);
    /// What the user's choice of an item does to the selection.
    void Choose(int index);
    void KeyDown(unsigned key);
    void ButtonDown(TPoint point);
    void ButtonUp();

    bool FSorted = false, FMultiSelect = false, FExtendedSelect = true;
    bool FPressed = false;
    int FTopIndex = 0;
    /// With MultiSelect: for each item.
    std::vector<bool> FSelected;
};

class HCheckListBox : public With<HCustomListBox, TCheckListBox> {
 public:
    using With::With;
    bool Checked(int index) override { return State(index) == HCheckBoxState::cbChecked; }
    void SetChecked(int index, bool value) override;
    HCheckBoxState State(int index);
    void SetState(int index, HCheckBoxState value);
    bool AllowGrayed() const { return FAllowGrayed; }
    void SetAllowGrayed(bool value) { FAllowGrayed = value; }

 protected:
    /// New items are unchecked.
    void ItemsChanged() override;
    void DefaultHandler(HMessage& message) override;
    void MouseDown(HMouseButton button, TPoint point) override;
    std::string ItemState(int index) override;

 private:
    void ToggleByUser(int index);
    bool FAllowGrayed = false;
    /// Shorter than the items as long as those behind its end are unchecked.
    std::vector<HCheckBoxState> FStates;
};

}  // namespace rux
