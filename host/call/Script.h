// Scripts of requests: one a line, with what is expected of the answer.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rux {

struct TScriptStep {
    int Line = 0;
    std::string Request;
    /// What stands behind " => ": a status, and a text when one follows it.
    std::optional<int> Status;
    std::optional<std::string> Text;
};

/// Lines that begin with `#` and empty lines say nothing. In an expected text `\r`, `\n`, `\t` and `\\` stand
/// for the characters. Raises std::runtime_error with `name` and the line's number for an expectation that is
/// none.
std::vector<TScriptStep> ReadScript(const std::string& name, std::string_view text);

/// A text as a script writes it.
std::string EscapeText(std::string_view text);

}  // namespace rux
