// Bytes of code as text.
#pragma once

#include <cstdio>
#include <span>
#include <string>
#include <vector>

namespace rux::test {

/// "8B FF", up to the end or a second blank, as bytes.
inline std::vector<std::uint8_t> FromHex(std::string_view text) {
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i + 1 < text.size() && text[i] != ' '; i += 3)
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(std::string(text.substr(i, 2)), nullptr, 16)));
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
