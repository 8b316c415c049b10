// The sort behind reading order.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace rux {

/// A stable bottom-up merge sort: runs of width 1, 2, 4 and so on are merged, alternating between two
/// buffers; on equal keys the element of the left run goes first. `compare(a, b)` is negative when a goes
/// first. The exact course matters, since the order of comparison is not transitive.
template <class T, class Compare>
void MergeSort(std::vector<T>& items, const Compare& compare) {
    std::vector<T> other(items.size());
    std::vector<T>* from = &items;
    std::vector<T>* to = &other;
    for (std::size_t width = 1; width < items.size(); width *= 2) {
        for (std::size_t start = 0; start < from->size(); start += 2 * width) {
            std::size_t left = start, right = std::min(start + width, from->size());
            const std::size_t middle = right, end = std::min(start + 2 * width, from->size());
            for (std::size_t out = start; out < end; ++out) {
                const bool takeLeft =
                    left < middle && (right >= end || compare((*from)[left], (*from)[right]) <= 0);
                (*to)[out] = std::move((*from)[takeLeft ? left++ : right++]);
            }
        }
        std::swap(from, to);
    }
    if (from != &items) items.swap(other);
}

}  // namespace rux
