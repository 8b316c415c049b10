// Edits, check boxes, radio buttons, date pickers: what they offer beyond a control.
#pragma once

#include <string>

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

}  // namespace rux
