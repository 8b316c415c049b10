#include "Engine/Locator/RUXCoverage.h"

#include <algorithm>
#include <array>

namespace rux {

namespace {

/// Up to so many rectangles are compared one by one.
constexpr std::size_t RecentLimit = 32;
/// Rectangles of one leaf; divides RecentLimit by a power of two.
constexpr std::size_t LeafSize = 8;

bool Covers(const TRect& outer, const TRect& inner) {
    return outer.Top <= inner.Top && outer.Left <= inner.Left && outer.Bottom >= inner.Bottom &&
           outer.Right >= inner.Right;
}

TRect Union(const TRect& a, const TRect& b) {
    return {std::min(a.Left, b.Left), std::min(a.Top, b.Top), std::max(a.Right, b.Right),
            std::max(a.Bottom, b.Bottom)};
}

/// Spreads the bits of a side so that those of the three others fit in between. What lies beyond 16 bits is
/// put at their end: the order only decides how quickly something is found.
std::uint64_t Spread(std::int32_t side) {
    constexpr std::int32_t limit = 0x8000;
    auto bits = static_cast<std::uint64_t>(std::clamp(side, -limit, limit - 1) + limit);
    bits = (bits | (bits << 24)) & 0x000000FF000000FFu;
    bits = (bits | (bits << 12)) & 0x000F000F000F000Fu;
    bits = (bits | (bits << 6)) & 0x0303030303030303u;
    return (bits | (bits << 3)) & 0x1111111111111111u;
}

std::uint64_t PlaceOf(const TRect& r) {
    return Spread(r.Left) | (Spread(r.Top) << 1) | (Spread(r.Right) << 2) | (Spread(r.Bottom) << 3);
}

}  // namespace

void TCoverage::Build(TTree& tree) {
    const std::size_t leaves = tree.Seen.size() / LeafSize;
    tree.Reach.resize(2 * leaves);
    for (std::size_t leaf = 0; leaf < leaves; ++leaf) {
        TRect reach = tree.Seen[leaf * LeafSize].Rect;
        for (std::size_t i = 1; i < LeafSize; ++i) reach = Union(reach, tree.Seen[leaf * LeafSize + i].Rect);
        tree.Reach[leaves + leaf] = reach;
    }
    for (std::size_t node = leaves; node-- > 1;)
        tree.Reach[node] = Union(tree.Reach[2 * node], tree.Reach[2 * node + 1]);
}

bool TCoverage::Contains(const TTree& tree, const TRect& rect) {
    const std::size_t leaves = tree.Seen.size() / LeafSize;
    std::array<std::size_t, 64> pending;  // one for each level of a tree, and its sibling
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
        const auto begin = tree.Seen.begin() + static_cast<std::ptrdiff_t>((node - leaves) * LeafSize);
        if (std::any_of(begin, begin + LeafSize, [&](const TSeen& s) { return Covers(s.Rect, rect); }))
            return true;
    }
    return false;
}

TCoverage::TTree TCoverage::Merged(const std::vector<TSeen>& a, const std::vector<TSeen>& b) {
    TTree tree;
    tree.Seen.resize(a.size() + b.size());
    std::merge(a.begin(), a.end(), b.begin(), b.end(), tree.Seen.begin(),
               [](const TSeen& x, const TSeen& y) { return x.Place < y.Place; });
    return tree;
}

void TCoverage::AddTree() {
    TTree tree;
    for (const TRect& rect : FRecent) tree.Seen.push_back({PlaceOf(rect), rect});
    FRecent.clear();
    std::sort(tree.Seen.begin(), tree.Seen.end(),
              [](const TSeen& x, const TSeen& y) { return x.Place < y.Place; });
    // Trees of one size are merged, so that there are few of them.
    while (!FTrees.empty() && FTrees.back().Seen.size() == tree.Seen.size()) {
        tree = Merged(FTrees.back().Seen, tree.Seen);
        FTrees.pop_back();
    }
    Build(tree);
    FTrees.push_back(std::move(tree));
}

bool TCoverage::IsCovered(const TRect& rect) {
    for (const TRect& seen : FRecent)
        if (Covers(seen, rect)) return true;
    for (const TTree& tree : FTrees)
        if (Contains(tree, rect)) return true;
    FRecent.push_back(rect);
    if (FRecent.size() == RecentLimit) AddTree();
    return false;
}

}  // namespace rux
