#include "platform/headless/forms/FormNumbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

#include "platform/headless/forms/FormChars.h"

namespace rux {

namespace {

constexpr double CurrencyUnits = 10000;

/// Of an unsigned number other than 0 that no double can hold: is it too small, rather than too large?
bool IsBelowRange(std::string_view text) {
    std::size_t exponentPos = std::min(text.find_first_of("eE"), text.size());
    std::string_view mantissa = text.substr(0, exponentPos);
    auto point = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size()));
    auto first = static_cast<long long>(mantissa.find_first_not_of("0."));
    long long magnitude = point - first;
    std::string_view exponent = text.substr(std::min(exponentPos + 1, text.size()));
    if (exponent.starts_with('+')) exponent.remove_prefix(1);
    int shift = 0;
    auto [end, error] = std::from_chars(exponent.data(), exponent.data() + exponent.size(), shift);
    if (error == std::errc::result_out_of_range) return exponent.starts_with('-');
    return magnitude + shift < 0;
}

std::optional<double> ReadDouble(std::string_view text) {
    double value = 0;
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc()) return value;
    bool negative = text.starts_with('-');
    if (!IsBelowRange(text.substr(negative ? 1 : 0))) return std::nullopt;
    return negative ? -0.0 : 0.0;
}

char SuffixOf(std::string_view text) {
    char last = static_cast<char>(text.back() | 0x20);
    return last >= 'a' && last <= 'z' ? last : '\0';
}

/// Ten-thousandths that give exactly `value` when divided again, as every value that came from a division
/// does when it is multiplied back. A currency has whole ones; the product may miss them by a hair.
double CurrencyNumber(double value) {
    double number = value * CurrencyUnits;
    double whole = std::round(number);
    return whole / CurrencyUnits == value ? whole : number;
}

}  // namespace

std::optional<std::int64_t> ReadFormInteger(std::string_view text) {
    const char* end = text.data() + text.size();
    if (text.starts_with('$')) {
        std::uint64_t bits = 0;
        if (std::from_chars(text.data() + 1, end, bits, 16).ec != std::errc()) return std::nullopt;
        return static_cast<std::int64_t>(bits);
    }
    std::int64_t value = 0;
    if (std::from_chars(text.data(), end, value).ec != std::errc()) return std::nullopt;
    return value;
}

std::optional<TFormFloat> ReadFormFloat(std::string_view text) {
    char suffix = SuffixOf(text);
    if (suffix) text.remove_suffix(1);
    std::optional<double> value = ReadDouble(text);
    if (!value) return std::nullopt;
    return TFormFloat{suffix == 'c' ? *value / CurrencyUnits : *value, suffix};
}

std::string ReadFormBinary(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() / 2);
    int high = -1;
    for (char c : text) {
        int digit = FormHexDigit(c);
        if (digit < 0) continue;
        if (high >= 0) bytes += static_cast<char>(high << 4 | digit);
        high = high >= 0 ? -1 : digit;
    }
    return bytes;
}

std::string FormDoubleText(double value) {
    char buffer[64];
    auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
    std::string result(buffer, end);
    if (result.find_first_of(".e") == std::string::npos) result += ".0";
    return result;
}

std::string FormFloatText(const TFormFloat& value) {
    std::string result = FormDoubleText(value.Suffix == 'c' ? CurrencyNumber(value.Value) : value.Value);
    if (value.Suffix) result += value.Suffix;
    return result;
}

std::string FormHexText(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    result.reserve(2 * bytes.size());
    for (char c : bytes) {
        auto byte = static_cast<unsigned char>(c);
        result += digits[byte >> 4];
        result += digits[byte & 15];
    }
    return result;
}

}  // namespace rux
