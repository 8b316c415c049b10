// Characters beyond Latin, from the system's bitmap font file where one is installed.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace rux {

/// A square of 16 pixels a side, the left column in the highest bit. Half-width characters fill its left
/// half.
struct HBitmapGlyph {
    bool Wide = false;
    std::array<std::uint16_t, 16> Rows{};
};

/// A font in the format of Unifont: lines of a code point, a colon and the rows, all as hexadecimal digits.
class HBitmapFont {
 public:
    /// The font of this process, read when it is first asked for: the file named by the environment variable
    /// RUX_BITMAP_FONT (empty: none), else where the system's package puts it. Without a readable file the
    /// font is empty. Never nil. Any thread.
    static std::shared_ptr<const HBitmapFont> Current();
    /// nil when the font lacks it.
    const HBitmapGlyph* Find(char16_t character) const {
        const std::uint16_t place = FPlaces.empty() ? 0 : FPlaces[character];
        return place ? &FGlyphs[place - 1u] : nullptr;
    }

 private:
    void Read(const std::string& path);
    void ReadLine(const std::string& line);
    void Add(char16_t character, const HBitmapGlyph& glyph);

    /// Place in the row of glyphs, from 1, by character; 0 for none.
    std::vector<std::uint16_t> FPlaces;
    std::vector<HBitmapGlyph> FGlyphs;
};

}  // namespace rux
