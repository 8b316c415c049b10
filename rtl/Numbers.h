// Numbers to and from text.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace rux {

/// Leading code-32 blanks, one sign, decimal digits or hexadecimal ones behind `$`, `x`, `X`, `0x`, `0X`; a
/// #0 ends the number. Decimal: the 32-bit signed range. Hexadecimal: up to 8 significant digits, wrapped to
/// signed.
std::optional<std::int32_t> TryStrToInt(std::string_view text);
/// The same with 64 bits and up to 16 hexadecimal digits.
std::optional<std::int64_t> TryStrToInt64(std::string_view text);
/// Raises EConvertError "'<text>' is not a valid integer value".
std::int32_t StrToInt(std::string_view text);
std::int64_t StrToInt64(std::string_view text);
std::int32_t StrToIntDef(std::string_view text, std::int32_t fallback);

/// Blanks at both ends, sign, digits, `separator`, digits, exponent. `.` alone is 0 and `1e` is 1. Nothing
/// when the value exceeds a double; one too small for it is 0.
std::optional<double> TryStrToFloat(std::string_view text, char separator);
/// With the locale's separator; raises EConvertError "'<text>' is not a valid floating point value".
double StrToFloat(std::string_view text);

std::string IntToStr(std::int64_t value);
/// General form with 15 significant digits: `0.1`, `1E15`, `1E-5`, `NAN`, `INF`, `-INF`.
std::string FloatToStr(double value, char separator);
std::string FloatToStr(double value);
/// The picture `0.####`: at least one digit before the separator, up to four behind it, rounded half away
/// from zero on the decimal digits, trailing zeros and a bare separator dropped. Locale's separator. From
/// 1E18 on the general form.
std::string FormatFloat4(double value);
/// Fixed form with `decimals` places (0 to 18), rounded half away from zero on the decimal digits. Locale's
/// separator. From 1E18 on the general form.
std::string FormatFixed(double value, int decimals);
/// "True" or "False".
std::string BoolToStr(bool value);
/// 8 upper-case hexadecimal digits.
std::string IntToHex8(std::uint32_t value);

/// One argument of Format: a text or an integer.
class TFormatArg {
 public:
    TFormatArg(std::string_view text) : FText(text) {}
    TFormatArg(const std::string& text) : FText(text) {}
    TFormatArg(const char* text) : FText(text) {}
    TFormatArg(int value) : FNumber(value), FShort(true) {}
    TFormatArg(long value) : FNumber(value) {}
    TFormatArg(long long value) : FNumber(value) {}
    TFormatArg(unsigned value) : FNumber(value), FShort(true) {}
    TFormatArg(unsigned long value) : FNumber(static_cast<std::int64_t>(value)) {}
    TFormatArg(unsigned long long value) : FNumber(static_cast<std::int64_t>(value)) {}
    bool IsText() const { return !FNumber.has_value(); }
    std::string_view Text() const { return FText; }
    std::int64_t Number() const { return *FNumber; }
    /// The number's bits, as many as its type has: 32 or 64.
    std::uint64_t Bits() const {
        return FShort ? static_cast<std::uint32_t>(*FNumber) : static_cast<std::uint64_t>(*FNumber);
    }

 private:
    std::string_view FText;
    std::optional<std::int64_t> FNumber;
    bool FShort = false;
};
/// Fills the places of `format`: `%[index:][-][width][.precision]` with `s` for a text, `d`, `u` or `x` for
/// an integer; `%%` is a percent sign. An index sets the counter for the places behind it. Raises
/// EConvertError "Format '<place>' invalid or incompatible with argument" or "No argument for format
/// '<place>'".
std::string Format(std::string_view format, std::initializer_list<TFormatArg> args);

}  // namespace rux
