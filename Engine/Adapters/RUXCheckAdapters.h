// Check boxes and radio buttons. Each method acts in a way of its own (a notification, the real cursor, the
// setter), since applications tell them apart.
#pragma once

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

class TSolviCheckBoxAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TSolviCheckBoxAdapter", "TCustomCheckBox", ICheckBox, IButton> {
 public:
    using TAdapterOf::TAdapterOf;
    /// Focusing is a part of the question.
    bool Checked() override;
    /// Sends the control the notification of a click: it toggles by its own rules, and the cursor stays.
    void Click() override;
    /// Through the control's setter alone.
    void SetChecked(bool AValue) override;
    void MouseDown() override;
};

class TSolviRadioButtonAdapter final : public TAdapterOf<TRUXControlAdapter, "TSolviRadioButtonAdapter",
                                                         "TRadioButton", IRadioButton, IButton> {
 public:
    using TAdapterOf::TAdapterOf;
    bool Checked() override;
    /// Moves the real cursor to the middle of the control and clicks there.
    void Click() override;
};

}  // namespace rux
