// What the compiler of regular expressions hands to the matcher; nobody else includes it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace rux {

constexpr std::uint32_t RegExprNoLimit = 0x7FFFFFFE;
constexpr std::uint32_t RegExprNowhere = 0xFFFFFFFF;

// clang-format off
enum class TRegExprOp : std::uint8_t {
    // One character each; only these follow a Repeat. Char is a capital where case does not count.
    Char, CharAnyCase, Any, AnyInLine, Set, SetAnyCase,
    // No character.
    TextStart, TextEnd, LineStart, LineEnd, WordEdge, NoWordEdge, Nothing,
    // Arg is the group, where BackRef* stand for what it matched.
    Open, Close, BackRef, BackRefAnyCase,
    // Arg is the next alternative, or the target.
    Branch, Jump,
    // Min to Max times the one operation that follows; Enter and Test embrace the body of any other loop and name
    // each other by Arg. The count, and the number of the loop, stand in the Test.
    Repeat, Enter, Test,
    Found
};
// clang-format on

struct TRegExprStep {
    TRegExprOp Op = TRegExprOp::Nothing;
    bool Greedy = true;
    char16_t Char = 0;
    std::uint32_t Arg = 0;
    std::uint32_t Min = 0;
    std::uint32_t Max = RegExprNoLimit;
    std::uint32_t Loop = 0;
};

struct TRegExprRange {
    char16_t First, Last;
};

/// A part of the program's ranges, in order and without overlap.
struct TRegExprSet {
    std::size_t Begin, End;
    bool Negated;
};

/// Characters are the byte, or lead * 256 + trail: a trail byte is no unit of its own, and stepping back is
/// easy.
class TRegExprProgram {
 public:
    std::vector<TRegExprStep> Code;
    std::uint32_t Loops = 0;
    /// The unlimited Repeat that every match begins with, or RegExprNowhere. When a start fails, so
    /// does each start within the characters that it took: what follows was tried at all places that they
    /// could lead to.
    std::uint32_t Leading = RegExprNowhere;
    bool UsesCapitals = false;

    void AddRange(char16_t first, char16_t last) { FRanges.push_back({first, last}); }
    /// The characters of `\d`, `\w` or `\s`; false, and nothing is added, for another letter.
    bool AddClass(char16_t name);
    /// A range from one end of the Russian alphabet to the other, with the letter yo, which many code pages
    /// keep elsewhere; a capital at its end adds the capitals. False, and nothing is added, for any other
    /// range.
    bool AddRussian(char16_t first, char16_t last);
    /// Makes a set of the ranges added since the set before; its index.
    std::uint32_t FinishSet(bool negated);
    /// To be called when a set ignores case: finds the letters of the code page.
    void LearnSmallLetters();

    bool InSet(std::uint32_t index, char16_t c) const;
    bool InSetAnyCase(std::uint32_t index, char16_t c, char16_t capital) const;

 private:
    bool InRanges(const TRegExprSet& set, char16_t c) const;

    std::vector<TRegExprSet> FSets;
    std::vector<TRegExprRange> FRanges;
    /// Capital and small letter, in order.
    std::vector<std::pair<char16_t, char16_t>> FSmallLetters;
};

/// Raises ERegExpr.
std::unique_ptr<const TRegExprProgram> CompileRegExpr(std::string_view expression);

/// The characters of a text, see TRegExprProgram.
std::u16string RegExprCharacters(std::string_view text);
/// Bytes of the text that these characters are.
std::size_t RegExprBytes(std::u16string_view characters);

}  // namespace rux
