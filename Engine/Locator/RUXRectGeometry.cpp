#include "Engine/Locator/RUXRectGeometry.h"

#include <algorithm>
#include <cmath>

#include "rtl/Exceptions.h"

namespace rux {

namespace {

constexpr std::int32_t LineTolerance = 5;

/// Differences and squares wrap as 32-bit integers do where overflow is not checked.
std::int32_t WrappedMinus(std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

double EdgeDistance(std::int32_t a, std::int32_t b) {
    const std::int32_t difference = WrappedMinus(a, b);
    return difference < 0 ? static_cast<double>(WrappedMinus(0, difference)) : difference;
}

double PointDistance(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
    const auto dx = static_cast<std::uint32_t>(WrappedMinus(x1, x2));
    const auto dy = static_cast<std::uint32_t>(WrappedMinus(y1, y2));
    const auto sum = static_cast<std::int32_t>(dx * dx + dy * dy);
    if (sum < 0) throw EInvalidOp("Invalid floating point operation");
    return std::sqrt(static_cast<double>(sum));
}

}  // namespace

bool DirectionHolds(char direction, const TRect& a, const TRect& k) {
    switch (direction) {
        case '<':
            return a.Left >= k.Right;
        case '>':
            return a.Right <= k.Left;
        case '^':
            return a.Top >= k.Bottom;
        case '_':
            return a.Bottom <= k.Top;
        default:
            return false;
    }
}

double RectGap(const TRect& a, const TRect& b) {
    if (a.Top <= b.Bottom && a.Bottom >= b.Top)
        return std::min(EdgeDistance(a.Right, b.Left), EdgeDistance(a.Left, b.Right));
    if (a.Left <= b.Right && a.Right >= b.Left)
        return std::min(EdgeDistance(a.Bottom, b.Top), EdgeDistance(a.Top, b.Bottom));
    return std::min(
        {PointDistance(a.Left, a.Top, b.Right, b.Bottom), PointDistance(a.Right, a.Bottom, b.Left, b.Top),
         PointDistance(b.Left, b.Bottom, a.Right, a.Top), PointDistance(b.Right, b.Top, a.Left, a.Bottom)});
}

int CompareReadingOrder(const TRect& a, const TRect& b) {
    if (static_cast<std::int64_t>(b.Top) - LineTolerance > a.Top) return -1;
    if (static_cast<std::int64_t>(a.Top) - LineTolerance > b.Top) return 1;
    return a.Left < b.Left ? -1 : a.Left > b.Left ? 1 : 0;
}

}  // namespace rux
