// Floating point numbers to text. The target computes with 80 bits and 18 decimal digits and rounds on the
// digits, so rounding here is done on digits as well.
#include <algorithm>
#include <charconv>
#include <cmath>

#include "rtl/Dates.h"
#include "rtl/Numbers.h"

namespace rux {
namespace {

constexpr int GeneralDigits = 15;
constexpr int MaxDigits = 18;
constexpr double FixedFormLimit = 1E18;

/// 0.<Digits> * 10^Exponent without trailing zeros; no digits for zero.
struct TDecimal {
    bool Negative = false;
    std::string Digits;
    int Exponent = 0;
};

void DropTrailingZeros(TDecimal& number) {
    number.Digits.erase(number.Digits.find_last_not_of('0') + 1);
    if (number.Digits.empty()) number = TDecimal();
}

/// Takes `d.ddde-dd` apart.
TDecimal FromScientific(std::string_view text) {
    TDecimal number;
    number.Negative = text.front() == '-';
    if (number.Negative) text.remove_prefix(1);
    const std::size_t mark = text.find('e');
    for (const char c : text.substr(0, mark)) {
        if (c != '.') number.Digits += c;
    }
    std::string_view exponent = text.substr(mark + 1);
    if (exponent.front() == '+') exponent.remove_prefix(1);
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), number.Exponent);
    ++number.Exponent;
    DropTrailingZeros(number);
    return number;
}

/// The digits of the double itself.
TDecimal ExactDecimal(double value) {
    char buffer[40];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, MaxDigits - 1);
    return FromScientific(std::string_view(buffer, static_cast<std::size_t>(end.ptr - buffer)));
}

/// The fewest digits that tell the double from its neighbours. With 80 bits 12.34565 is a tie; the double
/// lies just below it, and only this form shows the tie again.
TDecimal ShortestDecimal(double value) {
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific);
    return FromScientific(std::string_view(buffer, static_cast<std::size_t>(end.ptr - buffer)));
}

/// Keeps the first `count` digits, half rounded away from zero.
void RoundDigits(TDecimal& number, int count) {
    if (count < 0) number.Digits.clear();
    const auto kept = static_cast<std::size_t>(std::max(count, 0));
    if (kept < number.Digits.size()) {
        const bool up = number.Digits[kept] >= '5';
        number.Digits.resize(kept);
        if (up) {
            number.Digits.erase(number.Digits.find_last_not_of('9') + 1);
            if (number.Digits.empty()) {
                number.Digits = "0";
                ++number.Exponent;
            }
            ++number.Digits.back();
        }
    }
    DropTrailingZeros(number);
}

/// `number` with `decimals` places, which it must not exceed.
std::string FixedText(const TDecimal& number, int decimals, char separator) {
    std::string out = number.Negative ? "-" : "";
    const auto digit = [&number](int place) {
        const bool known = place >= 0 && place < static_cast<int>(number.Digits.size());
        return known ? number.Digits[static_cast<std::size_t>(place)] : '0';
    };
    if (number.Exponent <= 0) out += '0';
    for (int place = 0; place < number.Exponent; ++place) out += digit(place);
    if (decimals > 0) out += separator;
    for (int place = 0; place < decimals; ++place) out += digit(number.Exponent + place);
    return out;
}

/// Places that `number` needs behind the separator.
int NeededDecimals(const TDecimal& number) {
    return std::max(static_cast<int>(number.Digits.size()) - number.Exponent, 0);
}

bool HasFixedForm(double value) {
    return std::fabs(value) < FixedFormLimit;
}

}  // namespace

std::string FloatToStr(double value, char separator) {
    if (std::isnan(value)) return "NAN";
    if (std::isinf(value)) return value < 0 ? "-INF" : "INF";
    TDecimal number = ExactDecimal(value);
    RoundDigits(number, GeneralDigits);
    if (number.Exponent > -4 && number.Exponent <= GeneralDigits) {
        return FixedText(number, NeededDecimals(number), separator);
    }
    const std::string exponent = "E" + std::to_string(number.Exponent - 1);
    number.Exponent = 1;
    return FixedText(number, NeededDecimals(number), separator) + exponent;
}

std::string FloatToStr(double value) {
    return FloatToStr(value, LocaleFacts().DecimalSeparator);
}

std::string FormatFloat4(double value) {
    if (!HasFixedForm(value)) return FloatToStr(value);
    TDecimal number = ShortestDecimal(value);
    RoundDigits(number, number.Exponent + 4);
    return FixedText(number, NeededDecimals(number), LocaleFacts().DecimalSeparator);
}

std::string FormatFixed(double value, int decimals) {
    if (!HasFixedForm(value)) return FloatToStr(value);
    decimals = std::clamp(decimals, 0, MaxDigits);
    TDecimal number = ShortestDecimal(value);
    RoundDigits(number, number.Exponent + decimals);
    return FixedText(number, decimals, LocaleFacts().DecimalSeparator);
}

}  // namespace rux
