#include "Engine/Locator/RUXCoverage.h"

#include <algorithm>
#include <array>

namespace rux {

namespace {

/// So many rectangles are compared one by one; the rest is a power of two of leaves of this size.
constexpr std::size_t LeafSize = 32;

bool Covers(const TRect& outer, const TRect& inner) {
    return outer.Top <= inner.Top && outer.Left <= inner.Left && outer.Bottom >= inner.Bottom &&
           outer.Right >= inner.Right;
}

TRect Union(const TRect& a, const TRect& b) {
    return {std::min(a.Left, b.Left), std::min(a.Top, b.Top), std::max(a.Right, b.Right),
            std::max(a.Bottom, b.Bottom)};
}

std::int32_t EdgeOf(const TRect& rect, int edge) {
    switch (edge) {
        case 0:
            return rect.Left;
        case 1:
            return rect.Top;
        case 2:
            return rect.Right;
        default:
            return rect.Bottom;
    }
}

}  // namespace

void TCoverage::Build(TTree& tree, std::size_t node, std::size_t begin, std::size_t end, int edge) {
    if (end - begin > LeafSize) {
        const std::size_t middle = begin + (end - begin) / 2;
        const auto at = [&](std::size_t i) { return tree.Rects.begin() + static_cast<std::ptrdiff_t>(i); };
        std::nth_element(at(begin), at(middle), at(end),
                         [&](const TRect& a, const TRect& b) { return EdgeOf(a, edge) < EdgeOf(b, edge); });
        Build(tree, 2 * node, begin, middle, (edge + 1) % 4);
        Build(tree, 2 * node + 1, middle, end, (edge + 1) % 4);
        tree.Reach[node] = Union(tree.Reach[2 * node], tree.Reach[2 * node + 1]);
        return;
    }
    TRect reach = tree.Rects[begin];
    for (std::size_t i = begin + 1; i < end; ++i) reach = Union(reach, tree.Rects[i]);
    tree.Reach[node] = reach;
}

bool TCoverage::Contains(const TTree& tree, const TRect& rect) {
    const std::size_t leaves = tree.Rects.size() / LeafSize;
    std::array<std::size_t, 64> pending;  // the depth of a tree at most doubles it
    std::size_t count = 0;
    pending[count++] = 1;
    while (count > 0) {
        const std::size_t node = pending[--count];
        if (!Covers(tree.Reach[node], rect)) continue;
        if (node < leaves) {
            pending[count++] = 2 * node;
            pending[count++] = 2 * node + 1;
            continue;
        }
        const auto begin = tree.Rects.begin() + static_cast<std::ptrdiff_t>((node - leaves) * LeafSize);
        if (std::any_of(begin, begin + LeafSize, [&](const TRect& r) { return Covers(r, rect); }))
            return true;
    }
    return false;
}

bool TCoverage::IsCovered(const TRect& rect) {
    for (const TRect& seen : FRecent)
        if (Covers(seen, rect)) return true;
    for (const TTree& tree : FTrees)
        if (Contains(tree, rect)) return true;
    FRecent.push_back(rect);
    if (FRecent.size() < LeafSize) return false;
    TTree tree;
    tree.Rects.swap(FRecent);
    // Trees of one size are merged, so that there are few of them.
    while (!FTrees.empty() && FTrees.back().Rects.size() == tree.Rects.size()) {
        const std::vector<TRect>& last = FTrees.back().Rects;
        tree.Rects.insert(tree.Rects.end(), last.begin(), last.end());
        FTrees.pop_back();
    }
    tree.Reach.resize(2 * tree.Rects.size() / LeafSize);
    Build(tree, 1, 0, tree.Rects.size(), 0);
    FTrees.push_back(std::move(tree));
    return false;
}

}  // namespace rux
