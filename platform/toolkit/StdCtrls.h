// Edits, check boxes, radio buttons, date pickers, list boxes, combo boxes: what they offer beyond a control.
#pragma once

#include <string>

#include "platform/Types.h"
#include "platform/toolkit/Classes.h"
#include "rtl/Dates.h"

namespace rux {

class TCustomEdit {
 public:
    static constexpr TFacetId Id = TFacetId::CustomEdit;
    virtual bool ReadOnly() = 0;
    /// Fires OnChange when the text differs, on a read-only edit too.
    virtual void SetText(const std::string& text) = 0;

 protected:
    ~TCustomEdit() = default;
};

class TCustomCheckBox {
 public:
    static constexpr TFacetId Id = TFacetId::CustomCheckBox;
    virtual bool Checked() = 0;
    /// Fires OnClick when the state changes.
    virtual void SetChecked(bool value) = 0;

 protected:
    ~TCustomCheckBox() = default;
};

class TRadioButton {
 public:
    static constexpr TFacetId Id = TFacetId::RadioButton;
    virtual bool Checked() = 0;

 protected:
    ~TRadioButton() = default;
};

class TDateTimePicker {
 public:
    static constexpr TFacetId Id = TFacetId::DateTimePicker;
    virtual TDateTime Date() = 0;
    /// Fires nothing.
    virtual void SetDateTime(TDateTime value) = 0;

 protected:
    ~TDateTimePicker() = default;
};

class TCustomListBox {
 public:
    static constexpr TFacetId Id = TFacetId::CustomListBox;
    virtual TStrings& Items() = 0;
    /// Of several selected items the one with the focus; -1 for none. Setting fires nothing; an index that
    /// is not in the list selects nothing.
    virtual int ItemIndex() = 0;
    virtual void SetItemIndex(int value) = 0;
    /// Raises EStringListError for an index outside.
    virtual bool Selected(int index) = 0;
    /// In client coordinates; an item that is scrolled out of view has a place outside. An index outside
    /// gives an empty rectangle, the one behind the last item the place behind it.
    virtual TRect ItemRect(int index) = 0;

 protected:
    ~TCustomListBox() = default;
};

class TCheckListBox {
 public:
    static constexpr TFacetId Id = TFacetId::CheckListBox;
    virtual bool Checked(int index) = 0;
    /// Fires nothing. Raises EStringListError for an index outside, as the getter does.
    virtual void SetChecked(int index, bool value) = 0;

 protected:
    ~TCheckListBox() = default;
};

/// Combo boxes of all kinds.
class TCustomCombo {
 public:
    static constexpr TFacetId Id = TFacetId::CustomCombo;
    virtual TStrings& Items() = 0;
    virtual int ItemIndex() = 0;
    /// Notifies nobody.
    virtual void SetItemIndex(int value) = 0;
    /// Notifies nobody.
    virtual void SetText(const std::string& text) = 0;

 protected:
    ~TCustomCombo() = default;
};

}  // namespace rux
