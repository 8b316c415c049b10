// Texts as a socket brings them: still without a code page, hence byte by byte.
#include "rtl/Chars.h"
#include "rtl/Text.h"

namespace rux {
namespace {

std::string_view WithoutOuterBlanks(std::string_view text) {
    DropLeadingBlanks(text);
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// Length of the line break that `text` begins with; 0 if it begins with none.
std::size_t LineBreakLength(std::string_view text) {
    if (text.starts_with("\r\n")) return 2;
    return text.starts_with('\r') || text.starts_with('\n') ? 1 : 0;
}

}  // namespace

std::string Fetch(std::string& text, char delimiter) {
    const std::string_view whole = text;
    const std::size_t end = whole.find(delimiter);
    std::string result(WithoutOuterBlanks(whole.substr(0, end)));
    text = end == std::string_view::npos ? std::string()
                                         : std::string(WithoutOuterBlanks(whole.substr(end + 1)));
    return result;
}

std::string SeparateRight(std::string_view text, char delimiter) {
    const std::size_t place = text.find(delimiter);
    return std::string(place == std::string_view::npos ? text : text.substr(place + 1));
}

std::string DecodeURL(std::string_view url) {
    std::string out;
    out.reserve(url.size());
    while (!url.empty()) {
        const std::size_t percent = url.find('%');
        out.append(url.substr(0, percent));
        if (percent == std::string_view::npos || url.size() - percent < 3) break;
        url.remove_prefix(percent + 1);
        if (const std::size_t skipped = LineBreakLength(url)) {
            url.remove_prefix(skipped);
            continue;
        }
        const unsigned high = HexDigit(url[0]), low = HexDigit(url[1]);
        if (high == NoHexDigit || low == NoHexDigit) {
            out += '%';
            continue;
        }
        out += static_cast<char>(high * 16 + low);
        url.remove_prefix(2);
    }
    return out;
}

}  // namespace rux
