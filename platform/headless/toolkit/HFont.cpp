#include "platform/headless/toolkit/HFont.h"

#include <algorithm>
#include <cmath>

namespace rux {

namespace {

/// Halves go away from zero, as the system's own multiply-and-divide rounds.
int Scaled(int value, int numerator, int denominator) {
    const double exact = static_cast<double>(value) * numerator / denominator;
    return static_cast<int>(std::clamp(std::round(exact), -1e9, 1e9));
}

}  // namespace

int HFont::Size() const {
    return Scaled(FHeight, -72, 96);
}

void HFont::SetSize(int value) {
    FHeight = Scaled(value, -96, 72);
}

}  // namespace rux
