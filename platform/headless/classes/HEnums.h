// Names of the toolkit's enumerations, as far as nothing here works with their values.
#pragma once

#include <string_view>

#include "platform/headless/toolkit/HProps.h"

namespace rux {

/// The enumeration of that name, which must be one of the table: raises EAssertionFailed otherwise.
const HEnumInfo& EnumNamed(std::string_view type);

}  // namespace rux
