// Case in all scripts of the code page. Letters are folded as UTF-16, one unit to one unit.
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {
namespace {

/// A run of small letters and the distance to their capitals.
struct TLetterRange {
    char16_t First, Last;
    int Distance;
};

constexpr TLetterRange SmallLetters[] = {
    {u'a', u'z', 0x20},     {0x00E0, 0x00F6, 0x20}, {0x00F8, 0x00FE, 0x20}, {0x00FF, 0x00FF, -0x79},
    {0x03AC, 0x03AC, 0x26}, {0x03AD, 0x03AF, 0x25}, {0x03B1, 0x03C1, 0x20}, {0x03C2, 0x03C2, 0x1F},
    {0x03C3, 0x03CB, 0x20}, {0x03CC, 0x03CC, 0x40}, {0x03CD, 0x03CE, 0x3F}, {0x0430, 0x044F, 0x20},
    {0x0450, 0x045F, 0x50}, {0x2170, 0x217F, 0x10}, {0xFF41, 0xFF5A, 0x20},
};

char16_t UpperUnit(char16_t unit) {
    for (const TLetterRange& range : SmallLetters) {
        if (unit < range.First) return unit;
        if (unit <= range.Last) return static_cast<char16_t>(unit - range.Distance);
    }
    return unit;
}

/// The capital of a character as its byte, or lead * 256 + trail; the character itself where there is none.
unsigned UpperChar(std::string_view character, const TCodePageTables& page) {
    unsigned bytes = static_cast<unsigned char>(character[0]);
    if (bytes < 0x80) return bytes >= 'a' && bytes <= 'z' ? bytes - 0x20 : bytes;
    if (character.size() == 2) bytes = bytes * 256 + static_cast<unsigned char>(character[1]);
    const unsigned capital = page.FromWide[UpperUnit(page.ToWide[bytes])];
    return capital ? capital : bytes;
}

}  // namespace

std::string AnsiUpperCase(std::string_view text) {
    const TCodePageTables& page = CurrentCodePage();
    std::string out;
    out.reserve(text.size());
    for (TTextCursor at(text); !at.AtEnd(); at.Next()) {
        const unsigned bytes = UpperChar(at.Char(), page);
        if (bytes > 0xFF) out += static_cast<char>(bytes >> 8);
        out += static_cast<char>(bytes & 0xFF);
    }
    return out;
}

bool AnsiSameText(std::string_view a, std::string_view b) {
    const TCodePageTables& page = CurrentCodePage();
    TTextCursor atA(a), atB(b);
    for (; !atA.AtEnd() && !atB.AtEnd(); atA.Next(), atB.Next()) {
        if (UpperChar(atA.Char(), page) != UpperChar(atB.Char(), page)) return false;
    }
    return atA.AtEnd() && atB.AtEnd();
}

}  // namespace rux
