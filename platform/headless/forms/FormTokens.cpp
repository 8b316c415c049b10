#include "platform/headless/forms/FormTokens.h"

#include <algorithm>
#include <string>

#include "platform/headless/forms/FormChars.h"
#include "platform/headless/forms/FormText.h"
#include "rtl/Text.h"

namespace rux {

namespace {

constexpr std::string_view Symbols = ".:=+,[]()<>";
constexpr std::string_view Suffixes = "cCdDsSfF";
constexpr std::size_t ConflictLength = 7;
constexpr std::uint32_t LastUnit = 0xFFFF;

bool Contains(std::string_view set, char c) {
    return set.find(c) != std::string_view::npos;
}

}  // namespace

TFormTokens::TFormTokens(std::string_view fileName, std::string_view text)
    : FFileName(fileName), FText(text) {
    Next();
}

void TFormTokens::Next() {
    SkipBlanks();
    FStart = FPos;
    FCurrent = {TFormTokenKind::End, {}, FLine};
    if (FPos >= FText.size()) return;
    char c = FText[FPos];
    if (IsConflict()) return ReadConflict();
    if (IsFormNameStart(c)) return ReadIdent();
    if (IsFormDigit(c) || (c == '-' && IsFormDigit(At(FPos + 1)))) return ReadNumber();
    if (c == '$') return ReadHexadecimal();
    if (c == '\'' || c == '#') return ReadString();
    if (c == '{') return ReadBinary();
    if (Contains(Symbols, c)) return Finish(TFormTokenKind::Symbol, FPos + 1);
    ReadForeign();
}

TFormToken TFormTokens::Peek() const {
    TFormTokens ahead = *this;
    ahead.Next();
    return ahead.FCurrent;
}

bool TFormTokens::IsWord(std::string_view word) const {
    return Is(TFormTokenKind::Ident) && SameText(FCurrent.Text, word);
}

void TFormTokens::Fail(std::string_view expected) const {
    std::string found = Is(TFormTokenKind::End) ? "the end of the file" : QuoteFormText(FCurrent.Text);
    std::string wanted(expected);
    if (Is(TFormTokenKind::Conflict)) wanted += " (a version control conflict is to be resolved first)";
    if (FCurrent.Text.starts_with('%'))
        wanted += " (the placeholders of a template are to be filled in first)";
    throw EFormFileError(std::string(FFileName), FCurrent.Line, found, wanted);
}

void TFormTokens::SkipBlanks() {
    for (; FPos < FText.size() && IsFormBlank(FText[FPos]); ++FPos) {
        // CR LF counts at its LF.
        bool lineEnd = FText[FPos] == '\n' || (FText[FPos] == '\r' && At(FPos + 1) != '\n');
        if (lineEnd) ++FLine;
    }
}

void TFormTokens::Finish(TFormTokenKind kind, std::size_t end) {
    FCurrent.Kind = kind;
    FCurrent.Text = FText.substr(FStart, end - FStart);
    FPos = end;
}

/// No form has seven of these in a row; with fewer, `<>` and the like could begin the same way.
bool TFormTokens::IsConflict() const {
    std::string_view mark = FText.substr(FPos, ConflictLength);
    return mark.size() == ConflictLength && Contains("<=>|", mark[0]) &&
           mark.find_first_not_of(mark[0]) == std::string_view::npos;
}

std::size_t TFormTokens::SkipDigits(std::size_t pos) const {
    while (IsFormDigit(At(pos))) ++pos;
    return pos;
}

/// Behind the exponent at `pos`, or `pos` if there is none.
std::size_t TFormTokens::SkipExponent(std::size_t pos) const {
    if (!Contains("eE", At(pos))) return pos;
    std::size_t digits = pos + (Contains("+-", At(pos + 1)) ? 2 : 1);
    return IsFormDigit(At(digits)) ? SkipDigits(digits) : pos;
}

void TFormTokens::ReadIdent() {
    std::size_t end = FPos;
    while (IsFormNamePart(At(end))) ++end;
    Finish(TFormTokenKind::Ident, end);
}

void TFormTokens::ReadNumber() {
    std::size_t whole = SkipDigits(FPos + 1);
    std::size_t end = whole;
    if (At(end) == '.' && IsFormDigit(At(end + 1))) end = SkipDigits(end + 1);
    end = SkipExponent(end);
    if (Contains(Suffixes, At(end))) ++end;
    FinishNumber(end == whole ? TFormTokenKind::Integer : TFormTokenKind::Float, end);
}

void TFormTokens::ReadHexadecimal() {
    std::size_t end = FPos + 1;
    while (FormHexDigit(At(end)) >= 0) ++end;
    if (end == FPos + 1) return ReadForeign();
    FinishNumber(TFormTokenKind::Integer, end);
}

void TFormTokens::FinishNumber(TFormTokenKind kind, std::size_t end) {
    if (!IsFormNamePart(At(end))) return Finish(kind, end);
    ReadForeign();
    Fail("a number without letters behind it");
}

void TFormTokens::ReadString() {
    std::size_t end = FPos;
    while (At(end) == '\'' || At(end) == '#') end = At(end) == '#' ? SkipCharCode(end) : SkipQuoted(end);
    Finish(TFormTokenKind::String, end);
}

/// Behind the next quote. A doubled one looks like two adjoining pieces here, which is all the same.
std::size_t TFormTokens::SkipQuoted(std::size_t pos) const {
    std::size_t end = std::min(FText.find_first_of("'\r\n", pos + 1), FText.size());
    if (At(end) == '\'') return end + 1;
    throw EFormFileError(std::string(FFileName), FLine, QuoteFormText(FText.substr(pos, end - pos)),
                         "a quote at the end of the text, on the same line");
}

std::size_t TFormTokens::SkipCharCode(std::size_t pos) const {
    TFormCharCode code = ReadFormCharCode(FText.substr(pos));
    if (code.Unit <= LastUnit) return pos + code.Length;
    throw EFormFileError(std::string(FFileName), FLine, QuoteFormText(FText.substr(pos, code.Length)),
                         "a character's number up to " + std::to_string(LastUnit));
}

void TFormTokens::ReadBinary() {
    std::size_t digits = 0;
    for (++FPos, SkipBlanks(); FormHexDigit(At(FPos)) >= 0; ++FPos, SkipBlanks()) ++digits;
    bool closed = At(FPos) == '}';
    if (closed && digits % 2 == 0) return Finish(TFormTokenKind::Binary, FPos + 1);
    std::string begun = std::to_string(FCurrent.Line);
    FStart = FPos;
    FCurrent = {TFormTokenKind::End, {}, FLine};
    if (IsConflict()) ReadConflict();
    if (Is(TFormTokenKind::End) && FPos < FText.size()) ReadForeign();
    Fail(closed ? "one more hexadecimal digit"
                : "hexadecimal digits or the '}' of the binary value begun on line " + begun);
}

void TFormTokens::ReadConflict() {
    Finish(TFormTokenKind::Conflict, std::min(FText.find_first_of("\r\n", FPos), FText.size()));
}

void TFormTokens::ReadForeign() {
    std::size_t end = FPos;
    while (end < FText.size() && !IsFormBlank(FText[end])) ++end;
    Finish(TFormTokenKind::Foreign, end);
}

}  // namespace rux
