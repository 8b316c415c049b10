// Forms, and windows that are no objects of the toolkit.
#pragma once

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

class TFormAdapter final : public TAdapterOf<TRUXControlAdapter, "TFormAdapter", "TCustomForm", IForm> {
 public:
    using TAdapterOf::TAdapterOf;
    /// A child of an MDI frame is brought to the front; any other form becomes the active window.
    void Active() override;
    /// Posted, not awaited: the form's own close query runs later, in the message loop.
    void Close() override;
    std::string GetInfo() override;
};

class TVirtualWindowAdapter final
    : public TAdapterOf<TBaseVirtualControlAdapter, "TVirtualWindowAdapter", "TVirtualWindow", IForm> {
 public:
    using TAdapterOf::TAdapterOf;
    void Active() override;
    /// Sent: what the window does about it has been done when this returns.
    void Close() override;
    std::string GetInfo() override;
};

}  // namespace rux
