#include "Engine/Core/RUXTextMatcher.h"

#include <algorithm>

#include "rtl/Text.h"

namespace rux {

namespace {

/// Captions of ordinary length are stripped of their blanks in place.
constexpr std::size_t ShortText = 128;

bool IsPlainByte(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

}  // namespace

TTextMatcher::TTextMatcher(std::string_view text, bool partMatch)
    : FText(text), FBlankless(RemoveBlanks(text)), FPartMatch(partMatch) {}

bool TTextMatcher::MatchesBlankless(std::string_view actual) const {
    return FPartMatch ? AnsiPos(FBlankless, actual) > 0 : SameText(actual, FBlankless);
}

bool TTextMatcher::Matches(std::string_view actual) const {
    if (actual.find(' ') == actual.npos) return MatchesBlankless(actual);
    if (actual.size() > ShortText || !std::all_of(actual.begin(), actual.end(), IsPlainByte))
        return MatchesBlankless(RemoveBlanks(actual));
    char buffer[ShortText];
    const char* const end = std::remove_copy(actual.begin(), actual.end(), buffer, ' ');
    return MatchesBlankless({buffer, static_cast<std::size_t>(end - buffer)});
}

bool MatchText(std::string_view actual, std::string_view expected, bool partMatch) {
    return TTextMatcher(expected, partMatch).Matches(actual);
}

}  // namespace rux
