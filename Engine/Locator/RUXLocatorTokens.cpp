#include "Engine/Locator/RUXLocatorTokens.h"

#include <algorithm>

#include "rtl/CodePage.h"

namespace rux {

namespace {

constexpr std::string_view Delimiters = "#/<>?^_";

bool IsDelimiter(const TTextCursor& at) {
    return !at.AtEnd() && at.Length() == 1 && Delimiters.find(at.Char()[0]) != Delimiters.npos;
}

/// Offset of the first delimiter that an even number of backslashes precedes; npos without one.
std::size_t FindDelimiter(std::string_view rest) {
    bool escaped = false;
    for (TTextCursor at(rest); !at.AtEnd(); at.Next()) {
        if (!escaped && IsDelimiter(at)) return at.Pos();
        escaped = at.Is('\\') && !escaped;
    }
    return rest.npos;
}

}  // namespace

std::string UnescapeToken(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    bool dropped = false;
    for (TTextCursor at(text); !at.AtEnd(); at.Next()) {
        if (at.Is('\\')) {
            const TTextCursor behind(text, at.Pos() + 1);
            if (IsDelimiter(behind)) {
                dropped = true;
                at.Next();
            }
        }
        result.append(at.Char());
    }
    // Code 1 is no lead byte and no trail byte.
    if (dropped) std::erase(result, '\x01');
    return result;
}

std::string GetToken(std::string_view& rest) {
    const std::size_t end = FindDelimiter(rest);
    if (end == rest.npos) {
        std::string token(rest);
        rest = {};
        return token;
    }
    const std::size_t length = std::max<std::size_t>(end, 1);
    const std::string_view token = rest.substr(0, length);
    rest.remove_prefix(length);
    return end == 0 ? std::string(token) : UnescapeToken(token);
}

}  // namespace rux
