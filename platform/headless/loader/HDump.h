// The live object tree as text.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/headless/toolkit/HComponent.h"

namespace rux {

/// One line for each component of the roots, indented by parent: class, name, parent, rectangle on the screen
/// (`-` for what has none), visible, enabled, caption. Classes that only a form file or a class file brought
/// up are marked `[unknown class, served as TCustomControl]`, and what stands on a file that was not given
/// `[no ancestor]`. Below a component's line stands one for each item, node, column, tab or panel that it
/// holds:
/// `- item 'a' 'b' [selected]`. In the code page.
std::string DumpComponents(const std::vector<HComponent*>& roots,
                           const std::function<bool(const HComponent&)>& lacksAncestor);

}  // namespace rux
