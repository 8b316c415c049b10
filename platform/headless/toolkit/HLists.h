// List boxes and combo boxes, and plain controls that the keyboard reaches.
#pragma once

#include "platform/headless/toolkit/HContainers.h"

namespace rux {

/// A control without behaviour of its own that Tab stops at.
class HInputControl : public HWinControl {
 public:
    HInputControl(HToolkit& kit, const HClassDef& def) : HWinControl(kit, def) { FTabStop = true; }
};

/// A control whose border takes room from its client area.
class HBorderedControl : public HWinControl {
 public:
    using HWinControl::HWinControl;

 protected:
    HInsets Insets() const override;
};

class HCustomListBox : public HItemsControl {
 public:
    HCustomListBox(HToolkit& kit, const HClassDef& def);
    bool Sorted() const { return FSorted; }
    void SetSorted(bool value);
    void Loaded() override;

 protected:
    HInsets Insets() const override;
    void ItemsChanged() override;

 private:
    bool FSorted = false;
};

enum class HComboBoxStyle { csDropDown, csSimple, csDropDownList, csOwnerDrawFixed, csOwnerDrawVariable };
template <>
const HEnumInfo& HEnumOf<HComboBoxStyle>();

/// The text is the user's own, or (for a list without an edit) the chosen item.
class HCustomComboBox : public HItemsControl {
 public:
    HCustomComboBox(HToolkit& kit, const HClassDef& def);
    HComboBoxStyle Style() const { return FStyle; }
    void SetStyle(HComboBoxStyle value) { FStyle = value; }
    bool Sorted() const { return FSorted; }
    void SetSorted(bool value);
    /// The text becomes the item's; -1 empties it.
    void SetItemIndex(int value) override;
    void Loaded() override;

 protected:
    void ItemsChanged() override;

 private:
    void SelectAfresh(const std::function<void()>& select);
    bool HasEdit() const {
        return FStyle == HComboBoxStyle::csDropDown || FStyle == HComboBoxStyle::csSimple;
    }
    HComboBoxStyle FStyle = HComboBoxStyle::csDropDown;
    bool FSorted = false;
};

}  // namespace rux
