// Buttons and labels. They call the control's own code, so that its handlers run at once, within the request.
#pragma once

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

class TSolviButtonAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TSolviButtonAdapter", "TButton", IButton> {
 public:
    using TAdapterOf::TAdapterOf;
    /// Whether the button is enabled is tested by focusing it and by nothing else.
    void Click() override;
};

class TSolviSpeedButtonAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TSolviSpeedButtonAdapter", "TSpeedButton", IButton> {
 public:
    using TAdapterOf::TAdapterOf;
    void Click() override;
};

class TSolviLabelAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TSolviLabelAdapter", "TLabel", ILabel, IButton> {
 public:
    using TAdapterOf::TAdapterOf;
    /// Calls the OnClick handler; a label without one raises EAccessViolation.
    void Click() override;
    std::string GetText() override;
};

class TSolviStaticTextAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TSolviStaticTextAdapter", "TStaticText", ILabel, IButton> {
 public:
    using TAdapterOf::TAdapterOf;
    /// Calls itself without end and so raises EStackOverflow: a static text cannot be clicked, and scripts
    /// know it by this error.
    void Click() override;
    std::string GetText() override;
};

}  // namespace rux
