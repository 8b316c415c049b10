// The bytes of form files by kind.
#pragma once

namespace rux {

constexpr bool IsFormBlank(char c) {
    return static_cast<unsigned char>(c) <= ' ';
}

constexpr bool IsFormDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Value of a hexadecimal digit, -1 for any other byte.
constexpr int FormHexDigit(char c) {
    if (IsFormDigit(c)) return c - '0';
    char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// May begin a name; every byte of a character beyond ASCII may.
constexpr bool IsFormNameStart(char c) {
    char lower = static_cast<char>(c | 0x20);
    return (lower >= 'a' && lower <= 'z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

constexpr bool IsFormNamePart(char c) {
    return IsFormNameStart(c) || IsFormDigit(c);
}

}  // namespace rux
