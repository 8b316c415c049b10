// Items of standard menus. They are clicked by their own code, so no menu needs to be open.
#pragma once

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

class TMenuItemAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TMenuItemAdapter", "TMenuItem", IPopupMenu, IMenu, IButton> {
 public:
    using TAdapterOf::TAdapterOf;
    bool Enabled() override;
    bool Checked() override;
    /// Whether a disabled item does something is its own affair.
    void Click() override;
};

}  // namespace rux
