// The bytes in which form files store the nodes of a tree.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace rux {

struct HNodeLine {
    /// 0 for a root; at most one more than the line before has.
    std::size_t Depth = 0;
    /// In the code page.
    std::string Text;
};

/// Reads the property `Data` (texts in the code page) or `NodeData` (UTF-16, versions 1 and 3) of a tree's
/// items, in depth-first order. False for another property or version: nothing is known of it then. Damaged
/// bytes give the nodes before the damage; so do more nodes or levels than HLimits.h allows.
bool DecodeTreeNodes(std::string_view property, std::string_view bytes, std::vector<HNodeLine>& lines);

}  // namespace rux
