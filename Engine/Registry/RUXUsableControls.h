// The report of what can be driven: every type word with the methods behind it.
#pragma once

#include <string>

namespace rux {

/// Type words in the order of the class group file, each with its interface's methods, which in detail come
/// with their parameters and results. It describes the system, not the running screen. Any thread.
std::string GetUsableControlsText(bool detail);

}  // namespace rux
