// Which siblings are hidden behind others.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/Types.h"

namespace rux {

/// Rectangles seen so far, and the question whether one of them contains another one whole. A few are
/// compared one by one; more lie in trees of doubling size over the four edges, so that 100,000 siblings stay
/// cheap however they are laid out.
class TCoverage {
 public:
    /// True when a rectangle seen before contains `rect`; else `rect` counts as seen from now on.
    bool IsCovered(const TRect& rect);

 private:
    /// A complete binary tree over 2^n leaves of a few rectangles each.
    struct TTree {
        std::vector<TRect> Rects;
        /// By node, the root at 1: the union of what lies below. It contains a rectangle if one of them does.
        std::vector<TRect> Reach;
    };
    static void Build(TTree& tree, std::size_t node, std::size_t begin, std::size_t end, int edge);
    static bool Contains(const TTree& tree, const TRect& rect);

    std::vector<TRect> FRecent;
    std::vector<TTree> FTrees;  // largest first
};

}  // namespace rux
