// The rows of the group files that are compiled in.
#pragma once

#include <span>

#include "Engine/Registry/RUXGroupClassFile.h"

namespace rux {

/// In the order in which they are written. The first appearance of a section decides its place in a new file;
/// repeats stand as they always have.
std::span<const TGroupRows> DefaultClassRows();
std::span<const TGroupRows> DefaultMethodRows();

}  // namespace rux
