#include "rtl/RegExprReader.h"

#include "rtl/Chars.h"
#include "rtl/CodePage.h"
#include "rtl/RegExpr.h"

namespace rux {

void TRegExprReader::Fail(const char* what) const {
    const std::size_t place = RegExprBytes(Since(0));
    throw ERegExpr(std::string("TRegExpr(comp): ") + what + " (pos " + std::to_string(place) + ")");
}

char16_t TRegExprReader::TakeEscaped() {
    const char16_t c = FText[FPos++];
    constexpr std::u16string_view names = u"tnrfae", codes = u"\t\n\r\f\a\x1B";
    const std::size_t place = names.find(c);
    if (place != std::u16string_view::npos) return codes[place];
    if (c != u'x') return c;
    const unsigned code = TakeHexCode();
    if (!IsLeadByte(static_cast<unsigned char>(code)) || Peek() != u'\\' || Peek(1) != u'x') {
        return static_cast<char16_t>(code);
    }
    FPos += 2;
    return static_cast<char16_t>(code << 8 | TakeHexCode());
}

/// Two digits, or any number of them between braces as long as the value stays below 256.
unsigned TRegExprReader::TakeHexCode() {
    if (Peek() != u'{') {
        const unsigned high = TakeHexDigit();
        return high << 4 | TakeHexDigit();
    }
    unsigned code = 0;
    for (++FPos; Peek() != u'}';) {
        if (code > 0xF && Peek()) Fail("Hex Code After \\x Is Too Big");
        code = code << 4 | TakeHexDigit();
    }
    ++FPos;
    return code;
}

unsigned TRegExprReader::TakeHexDigit() {
    if (!Peek()) Fail("No Hex Code After \\x");
    const unsigned digit = Peek() < 0x80 ? HexDigit(static_cast<char>(Peek())) : NoHexDigit;
    if (digit == NoHexDigit) Fail("Bad Hex Digit");
    ++FPos;
    return digit;
}

bool TRegExprReader::TakeBraces(TCount& count) {
    const std::size_t start = FPos++;
    const std::u16string_view least = TakeDigits();
    if (!least.empty() && (Peek() == u'}' || Peek() == u',')) {
        count.Min = count.Max = Number(least);
        if (Peek() == u',') {
            ++FPos;
            const std::u16string_view most = TakeDigits();
            if (Peek() == u'}') count.Max = most.empty() ? RegExprNoLimit : Number(most);
        }
        if (Peek() == u'}') {
            if (count.Min > count.Max) Fail("BRACE Min Param Greater then Max");
            return true;
        }
    }
    FPos = start;
    return false;
}

std::u16string_view TRegExprReader::TakeDigits() {
    const std::size_t start = FPos;
    while (Peek() >= u'0' && Peek() <= u'9') ++FPos;
    return Since(start);
}

std::uint32_t TRegExprReader::Number(std::u16string_view digits) const {
    constexpr std::size_t mostDigits = 8;
    if (digits.size() > mostDigits) Fail("BRACES Argument Too Big");
    std::uint32_t value = 0;
    for (const char16_t digit : digits) value = value * 10 + (digit - u'0');
    return value;
}

}  // namespace rux
