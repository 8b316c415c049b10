// What a component shows that is no component: for classes that tell it themselves, and for all others by the
// lists and collections that they publish.
#pragma once

#include <vector>

#include "platform/headless/toolkit/HComponent.h"

namespace rux {

/// Content() where the class has one; else the lines of Items and Tabs and the entries of Columns, Panels,
/// Sections, Bands and the like.
std::vector<HContentLine> ContentOf(HComponent& component);

}  // namespace rux
