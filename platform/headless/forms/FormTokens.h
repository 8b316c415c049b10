// The words of a form file.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/headless/forms/FormError.h"

namespace rux {

enum class TFormTokenKind {
    End,
    /// One name; dotted ones are several tokens.
    Ident,
    Integer,
    Float,
    /// Quoted pieces and numbered characters without a blank between.
    String,
    /// From `{` to `}`: an even number of hexadecimal digits and white space.
    Binary,
    /// One of . : = + , [ ] ( ) < >
    Symbol,
    /// A line that version control left where two versions met.
    Conflict,
    /// Anything else, up to the next white space.
    Foreign,
};

struct TFormToken {
    TFormTokenKind Kind = TFormTokenKind::End;
    /// As it stands in the file.
    std::string_view Text;
    /// Where it begins; from 1.
    int Line = 1;
};

/// Steps through the tokens. Cheap to copy, which is how one looks ahead. What cannot be a token raises
/// EFormFileError; file name and text must outlive the object.
class TFormTokens {
 public:
    TFormTokens(std::string_view fileName, std::string_view text);

    const TFormToken& Current() const { return FCurrent; }
    void Next();
    TFormToken Peek() const;
    bool Is(TFormTokenKind kind) const { return FCurrent.Kind == kind; }
    bool Is(char symbol) const { return Is(TFormTokenKind::Symbol) && FCurrent.Text[0] == symbol; }
    /// A name, compared without case.
    bool IsWord(std::string_view word) const;
    /// Everything from the current token on.
    std::string_view Rest() const { return FText.substr(FStart); }
    /// The current token is not what the grammar wants here.
    [[noreturn]] void Fail(std::string_view expected) const;

 private:
    char At(std::size_t pos) const { return pos < FText.size() ? FText[pos] : '\0'; }
    std::size_t SkipDigits(std::size_t pos) const;
    std::size_t SkipExponent(std::size_t pos) const;
    bool IsConflict() const;
    void SkipBlanks();
    void Finish(TFormTokenKind kind, std::size_t end);
    void ReadIdent();
    void ReadNumber();
    void ReadHexadecimal();
    void FinishNumber(TFormTokenKind kind, std::size_t end);
    void ReadString();
    std::size_t SkipQuoted(std::size_t pos) const;
    std::size_t SkipCharCode(std::size_t pos) const;
    void ReadBinary();
    void ReadConflict();
    void ReadForeign();

    std::string_view FFileName;
    std::string_view FText;
    std::size_t FStart = 0;
    /// Behind the current token, with the line there.
    std::size_t FPos = 0;
    int FLine = 1;
    TFormToken FCurrent;
};

}  // namespace rux
