// The nearest of many rectangles in a direction.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/Types.h"

namespace rux {

/// Answers for anchor after anchor which candidate a comparison one by one would keep: the smallest gap, of
/// equal ones the earliest. Candidates of ordinary coordinates lie in a tree; the few others, whose gaps may
/// wrap, are compared one by one.
class TNearest {
 public:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    explicit TNearest(std::vector<TRect> candidates);
    /// Index of the kept candidate; None when none lies in that direction. Raises EInvalidOp where comparing
    /// the candidates does.
    std::size_t Find(char direction, const TRect& anchor) const;

 private:
    struct TNode {
        /// Extremes of the edges below: least and greatest of each.
        TRect Least, Greatest;
        std::size_t FirstIndex = 0;
        std::size_t Begin = 0, End = 0;
        /// 0 for a leaf; the other child follows its node directly.
        std::size_t Right = 0;
    };
    struct TBest {
        std::size_t Index = None;
        double Gap = 0;
        void Offer(std::size_t index, double gap);
    };
    std::size_t Build(std::size_t begin, std::size_t end, bool byX);
    TBest FindTame(char direction, const TRect& anchor) const;
    std::size_t FindPlain(char direction, const TRect& anchor) const;

    std::vector<TRect> FCandidates;
    std::vector<std::size_t> FOrder;
    std::vector<TNode> FNodes;
    std::vector<std::size_t> FWild;
};

}  // namespace rux
