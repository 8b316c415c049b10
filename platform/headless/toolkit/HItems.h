// Controls over a list of items of which one may be chosen: list boxes, combo boxes, radio groups.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/toolkit/HStrings.h"
#include "platform/headless/toolkit/HWinControl.h"

namespace rux {

class HItemsControl : public HWinControl {
 public:
    /// The class of the list of items differs by control.
    HItemsControl(HToolkit& kit, const HClassDef& def, std::string_view stringsClass = "TStringList");
    HObject* ItemsObject() const { return FItems; }
    virtual HStrings& Items() { return *FItems; }
    virtual int ItemIndex() { return FItemIndex; }
    /// -1 for none; an index outside changes nothing. While a form file is read the index may come before
    /// the items.
    virtual void SetItemIndex(int value);
    void Loaded() override;

 protected:
    virtual void ItemsChanged() {}
    bool HasItem(int index) { return index >= 0 && index < Items().Count(); }
    /// A line for each item, for a dump.
    std::vector<HContentLine> ItemLines();
    /// What a dump says of the item.
    virtual std::string ItemState(int index) { return index == ItemIndex() ? "selected" : ""; }

 private:
    HStrings* FItems;
    int FItemIndex = -1;
};

/// Brings the items into order, case aside; nothing happens where they are.
void SortItems(HStrings& items);

/// Makes a radio button for each item.
class HRadioGroup : public HItemsControl {
 public:
    HRadioGroup(HToolkit& kit, const HClassDef& def);
    int Columns() const { return FColumns; }
    void SetColumns(int value);
    /// Fires OnClick when it changes, as a click does; not while a form file is read.
    void SetItemIndex(int value) override;
    void SetBounds(const TRect& bounds) override;
    void SetEnabled(bool value) override;
    void Loaded() override;

 protected:
    void ItemsChanged() override;

 private:
    void Arrange();
    void ShowItemIndex();
    bool FUpdating = false;
    int FColumns = 1;
    std::vector<HComponent*> FButtons;
};

}  // namespace rux
