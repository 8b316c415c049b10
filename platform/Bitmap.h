// A picture in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace rux {

struct TColor {
    std::uint8_t Red = 0, Green = 0, Blue = 0;
    friend bool operator==(const TColor&, const TColor&) = default;
};

/// Rows from top to bottom, each pixel from left to right, without gaps.
struct TBitmap {
    int Width = 0, Height = 0;
    std::vector<TColor> Pixels;

    bool Empty() const { return Pixels.empty(); }
    const TColor& At(int x, int y) const {
        return Pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) +
                      static_cast<std::size_t>(x)];
    }
};

/// Pixels of the largest picture that anybody takes; a window that is larger cannot be photographed.
inline constexpr std::int64_t BitmapPixelLimit = std::int64_t{1} << 26;

}  // namespace rux
