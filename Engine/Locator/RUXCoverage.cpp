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

/// Spreads the bits of a number so that those of another one fit in between.
std::uint64_t Spread(std::int32_t number) {
    std::uint64_t bits = static_cast<std::uint32_t>(number) ^ 0x80000000u;  // negative numbers come first
    bits = (bits | (bits << 16)) & 0x0000FFFF0000FFFFu;
    bits = (bits | (bits << 8)) & 0x00FF00FF00FF00FFu;
    bits = (bits | (bits << 4)) & 0x0F0F0F0F0F0F0F0Fu;
    bits = (bits | (bits << 2)) & 0x3333333333333333u;
    return (bits | (bits << 1)) & 0x5555555555555555u;
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
    for (const TRect& rect : FRecent)
        tree.Seen.push_back({Spread(rect.Left) | (Spread(rect.Top) << 1), rect});
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
