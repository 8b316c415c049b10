#include "platform/headless/drawing/HLatinFace.h"

namespace rux {

namespace {

/// Rows of each character from the space to the tilde, from the top down.
constexpr const char* Drawn[] = {
    ".....|.....|.....|.....|.....|.....|.....|.....|.....",  // space
    "..X..|..X..|..X..|..X..|..X..|.....|..X..|.....|.....",  // !
    ".X.X.|.X.X.|.X.X.|.....|.....|.....|.....|.....|.....",  // "
    ".X.X.|.X.X.|XXXXX|.X.X.|XXXXX|.X.X.|.X.X.|.....|.....",  // #
    "..X..|.XXXX|X.X..|.XXX.|..X.X|XXXX.|..X..|.....|.....",  // $
    "XX..X|XX..X|...X.|..X..|.X...|X..XX|X..XX|.....|.....",  // %
    ".XX..|X..X.|X..X.|.XX..|X.X.X|X..X.|.XX.X|.....|.....",  // &
    "..X..|..X..|..X..|.....|.....|.....|.....|.....|.....",  // '
    "..X..|.X...|X....|X....|X....|X....|X....|.X...|..X..",  // (
    "X....|.X...|..X..|..X..|..X..|..X..|..X..|.X...|X....",  // )
    ".....|..X..|X.X.X|.XXX.|X.X.X|..X..|.....|.....|.....",  // *
    ".....|..X..|..X..|XXXXX|..X..|..X..|.....|.....|.....",  // +
    ".....|.....|.....|.....|.....|.....|.X...|.X...|X....",  // ,
    ".....|.....|.....|.XXX.|.....|.....|.....|.....|.....",  // -
    ".....|.....|.....|.....|.....|.....|X....|.....|.....",  // .
    "...X.|...X.|..X..|..X..|.X...|.X...|X....|X....|.....",  // /
    ".XXX.|X...X|X..XX|X.X.X|XX..X|X...X|.XXX.|.....|.....",  // 0
    "..X..|.XX..|..X..|..X..|..X..|..X..|.XXX.|.....|.....",  // 1
    ".XXX.|X...X|....X|..XX.|.X...|X....|XXXXX|.....|.....",  // 2
    ".XXX.|X...X|....X|..XX.|....X|X...X|.XXX.|.....|.....",  // 3
    "...X.|..XX.|.X.X.|X..X.|XXXXX|...X.|...X.|.....|.....",  // 4
    "XXXXX|X....|XXXX.|....X|....X|X...X|.XXX.|.....|.....",  // 5
    "..XX.|.X...|X....|XXXX.|X...X|X...X|.XXX.|.....|.....",  // 6
    "XXXXX|....X|...X.|..X..|..X..|.X...|.X...|.....|.....",  // 7
    ".XXX.|X...X|X...X|.XXX.|X...X|X...X|.XXX.|.....|.....",  // 8
    ".XXX.|X...X|X...X|.XXXX|....X|...X.|.XX..|.....|.....",  // 9
    ".....|.....|X....|.....|.....|.....|X....|.....|.....",  // :
    ".....|.....|.X...|.....|.....|.....|.X...|.X...|X....",  // ;
    ".....|...X.|..X..|.X...|..X..|...X.|.....|.....|.....",  // <
    ".....|.....|XXXXX|.....|XXXXX|.....|.....|.....|.....",  // =
    ".....|.X...|..X..|...X.|..X..|.X...|.....|.....|.....",  // >
    ".XXX.|X...X|....X|...X.|..X..|.....|..X..|.....|.....",  // ?
    ".XXX.|X...X|X.XXX|X.X.X|X.XXX|X....|.XXXX|.....|.....",  // @
    "..X..|.X.X.|X...X|X...X|XXXXX|X...X|X...X|.....|.....",  // A
    "XXXX.|X...X|X...X|XXXX.|X...X|X...X|XXXX.|.....|.....",  // B
    ".XXX.|X...X|X....|X....|X....|X...X|.XXX.|.....|.....",  // C
    "XXX..|X..X.|X...X|X...X|X...X|X..X.|XXX..|.....|.....",  // D
    "XXXXX|X....|X....|XXXX.|X....|X....|XXXXX|.....|.....",  // E
    "XXXXX|X....|X....|XXXX.|X....|X....|X....|.....|.....",  // F
    ".XXX.|X...X|X....|X..XX|X...X|X...X|.XXXX|.....|.....",  // G
    "X...X|X...X|X...X|XXXXX|X...X|X...X|X...X|.....|.....",  // H
    ".XXX.|..X..|..X..|..X..|..X..|..X..|.XXX.|.....|.....",  // I
    "..XXX|...X.|...X.|...X.|...X.|X..X.|.XX..|.....|.....",  // J
    "X...X|X..X.|X.X..|XX...|X.X..|X..X.|X...X|.....|.....",  // K
    "X....|X....|X....|X....|X....|X....|XXXXX|.....|.....",  // L
    "X...X|XX.XX|X.X.X|X.X.X|X...X|X...X|X...X|.....|.....",  // M
    "X...X|XX..X|XX..X|X.X.X|X..XX|X..XX|X...X|.....|.....",  // N
    ".XXX.|X...X|X...X|X...X|X...X|X...X|.XXX.|.....|.....",  // O
    "XXXX.|X...X|X...X|XXXX.|X....|X....|X....|.....|.....",  // P
    ".XXX.|X...X|X...X|X...X|X.X.X|X..X.|.XX.X|.....|.....",  // Q
    "XXXX.|X...X|X...X|XXXX.|X.X..|X..X.|X...X|.....|.....",  // R
    ".XXXX|X....|X....|.XXX.|....X|....X|XXXX.|.....|.....",  // S
    "XXXXX|..X..|..X..|..X..|..X..|..X..|..X..|.....|.....",  // T
    "X...X|X...X|X...X|X...X|X...X|X...X|.XXX.|.....|.....",  // U
    "X...X|X...X|X...X|X...X|X...X|.X.X.|..X..|.....|.....",  // V
    "X...X|X...X|X...X|X.X.X|X.X.X|XX.XX|X...X|.....|.....",  // W
    "X...X|X...X|.X.X.|..X..|.X.X.|X...X|X...X|.....|.....",  // X
    "X...X|X...X|.X.X.|..X..|..X..|..X..|..X..|.....|.....",  // Y
    "XXXXX|....X|...X.|..X..|.X...|X....|XXXXX|.....|.....",  // Z
    "XXX..|X....|X....|X....|X....|X....|X....|X....|XXX..",  // [
    "X....|X....|.X...|..X..|...X.|....X|....X|.....|.....",  // backslash
    "XXX..|..X..|..X..|..X..|..X..|..X..|..X..|..X..|XXX..",  // ]
    "..X..|.X.X.|X...X|.....|.....|.....|.....|.....|.....",  // ^
    ".....|.....|.....|.....|.....|.....|.....|XXXXX|.....",  // _
    ".X...|..X..|...X.|.....|.....|.....|.....|.....|.....",  // `
    ".....|.....|.XXX.|....X|.XXXX|X...X|.XXXX|.....|.....",  // a
    "X....|X....|X.XX.|XX..X|X...X|X...X|XXXX.|.....|.....",  // b
    ".....|.....|.XXX.|X....|X....|X...X|.XXX.|.....|.....",  // c
    "....X|....X|.XX.X|X..XX|X...X|X...X|.XXXX|.....|.....",  // d
    ".....|.....|.XXX.|X...X|XXXXX|X....|.XXX.|.....|.....",  // e
    "..X..|.X...|XXX..|.X...|.X...|.X...|.X...|.....|.....",  // f
    ".....|.....|.XXXX|X...X|X...X|X...X|.XXXX|....X|.XXX.",  // g
    "X....|X....|X.XX.|XX..X|X...X|X...X|X...X|.....|.....",  // h
    "X....|.....|X....|X....|X....|X....|X....|.....|.....",  // i
    ".X...|.....|.X...|.X...|.X...|.X...|.X...|.X...|X....",  // j
    "X....|X....|X..X.|X.X..|XX...|X.X..|X..X.|.....|.....",  // k
    "X....|X....|X....|X....|X....|X....|X....|.....|.....",  // l
    ".....|.....|XX.X.|X.X.X|X.X.X|X.X.X|X.X.X|.....|.....",  // m
    ".....|.....|X.XX.|XX..X|X...X|X...X|X...X|.....|.....",  // n
    ".....|.....|.XXX.|X...X|X...X|X...X|.XXX.|.....|.....",  // o
    ".....|.....|XXXX.|X...X|X...X|X...X|XXXX.|X....|X....",  // p
    ".....|.....|.XXXX|X...X|X...X|X...X|.XXXX|....X|....X",  // q
    ".....|.....|X.X..|XX...|X....|X....|X....|.....|.....",  // r
    ".....|.....|.XXXX|X....|.XXX.|....X|XXXX.|.....|.....",  // s
    ".X...|.X...|XXX..|.X...|.X...|.X...|..X..|.....|.....",  // t
    ".....|.....|X...X|X...X|X...X|X..XX|.XX.X|.....|.....",  // u
    ".....|.....|X...X|X...X|X...X|.X.X.|..X..|.....|.....",  // v
    ".....|.....|X...X|X...X|X.X.X|X.X.X|.X.X.|.....|.....",  // w
    ".....|.....|X...X|.X.X.|..X..|.X.X.|X...X|.....|.....",  // x
    ".....|.....|X...X|X...X|X...X|X...X|.XXXX|....X|.XXX.",  // y
    ".....|.....|XXXXX|...X.|..X..|.X...|XXXXX|.....|.....",  // z
    "...XX|..X..|..X..|..X..|.X...|..X..|..X..|..X..|...XX",  // {
    "..X..|..X..|..X..|..X..|..X..|..X..|..X..|..X..|..X..",  // |
    "XX...|..X..|..X..|..X..|...X.|..X..|..X..|..X..|XX...",  // }
    ".....|.....|.X...|X.X.X|...X.|.....|.....|.....|.....",  // ~
};
constexpr int First = 0x20, Count = sizeof Drawn / sizeof *Drawn;
static_assert(First + Count == 0x7F);

using TFace = std::array<HLatinGlyph, Count>;

constexpr int SpaceAdvance = 4;

/// Digits are of one width, so that numbers stand below each other.
constexpr bool IsDigit(std::size_t place) {
    return place + First >= '0' && place + First <= '9';
}

constexpr HLatinGlyph ReadGlyph(const char* drawn, bool fixed) {
    HLatinGlyph glyph;
    unsigned used = 0;
    std::size_t row = 0;
    for (; *drawn; ++drawn) {
        if (*drawn == '|') {
            ++row;
            continue;
        }
        glyph.Rows[row] = static_cast<std::uint8_t>(glyph.Rows[row] << 1 | (*drawn == 'X'));
    }
    for (const std::uint8_t bits : glyph.Rows) used |= bits;
    if (used == 0) return glyph;
    while (!fixed && !(used & 1u << (HLatinColumns - 1))) {
        used <<= 1;
        for (std::uint8_t& bits : glyph.Rows) bits = static_cast<std::uint8_t>(bits << 1);
    }
    glyph.Advance = HLatinColumns + 1;
    for (; !fixed && !(used & 1); used >>= 1) --glyph.Advance;
    return glyph;
}

constexpr TFace ReadFace() {
    TFace face{};
    for (std::size_t i = 0; i < Count; ++i) face[i] = ReadGlyph(Drawn[i], IsDigit(i));
    face[0].Advance = SpaceAdvance;
    return face;
}

constexpr TFace Face = ReadFace();

}  // namespace

const HLatinGlyph* LatinGlyph(unsigned char character) {
    if (character < First || character >= First + Count) return nullptr;
    return &Face[character - First];
}

}  // namespace rux
