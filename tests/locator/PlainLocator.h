// The locator language in its plainest form: every rule as it is told, with no index, no memory and no care
// for speed. What it answers is held against the real one on generated forms.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/toolkit/HControl.h"

namespace rux::test {

/// Names of the found controls in list order, or the class and message of the failure.
std::string PlainLocate(HToolkit& kit, std::string_view locator, bool partMatch);

}  // namespace rux::test
