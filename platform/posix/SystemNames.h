// The system's own names of files, and the names that the engine uses.
#pragma once

#include <string>
#include <string_view>

namespace rux {

/// A name in the code page with backslashes as the system spells it: UTF-8 with slashes, runs of them made
/// one, so that a leading backslash is the root. Empty for a name that holds #0.
std::string SystemName(std::string_view name);
/// The way back.
std::string NameFromSystem(std::string_view systemName);

}  // namespace rux
