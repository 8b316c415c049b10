#include "platform/headless/forms/FormText.h"

#include <algorithm>
#include <utility>

#include "platform/headless/forms/FormChars.h"
#include "rtl/CodePage.h"

namespace rux {

namespace {

constexpr char32_t Malformed = 0xFFFD;

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

struct TUtf8Char {
    char32_t Code;
    std::size_t Length;
};

/// The character at the beginning of `text`; a byte that begins none is malformed by itself, so that the
/// characters behind it survive.
TUtf8Char ReadUtf8Char(std::string_view text) {
    auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80) return {lead, 1};
    std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (lead < 0xC2 || lead > 0xF4 || length > text.size()) return {Malformed, 1};
    char32_t code = lead & (0x7Fu >> length);
    for (char c : text.substr(1, length - 1)) {
        if ((c & 0xC0) != 0x80) return {Malformed, 1};
        code = code << 6 | (c & 0x3Fu);
    }
    bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    bool surrogate = code >= 0xD800 && code < 0xE000;
    if (overlong || surrogate || code > 0x10FFFF) return {Malformed, 1};
    return {code, length};
}

/// The run-time library's decoder gives up a whole text for one character beyond 16 bits; here each character
/// stands for itself.
void AppendUtf8(std::u16string& wide, std::string_view utf8) {
    while (!utf8.empty()) {
        auto [code, length] = ReadUtf8Char(utf8);
        utf8.remove_prefix(length);
        if (code < 0x10000) {
            wide += static_cast<char16_t>(code);
            continue;
        }
        wide += static_cast<char16_t>(0xD7C0 + (code >> 10));
        wide += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
    }
}

}  // namespace

TFormCharCode ReadFormCharCode(std::string_view text) {
    constexpr std::uint32_t tooLarge = 0x10000;
    TFormCharCode code;
    bool hexadecimal = text.size() > 1 && text[1] == '$';
    int base = hexadecimal ? 16 : 10;
    for (code.Length = hexadecimal ? 2 : 1; code.Length < text.size(); ++code.Length) {
        int digit = FormHexDigit(text[code.Length]);
        if (digit < 0 || digit >= base) break;
        code.HasDigits = true;
        code.Unit = std::min(code.Unit * base + digit, tooLarge);
    }
    return code;
}

void TFormText::AddChunk(std::string_view chunk) {
    while (!chunk.empty()) {
        if (chunk[0] == '#') {
            TFormCharCode code = ReadFormCharCode(chunk);
            AddCode(code);
            chunk.remove_prefix(code.Length);
            continue;
        }
        std::size_t quote = chunk.find('\'', 1);
        bool doubled = quote + 1 < chunk.size() && chunk[quote + 1] == '\'';
        // Of a doubled quote the first belongs to the text, and the second opens the rest like any other.
        AddRaw(chunk.substr(1, doubled ? quote : quote - 1));
        chunk.remove_prefix(quote + 1);
    }
}

void TFormText::AddRaw(std::string_view bytes) {
    if (bytes.empty()) return;
    if (FUtf8 && !IsAscii(bytes)) return AppendUtf8(FPending, bytes);
    Flush();
    FText += bytes;
}

void TFormText::AddCode(const TFormCharCode& code) {
    if (code.HasDigits) FPending += static_cast<char16_t>(code.Unit);
}

void TFormText::Flush() {
    if (FPending.empty()) return;
    FText += WideToAnsi(FPending);
    FPending.clear();
}

std::string TFormText::Take() {
    Flush();
    return std::exchange(FText, {});
}

std::string FormNameText(std::string_view name, bool utf8) {
    if (!utf8 || IsAscii(name)) return std::string(name);
    std::u16string wide;
    AppendUtf8(wide, name);
    return WideToAnsi(wide);
}

}  // namespace rux
