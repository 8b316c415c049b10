#include "platform/headless/forms/FormError.h"

#include <utility>

#include "platform/headless/forms/FormLimits.h"
#include "platform/headless/forms/FormNumbers.h"

namespace rux {

EFormFileError::EFormFileError(std::string file, int line, std::string found, std::string expected)
    : TNamedException(file + ":" + std::to_string(line) + ": found " + found + ", expected " + expected),
      File(std::move(file)),
      Line(line),
      Found(std::move(found)),
      Expected(std::move(expected)) {}

std::string QuoteFormText(std::string_view text) {
    std::string result = "\"";
    for (char c : text.substr(0, FormQuoteLimit)) {
        if (c >= ' ' && c <= '~' && c != '"' && c != '\\') {
            result += c;
            continue;
        }
        result += "\\x" + FormHexText({&c, 1});
    }
    result += text.size() > FormQuoteLimit ? "\"..." : "\"";
    return result;
}

}  // namespace rux
