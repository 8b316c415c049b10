// The system's code page: what a character is, and the ways to and from UTF-16 and UTF-8.
//
// All text inside the system is a byte string in this code page. It is set once, by the platform, before any
// other thread runs; afterwards it is only read.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace rux {

/// Facts of one code page, as the platform knows them.
struct TCodePageTables {
    unsigned Number = 0;
    /// True where a byte opens a character of two bytes.
    std::array<bool, 256> Lead{};
    /// Index: the byte, or lead * 256 + trail. 0 stands for "no such character" (index 0 excepted).
    std::vector<char16_t> ToWide;
    /// Index: the UTF-16 unit. The value is the byte, or lead * 256 + trail; 0 as above.
    std::vector<std::uint16_t> FromWide;
};

/// Makes the tables known and makes them the current code page. Tables live until the process ends. Bytes
/// below 80 are ASCII whatever the tables say: none of them opens a character of two bytes.
void SetAnsiCodePage(TCodePageTables tables);
/// The tables in force, both vectors complete (65,536 entries): for folding case, which goes by UTF-16.
const TCodePageTables& CurrentCodePage();
/// Number of the current code page; 20127 (seven-bit text) until one was set.
unsigned AnsiCodePage();
/// True when `byte` opens a character of two bytes in the current code page.
bool IsLeadByte(unsigned char byte);

/// Code page to UTF-16; an impossible sequence gives U+FFFD.
std::u16string AnsiToWide(std::string_view text);
/// UTF-16 to code page; what it lacks becomes '?', one for each unit.
std::string WideToAnsi(std::u16string_view text);
/// Code page to UTF-8; surrogates are encoded one by one (three bytes each).
std::string AnsiToUtf8(std::string_view text);
/// UTF-8 to UTF-16 as the run-time library decodes it: one to three bytes, and any malformed or cut sequence
/// makes the whole result empty. A lead byte from F0 on is read as one of three bytes.
std::u16string Utf8Decode(std::string_view utf8);
/// UTF-8 to the code page by way of Utf8Decode.
std::string Utf8ToAnsi(std::string_view utf8);
/// A source literal (UTF-8) in the code page.
std::string Ansi(std::string_view utf8Literal);

/// Steps over a text by characters of the code page. Every scanner uses it, so that a trail byte is never
/// taken for a delimiter, a backslash or a letter.
class TTextCursor {
 public:
    /// With `placeholders`, the byte FE where it begins a character is a character of one byte: it stands
    /// for an escaped comma inside an argument.
    explicit TTextCursor(std::string_view text, std::size_t start = 0, bool placeholders = false)
        : FText(text), FPos(std::min(start, text.size())), FPlaceholders(placeholders) {}

    bool AtEnd() const { return FPos >= FText.size(); }
    /// Offset of the current character, in bytes from 0.
    std::size_t Pos() const { return FPos; }
    /// Length of the current character: 1 or 2 bytes; 0 at the end. A lead byte and any byte behind it are
    /// one character, a lead byte at the very end is one of its own.
    std::size_t Length() const {
        if (AtEnd()) return 0;
        const auto byte = static_cast<unsigned char>(FText[FPos]);
        return byte < 0x80 ? 1 : LengthBeyondAscii(byte);
    }
    /// True when the current character is the single byte `c`.
    bool Is(char c) const { return !AtEnd() && FText[FPos] == c && Length() == 1; }
    std::string_view Char() const { return FText.substr(FPos, Length()); }
    void Next() { FPos += Length(); }

 private:
    std::size_t LengthBeyondAscii(unsigned char byte) const;
    std::string_view FText;
    std::size_t FPos;
    bool FPlaceholders;
};

}  // namespace rux
