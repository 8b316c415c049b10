#include "Engine/Locator/RUXNearest.h"

#include <algorithm>
#include <cmath>

#include "Engine/Locator/RUXRectGeometry.h"

namespace rux {

namespace {

constexpr std::size_t LeafSize = 8;
/// Within these coordinates no sum of squares wraps.
constexpr std::int32_t TameLimit = 16383;

bool IsTame(const TRect& r) {
    return r.Left >= -TameLimit && r.Top >= -TameLimit && r.Right <= TameLimit && r.Bottom <= TameLimit &&
           r.Left <= r.Right && r.Top <= r.Bottom;
}

}  // namespace

void TNearest::TBest::Offer(std::size_t index, double gap) {
    if (Index != None && (Gap < gap || (Gap == gap && Index < index))) return;
    Index = index;
    Gap = gap;
}

TNearest::TNearest(std::vector<TRect> candidates) : FCandidates(std::move(candidates)) {
    for (std::size_t i = 0; i < FCandidates.size(); ++i)
        (IsTame(FCandidates[i]) ? FOrder : FWild).push_back(i);
    if (!FOrder.empty()) Build(0, FOrder.size(), true);
}

std::size_t TNearest::Build(std::size_t begin, std::size_t end, bool byX) {
    const std::size_t place = FNodes.size();
    FNodes.emplace_back();
    TNode node;
    node.Begin = begin;
    node.End = end;
    node.FirstIndex = FOrder[begin];
    node.Least = node.Greatest = FCandidates[FOrder[begin]];
    for (std::size_t i = begin + 1; i < end; ++i) {
        const TRect& r = FCandidates[FOrder[i]];
        node.FirstIndex = std::min(node.FirstIndex, FOrder[i]);
        node.Least = {std::min(node.Least.Left, r.Left), std::min(node.Least.Top, r.Top),
                      std::min(node.Least.Right, r.Right), std::min(node.Least.Bottom, r.Bottom)};
        node.Greatest = {std::max(node.Greatest.Left, r.Left), std::max(node.Greatest.Top, r.Top),
                         std::max(node.Greatest.Right, r.Right), std::max(node.Greatest.Bottom, r.Bottom)};
    }
    if (end - begin > LeafSize) {
        const std::size_t middle = begin + (end - begin) / 2;
        const auto at = [&](std::size_t i) { return FOrder.begin() + static_cast<std::ptrdiff_t>(i); };
        std::nth_element(at(begin), at(middle), at(end), [&](std::size_t a, std::size_t b) {
            const TRect &x = FCandidates[a], &y = FCandidates[b];
            return byX ? x.Left + x.Right < y.Left + y.Right : x.Top + x.Bottom < y.Top + y.Bottom;
        });
        Build(begin, middle, !byX);
        node.Right = Build(middle, end, !byX);
    }
    FNodes[place] = node;
    return place;
}

TNearest::TBest TNearest::FindTame(char direction, const TRect& a) const {
    TBest best;
    if (FNodes.empty()) return best;
    // No candidate below a node lies in the direction unless the extreme one does.
    const auto reachable = [&](const TNode& n) {
        switch (direction) {
            case '<':
                return n.Least.Right <= a.Left;
            case '>':
                return n.Greatest.Left >= a.Right;
            case '^':
                return n.Least.Bottom <= a.Top;
            default:
                return n.Greatest.Top >= a.Bottom;
        }
    };
    const auto leastGap = [&](const TNode& n) {
        const std::int32_t dx = std::max({0, n.Least.Left - a.Right, a.Left - n.Greatest.Right});
        const std::int32_t dy = std::max({0, n.Least.Top - a.Bottom, a.Top - n.Greatest.Bottom});
        return std::sqrt(static_cast<double>(dx * dx + dy * dy));
    };
    std::vector<std::size_t> pending{0};
    while (!pending.empty()) {
        const std::size_t place = pending.back();
        pending.pop_back();
        const TNode& node = FNodes[place];
        if (!reachable(node)) continue;
        if (best.Index != None) {
            const double least = leastGap(node);
            if (least > best.Gap || (least == best.Gap && node.FirstIndex > best.Index)) continue;
        }
        if (node.Right) {
            const bool leftFirst = leastGap(FNodes[place + 1]) <= leastGap(FNodes[node.Right]);
            pending.push_back(leftFirst ? node.Right : place + 1);
            pending.push_back(leftFirst ? place + 1 : node.Right);
            continue;
        }
        for (std::size_t i = node.Begin; i < node.End; ++i) {
            const TRect& k = FCandidates[FOrder[i]];
            if (DirectionHolds(direction, a, k)) best.Offer(FOrder[i], RectGap(a, k));
        }
    }
    return best;
}

std::size_t TNearest::FindPlain(char direction, const TRect& anchor) const {
    std::size_t best = None;
    for (std::size_t i = 0; i < FCandidates.size(); ++i) {
        if (!DirectionHolds(direction, anchor, FCandidates[i])) continue;
        const bool keep =
            best != None && RectGap(anchor, FCandidates[best]) <= RectGap(anchor, FCandidates[i]);
        if (!keep) best = i;
    }
    return best;
}

std::size_t TNearest::Find(char direction, const TRect& anchor) const {
    if (!IsTame(anchor)) return FindPlain(direction, anchor);
    std::vector<std::size_t> wild;
    for (const std::size_t i : FWild)
        if (DirectionHolds(direction, anchor, FCandidates[i])) wild.push_back(i);
    TBest best = FindTame(direction, anchor);
    // A single candidate is kept without its gap being asked.
    if (best.Index == None && wild.size() == 1) return wild.front();
    for (const std::size_t i : wild) best.Offer(i, RectGap(anchor, FCandidates[i]));
    return best.Index;
}

}  // namespace rux
