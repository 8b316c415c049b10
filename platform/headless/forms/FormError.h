// What is wrong with a form file, and where.
#pragma once

#include <string>
#include <string_view>

#include "rtl/Exceptions.h"

namespace rux {

/// Message: `<file>:<line>: found <found>, expected <expected>`, always one line.
class EFormFileError : public TNamedException<Exception, "EFormFileError"> {
 public:
    EFormFileError(std::string file, int line, std::string found, std::string expected);

    std::string File;
    /// From 1.
    int Line;
    /// The offending text as QuoteFormText shows it, or a phrase where there is none.
    std::string Found;
    std::string Expected;
};

/// `text` in double quotes, as seven-bit text: a byte that is not printable, a double quote or a backslash as
/// \xHH. What exceeds FormQuoteLimit bytes is cut and marked by dots behind the quotes.
std::string QuoteFormText(std::string_view text);

}  // namespace rux
