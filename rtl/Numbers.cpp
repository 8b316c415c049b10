#include "rtl/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

#include "rtl/Chars.h"
#include "rtl/Dates.h"
#include "rtl/Exceptions.h"

namespace rux {
namespace {

/// Takes one sign if there is one; true for a minus.
bool TakeSign(std::string_view& text) {
    if (!text.starts_with('+') && !text.starts_with('-')) return false;
    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

bool TakeHexPrefix(std::string_view& text) {
    for (const std::string_view prefix : {"$", "x", "X", "0x", "0X"}) {
        if (!text.starts_with(prefix)) continue;
        text.remove_prefix(prefix.size());
        return true;
    }
    return false;
}

template <class Int>
std::optional<Int> ParseInteger(std::string_view text) {
    using TUnsigned = std::make_unsigned_t<Int>;
    text = UpToNul(text);
    DropLeadingBlanks(text);
    const bool negative = TakeSign(text);
    const bool hex = TakeHexPrefix(text);
    if (text.empty()) return std::nullopt;

    const TUnsigned base = hex ? 16 : 10;
    const TUnsigned highest = static_cast<TUnsigned>(std::numeric_limits<Int>::max()) + (negative ? 1 : 0);
    const TUnsigned limit = hex ? std::numeric_limits<TUnsigned>::max() : highest;
    TUnsigned value = 0;
    for (const char c : text) {
        const TUnsigned digit = HexDigit(c);
        if (digit >= base || value > (limit - digit) / base) return std::nullopt;
        value = value * base + digit;
    }
    return static_cast<Int>(negative ? 0 - value : value);
}

template <class Int>
Int RequireInteger(std::string_view text) {
    if (const auto value = ParseInteger<Int>(text)) return *value;
    throw EConvertError("'" + std::string(text) + "' is not a valid integer value");
}

/// The parts of a decimal number, digits only.
struct TFloatParts {
    std::string_view Whole, Fraction, Exponent;
    bool NegativeExponent = false;
};

/// About the power of ten of the first digit that is not 0: above 0 for a number of 1 or more.
long long Magnitude(const TFloatParts& parts) {
    constexpr long long farOut = 1'000'000'000;
    long long exponent = 0;
    for (const char c : parts.Exponent) exponent = std::min(exponent * 10 + (c - '0'), farOut);
    if (parts.NegativeExponent) exponent = -exponent;
    const std::size_t first = parts.Whole.find_first_not_of('0');
    if (first != std::string_view::npos) return exponent + static_cast<long long>(parts.Whole.size() - first);
    const std::size_t zeros = std::min(parts.Fraction.find_first_not_of('0'), parts.Fraction.size());
    return exponent - static_cast<long long>(zeros);
}

std::optional<double> ToDouble(const TFloatParts& parts) {
    std::string number = "0";
    number.append(parts.Whole);
    if (!parts.Fraction.empty()) number.append(".").append(parts.Fraction);
    if (!parts.Exponent.empty()) number.append(parts.NegativeExponent ? "e-" : "e").append(parts.Exponent);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range && Magnitude(parts) <= 0) return 0.0;
    if (result.ec != std::errc() || !std::isfinite(value)) return std::nullopt;
    return value;
}

}  // namespace

std::optional<std::int32_t> TryStrToInt(std::string_view text) {
    return ParseInteger<std::int32_t>(text);
}

std::optional<std::int64_t> TryStrToInt64(std::string_view text) {
    return ParseInteger<std::int64_t>(text);
}

std::int32_t StrToInt(std::string_view text) {
    return RequireInteger<std::int32_t>(text);
}

std::int64_t StrToInt64(std::string_view text) {
    return RequireInteger<std::int64_t>(text);
}

std::int32_t StrToIntDef(std::string_view text, std::int32_t fallback) {
    return TryStrToInt(text).value_or(fallback);
}

std::optional<double> TryStrToFloat(std::string_view text, char separator) {
    text = UpToNul(text);
    DropLeadingBlanks(text);
    const bool negative = TakeSign(text);
    TFloatParts parts;
    parts.Whole = TakeDigits(text);
    const bool separated = text.starts_with(separator);
    if (separated) {
        text.remove_prefix(1);
        parts.Fraction = TakeDigits(text);
    }
    if (parts.Whole.empty() && !separated) return std::nullopt;
    if (text.starts_with('E') || text.starts_with('e')) {
        text.remove_prefix(1);
        parts.NegativeExponent = TakeSign(text);
        parts.Exponent = TakeDigits(text);
    }
    DropLeadingBlanks(text);
    if (!text.empty()) return std::nullopt;
    const std::optional<double> value = ToDouble(parts);
    return value && negative ? -*value : value;
}

double StrToFloat(std::string_view text) {
    if (const auto value = TryStrToFloat(text, LocaleFacts().DecimalSeparator)) return *value;
    throw EConvertError("'" + std::string(text) + "' is not a valid floating point value");
}

std::string IntToStr(std::int64_t value) {
    return std::to_string(value);
}

std::string BoolToStr(bool value) {
    return value ? "True" : "False";
}

std::string IntToHex8(std::uint32_t value) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string out(8, '0');
    for (auto place = out.rbegin(); value; value >>= 4) *place++ = digits[value & 0xF];
    return out;
}

}  // namespace rux
