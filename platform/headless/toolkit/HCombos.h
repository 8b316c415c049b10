// Combo boxes.
#pragma once

#include <string>
#include <vector>

#include "platform/headless/toolkit/HItems.h"
#include "platform/toolkit/StdCtrls.h"

namespace rux {

enum class HComboBoxStyle { csDropDown, csSimple, csDropDownList, csOwnerDrawFixed, csOwnerDrawVariable };
template <>
const HEnumInfo& HEnumOf<HComboBoxStyle>();

/// The text is the user's own, or (for a list without an edit) the chosen item. A list that is dropped down
/// is a state of the combo box and has no window.
class HCustomComboBox : public With<HItemsControl, TCustomCombo> {
 public:
    HCustomComboBox(HToolkit& kit, const HClassDef& def);

    // TCustomCombo
    HStrings& Items() override { return HItemsControl::Items(); }
    int ItemIndex() override { return HItemsControl::ItemIndex(); }
    /// The text becomes the item's; -1 empties it, and so does an index outside.
    void SetItemIndex(int value) override;
    /// Without an edit: chooses the item that equals the text, case aside; nothing for a text that is none.
    void SetText(const std::string& text) override;

    HComboBoxStyle Style() const { return FStyle; }
    void SetStyle(HComboBoxStyle value) { FStyle = value; }
    bool Sorted() const { return FSorted; }
    void SetSorted(bool value);
    void Loaded() override;
    std::vector<HContentLine> Content() override { return ItemLines(); }
    bool WantsKey(unsigned key) override;

 protected:
    void ItemsChanged() override;
    void DefaultHandler(HMessage& message) override;
    void CNCommand(unsigned code) override;
    /// The user chose: the item is the text, and OnClick and OnSelect or OnChange fire.
    virtual void Chosen();

 private:
    bool HasEdit() const {
        return FStyle == HComboBoxStyle::csDropDown || FStyle == HComboBoxStyle::csSimple;
    }
    bool IsArrowAt(TPoint point);
    void DropDown(bool value);
    void KeyDown(unsigned key);
    HComboBoxStyle FStyle = HComboBoxStyle::csDropDown;
    bool FSorted = false;
    bool FDroppedDown = false;
};

enum class HComboBoxExStyle { csExDropDown, csExSimple, csExDropDownList };
template <>
const HEnumInfo& HEnumOf<HComboBoxExStyle>();

/// A combo box whose items are the captions of a collection.
class HCustomComboBoxEx : public HCustomComboBox {
 public:
    using HCustomComboBox::HCustomComboBox;
    /// The first styles of a plain combo box, under names of their own.
    HComboBoxExStyle StyleEx() const { return static_cast<HComboBoxExStyle>(Style()); }
    void SetStyleEx(HComboBoxExStyle value) { SetStyle(static_cast<HComboBoxStyle>(value)); }
    void Loaded() override;

 protected:
    /// The combo box shows these lines from now on and has none chosen; what stands in an edit stays.
    void ReplaceItems(std::vector<std::string> lines) { Items().SetLines(std::move(lines)); }
};

}  // namespace rux
