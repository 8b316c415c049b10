// The text of a request: locator, method, arguments, options.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace rux {

/// What a request text says.
struct TRequestText {
    std::string Locator;
    std::string MethodName;
    /// In order; each escaped comma is the placeholder byte until it is converted.
    std::vector<std::string> Args;
    bool IsFind = false;

    bool PopupWindow = false;
    std::string PopupWindowCaption;
    bool CloseUnExpactPopupWindow = false;
    bool PartMatch = true;
    bool WaitForWindow = false;
    std::string WaitForWindowCaption;
    bool IgnorePopupWindow = false;
};

/// Splits a request text. What was read before a failure stays in `request`, since the options of a request
/// that fails later still count. Raises ERUX_URL_ParseError with the engine's own texts.
void ParseURL(std::string_view url, TRequestText& request);

/// Searches the first `delimiter` that no backslash precedes directly; one in the first place cannot be
/// preceded, and a doubled backslash protects all the same. False without one, and nothing is written then.
/// `head` and `rest` may be views of the same text.
bool SplitAtUnescaped(char delimiter, std::string_view source, std::string_view& rest,
                      std::string_view& head);

/// What a locator names its target: the text behind the first unescaped `?`, up to the first `#`, trimmed.
std::string GetLocatorTarget(std::string_view locator);

// Arguments.
/// Removes one pair of double quotes around the argument, unless its first colon is an escaped one.
std::string StripArgumentQuotes(std::string_view argument);
/// Every `\,` becomes a placeholder byte, so that no later step sees a comma in it.
std::string ProtectEscapedCommas(std::string_view argument);
/// True when a colon stands anywhere but at the start or behind a backslash.
bool IsNamedArgument(std::string_view argument);
/// The text of a protected argument: each backslash goes and the character behind it stays, placeholders
/// become commas. A backslash at the very end stays, and so does one in front of a placeholder: it was itself
/// escaped.
std::string ArgumentText(std::string_view argument);
/// Text behind the colon of the first argument whose name equals `name` without case; empty without one.
std::string NamedArgument(const std::vector<std::string>& args, std::string_view name);

}  // namespace rux
