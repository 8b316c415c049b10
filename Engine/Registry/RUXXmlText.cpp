#include "Engine/Registry/RUXXmlText.h"

#include <algorithm>
#include <initializer_list>

#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {

namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF", LittleMark = "\xFF\xFE", BigMark = "\xFE\xFF";

/// The value of `encoding` in the declaration at the front, which is ASCII in every encoding without a mark;
/// empty for none.
std::string_view DeclaredEncoding(std::string_view bytes) {
    if (!bytes.starts_with("<?xml")) return {};
    bytes = bytes.substr(0, bytes.find("?>"));
    const std::size_t word = bytes.find("encoding");
    const std::size_t open = bytes.find_first_of("\"'", word);
    if (word == bytes.npos || open == bytes.npos) return {};
    const std::size_t end = bytes.find(bytes[open], open + 1);
    return end == bytes.npos ? std::string_view() : bytes.substr(open + 1, end - open - 1);
}

TXmlText DecodeUtf16(std::string_view bytes, bool bigEndian) {
    TXmlText result;
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        result.Text +=
            static_cast<char16_t>(bigEndian ? byte(i) << 8 | byte(i + 1) : byte(i + 1) << 8 | byte(i));
    if (bytes.size() % 2) result.Fault = "half a character";
    return result;
}

/// The character at the front, strictly; 0 length for none.
struct TUtf8Char {
    char32_t Value = 0;
    std::size_t Length = 0;
};

TUtf8Char Utf8CharOf(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes.front());
    if (lead < 0x80) return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return {};
    char32_t value = lead & (0x7Fu >> length);
    for (const char c : bytes.substr(1, length - 1)) {
        if ((c & 0xC0) != 0x80) return {};
        value = value << 6 | (c & 0x3F);
    }
    constexpr char32_t Least[] = {0, 0, 0x80, 0x800, 0x10000};
    if (value < Least[length] || value > 0x10FFFF) return {};
    return {value, length};
}

TXmlText DecodeUtf8(std::string_view bytes) {
    TXmlText result;
    while (!bytes.empty()) {
        const TUtf8Char c = Utf8CharOf(bytes);
        if (c.Length == 0) {
            result.Fault = "no UTF-8";
            break;
        }
        AppendUtf16(result.Text, c.Value);
        bytes.remove_prefix(c.Length);
    }
    return result;
}

bool IsOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(), [&](std::string_view w) { return SameText(w, word); });
}

}  // namespace

bool IsXmlChar(char32_t c) {
    if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
    return c < 0xD800 || (c > 0xDFFF && c < 0xFFFE) || (c > 0xFFFF && c < 0x110000);
}

void AppendUtf16(std::u16string& text, char32_t c) {
    if (c > 0xFFFF) {
        text += static_cast<char16_t>(0xD7C0 + (c >> 10));
        c = 0xDC00 | (c & 0x3FF);
    }
    text += static_cast<char16_t>(c);
}

TXmlText DecodeXml(std::string_view bytes) {
    if (bytes.starts_with(LittleMark) || bytes.starts_with(BigMark))
        return DecodeUtf16(bytes.substr(2), bytes.starts_with(BigMark));
    if (bytes.starts_with(Utf8Mark)) return DecodeUtf8(bytes.substr(Utf8Mark.size()));
    const std::string_view encoding = DeclaredEncoding(bytes);
    if (encoding.empty() || IsOneOf(encoding, {"UTF-8", "US-ASCII"})) return DecodeUtf8(bytes);
    if (IsOneOf(encoding, {"GB2312", "GBK", "windows-936"})) return {AnsiToWide(bytes), {}};
    return {{}, "encoding " + std::string(encoding) + " is not known"};
}

}  // namespace rux
