// The built-in face for Latin letters, so that pictures have text on a machine without any fonts.
#pragma once

#include <array>
#include <cstdint>

namespace rux {

inline constexpr int HLatinColumns = 5, HLatinRows = 9;
/// Capitals take seven rows, two lie below the base line.
struct HLatinGlyph {
    /// From the top down, the left column in the highest of HLatinColumns bits.
    std::array<std::uint8_t, HLatinRows> Rows{};
    /// Pixels to the next character.
    int Advance = 0;
};

/// nil for what the face lacks: all but 20 to 7E.
const HLatinGlyph* LatinGlyph(unsigned char character);

}  // namespace rux
