// Numbers and bytes of form files, to and from text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/headless/forms/FormFile.h"

namespace rux {

/// Decimal digits behind an optional minus, or `$` and hexadecimal ones, which wrap to negative. Nothing when
/// the number needs more than 64 bits.
std::optional<std::int64_t> ReadFormInteger(std::string_view text);
/// A number with optional fraction, exponent and suffix. Nothing when it is too large; one too small is 0.
std::optional<TFormFloat> ReadFormFloat(std::string_view text);

/// The bytes of a binary value, which is well formed: braces, an even number of digits, white space.
std::string ReadFormBinary(std::string_view text);

/// The shortest text that reads as the same double; it always has a point or an exponent.
std::string FormDoubleText(double value);
/// The same with the suffix, as it stands in a form file: ReadFormFloat gives `value` again.
std::string FormFloatText(const TFormFloat& value);
/// Two upper-case hexadecimal digits for each byte.
std::string FormHexText(std::string_view bytes);

}  // namespace rux
