// From a parsed request to a call: the control, its adapter, the method, the arguments.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Engine/Core/RUXAdapter.h"
#include "Engine/Core/RUXInterfaceTable.h"
#include "Engine/Request/RUXRequestText.h"

namespace rux {

/// The methods of an interface and its ancestors, in their order.
std::vector<const TIntfMethEntry*> GetIntfMetaData(const TInterfaceInfo& info);

/// The one method of that name (without case); where several share it, the one that takes `argCount`
/// arguments; a method of one parameter also serves none. nil when there is no such one method.
const TIntfMethEntry* FindMethod(const std::vector<const TIntfMethEntry*>& methods, std::string_view name,
                                 std::size_t argCount);

/// Fills the parameters of the context. Raises ERUXException for a wrong number, a kind that cannot be passed
/// or a text that the type does not take, and what the conversions raise.
void ConvertArguments(const TIntfMethEntry& method, TInvContext& context, std::vector<std::string> args);

/// Resolves the locator to the adapter of exactly one control. Raises ERUX_NotFoundError,
/// ERUX_NotUniqueError, ERUXException for a control without adapter, and what a locator's steps raise.
/// User-interface thread.
TIntf<IRUXAdapter> FindAdapter(const std::string& locator, bool partMatch);

/// Lets the actions of every form that can be seen and used bring their state up to date.
void UpdateFormActions();

}  // namespace rux
