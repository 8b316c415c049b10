// How texts name contents: chains such as `root|child`, and flat lists of items.
#pragma once

#include <string_view>

namespace rux {

/// True when `text` is the beginning of the `|`-separated chain, by whole elements; blanks and ASCII case do
/// not count. The element mark is added unless the text's second-to-last character is one: that it is not the
/// last is kept, and `a|` therefore names nothing.
bool MatchContentPrefix(std::string_view content, std::string_view text);

/// True when every element of `text` is in the list. Elements are split at `|`, at blanks and by double
/// quotes. As a part: it occurs anywhere, with case. As a whole: it is a complete item, with case.
bool MatchContentList(std::string_view text, std::string_view content, bool partMatch);

}  // namespace rux
