// Edits and date pickers: text in, text out, through the control's own code and without the mouse.
#pragma once

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

class TSolviEditAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TSolviEditAdapter", "TCustomEdit", IEdit> {
 public:
    using TAdapterOf::TAdapterOf;
    std::string GetText() override;
    /// Focuses the edit first, whatever comes of the rest; raises EAdapterException for a read-only one.
    void SetText(const std::string& S) override;
};

class TDateTimePickerAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TDateTimePickerAdapter", "TDateTimePicker", IEdit> {
 public:
    using TAdapterOf::TAdapterOf;
    /// The date in the locale's short form.
    std::string GetText() override;
    /// Raises EAdapterException with the run-time library's text for what is no date.
    void SetText(const std::string& S) override;
};

}  // namespace rux
