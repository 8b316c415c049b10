// One text of a script, held against many of the application.
#pragma once

#include <string>
#include <string_view>

namespace rux {

/// Prepared once and asked for each control: the comparison of MatchText.
class TTextMatcher {
 public:
    TTextMatcher(std::string_view text, bool partMatch);
    /// The text as it was given.
    const std::string& Text() const { return FText; }
    bool PartMatch() const { return FPartMatch; }
    bool Matches(std::string_view actual) const;

 private:
    bool MatchesBlankless(std::string_view actual) const;
    std::string FText;
    std::string FBlankless;
    bool FPartMatch;
};

/// Compares a text of the application with one of a script; blanks do not count in either. As a whole: case
/// does not matter. As a part: case matters, and an empty text is part of nothing. The difference is kept:
/// scripts rely on both.
bool MatchText(std::string_view actual, std::string_view expected, bool partMatch);

}  // namespace rux
