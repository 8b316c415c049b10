// What the request core and the registry know of a control adapter.
#pragma once

#include <string_view>

#include "Engine/Core/RUXInterfaceTable.h"
#include "rtl/Intf.h"

namespace rux {

class TObject;

/// Made for one request around one object. User-interface thread.
class IRUXAdapter : public IInterface, public TInvokable {
 public:
    virtual std::string_view AdapterName() const = 0;
    /// The interface that the adapter offers.
    virtual const TInterfaceInfo& InterfaceInfo() const = 0;
    virtual bool Enabled() = 0;
    /// Adapters that compare names of their own take the request's flag; others ignore it.
    virtual void SetPartMatch(bool) {}
};

}  // namespace rux
