// Single bytes that are ASCII characters, for the readers of numbers, dates and addresses.
#pragma once

#include <algorithm>
#include <string_view>

namespace rux {

inline bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr unsigned NoHexDigit = 16;

/// 0 to 15, or NoHexDigit.
inline unsigned HexDigit(char c) {
    if (IsDigit(c)) return static_cast<unsigned>(c - '0');
    if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a') + 10;
    if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A') + 10;
    return NoHexDigit;
}

/// Takes the digits that `text` begins with, perhaps none.
inline std::string_view TakeDigits(std::string_view& text) {
    const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789"));
    text.remove_prefix(digits.size());
    return digits;
}

/// Drops code 32, unlike TrimLeft, which drops all white space.
inline void DropLeadingBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
}

/// What stands before the first #0, where many routines of the target stop.
inline std::string_view UpToNul(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

}  // namespace rux
