// Which siblings are hidden behind others.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/Types.h"

namespace rux {

/// Rectangles seen so far, and the question whether one of them contains another one whole. A few are
/// compared one by one; more lie in trees of doubling size, ordered by place, so that 100,000 siblings stay
/// cheap.
class TCoverage {
 public:
    /// True when a rectangle seen before contains `rect`; else `rect` counts as seen from now on.
    bool IsCovered(const TRect& rect);

 private:
    struct TSeen {
        /// Place of its four sides along a curve that keeps alike rectangles together.
        std::uint64_t Place;
        TRect Rect;
    };
    /// A complete binary tree over leaves of a few rectangles each.
    struct TTree {
        std::vector<TSeen> Seen;
        /// By node, the root at 1: the union of what lies below. It contains a rectangle if one of them does.
        std::vector<TRect> Reach;
    };
    void AddTree();
    static TTree Merged(const std::vector<TSeen>& a, const std::vector<TSeen>& b);
    static void Build(TTree& tree);
    static bool Contains(const TTree& tree, const TRect& rect);

    std::vector<TRect> FRecent;
    std::vector<TTree> FTrees;  // largest first
};

}  // namespace rux
