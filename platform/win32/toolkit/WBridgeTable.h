// The table that the executable may export.
#pragma once

#include "platform/win32/toolkit/ToolkitTable.h"

namespace rux {

/// The executable's table; nil if it exports none, or one that cannot be used: a debug text then says why.
/// Any thread.
const RUXTable* FindToolkitTable();

}  // namespace rux
