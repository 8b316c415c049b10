// Registration of everything that the engine knows, in its fixed order: the order decides every tie.
#pragma once

#include <span>
#include <string_view>

#include "Engine/Core/RUXEngineState.h"

namespace rux {

/// One row of an order table. Entries that are not built yet are absent from the lists and never come out of
/// order.
struct TAdapterOrderRow {
    std::string_view Adapter, ControlClass, Interface;
};
struct TFinderOrderRow {
    std::string_view Finder, ControlClass;
};
std::span<const TAdapterOrderRow> AdapterOrder();
std::span<const TFinderOrderRow> FinderOrder();

/// Fills the class lists, the groups and the interface definitions. Raises EXMLError for a faulty file of
/// definitions beside the library: the engine then does not start.
void RegisterEverything(TEngineState& state);

}  // namespace rux
