// Tokens of the locator language.
#pragma once

#include <string>
#include <string_view>

namespace rux {

/// Cuts the next token off the front of `rest`: a delimiter, or the text in front of the next one. A text
/// that a delimiter ends loses its escapes; the last text of a locator is given as it stands, backslashes
/// included. That difference is kept: scripts have always written their last text plain. Empty when `rest`
/// is.
std::string GetToken(std::string_view& rest);

/// Drops each backslash that stands directly before a delimiter. Doubled backslashes stay two. When anything
/// was dropped, characters of code 1 vanish from the text; they are no characters that a control shows.
std::string UnescapeToken(std::string_view text);

}  // namespace rux
