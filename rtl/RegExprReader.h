// An expression and the place in it; nobody but the compiler of regular expressions includes it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "rtl/RegExprProgram.h"

namespace rux {

/// What the compiler is made on: it reads the parts of an expression that produce no steps of their own. All
/// of it raises ERegExpr at the place that the library would report.
class TRegExprReader {
 protected:
    explicit TRegExprReader(std::string_view expression) : FText(RegExprCharacters(expression)) {}

    struct TCount {
        std::uint32_t Min = 0;
        std::uint32_t Max = RegExprNoLimit;
    };

    [[noreturn]] void Fail(const char* what) const;
    /// The character `ahead` of the current one; 0 behind the end, where no character is 0.
    char16_t Peek(std::size_t ahead = 0) const {
        return FPos + ahead < FText.size() ? FText[FPos + ahead] : u'\0';
    }
    std::u16string_view Since(std::size_t start) const {
        return std::u16string_view(FText).substr(start, FPos - start);
    }
    /// Stands behind a backslash, on a character that is no class and no assertion.
    char16_t TakeEscaped();
    /// From `{` to `}`, where it stays; false, and nothing is taken, when this is no count.
    bool TakeBraces(TCount& count);

    const std::u16string FText;
    std::size_t FPos = 0;

 private:
    unsigned TakeHexCode();
    unsigned TakeHexDigit();
    std::u16string_view TakeDigits();
    std::uint32_t Number(std::u16string_view digits) const;
};

}  // namespace rux
