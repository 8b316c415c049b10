#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace rux::test {

/// "8B FF" as bytes; blanks may be left out.
inline std::vector<std::uint8_t> FromHex(std::string_view text) {
    std::vector<std::uint8_t> bytes;
    std::string digits;
    for (const char c : text)
        if (c != ' ') digits += c;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(digits.substr(i, 2), nullptr, 16)));
    return bytes;
}

inline std::string ToHex(std::span<const std::uint8_t> bytes) {
    std::string text;
    char pair[4];
    for (const std::uint8_t byte : bytes) {
        std::snprintf(pair, sizeof pair, text.empty() ? "%02X" : " %02X", byte);
        text += pair;
    }
    return text;
}

}  // namespace rux::test
