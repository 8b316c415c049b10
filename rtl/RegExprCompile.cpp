// From an expression to the steps of the matcher, in one pass with a stack of the groups that are open. The
// order of the checks and the places they report are the library's.
#include <string>
#include <utility>
#include <vector>

#include "rtl/RegExpr.h"
#include "rtl/RegExprProgram.h"
#include "rtl/RegExprReader.h"
#include "rtl/Text.h"

namespace rux {
namespace {

using TOp = TRegExprOp;

/// Two letters for each modifier, in the order of the bits.
constexpr std::u16string_view ModifierNames = u"iIrRsSgGmMxX";
constexpr unsigned AnyCase = 1, Russian = 2, DotTakesAll = 4, Greedy = 8, Lines = 16, Extended = 32;
constexpr unsigned DefaultModifiers = Russian | DotTakesAll | Greedy;

enum class TAtomKind { Nothing, OneCharacter, BackReference, Group };

struct TAtom {
    TAtomKind Kind;
    std::size_t Start;
    /// Cannot be empty, as far as the library can tell.
    bool HasWidth;
};

struct TGroup {
    std::uint32_t Number;
    std::size_t Start;
    unsigned OuterModifiers;
    std::size_t Branch = 0;
    /// Ends of the alternatives so far, each Jump naming the one before it.
    std::uint32_t LastJump = RegExprNowhere;
    bool HasWidth = true;
    bool BranchHasWidth = false;
};

bool IsQuantifier(char16_t c) {
    return c == u'*' || c == u'+' || c == u'?' || c == u'{';
}

bool IsIgnoredBlank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

bool IsClassName(char16_t c) {
    return std::u16string_view(u"dwsDWS").find(c) != std::u16string_view::npos;
}

char16_t Capital(char16_t c) {
    std::string bytes;
    if (c > 0xFF) bytes += static_cast<char>(c >> 8);
    bytes += static_cast<char>(c & 0xFF);
    return RegExprCharacters(AnsiUpperCase(bytes)).front();
}

class TCompiler : TRegExprReader {
 public:
    explicit TCompiler(std::string_view expression) : TRegExprReader(expression) {}
    std::unique_ptr<const TRegExprProgram> Compile();

 private:
    std::uint32_t Emit(TOp op, std::uint32_t arg = 0);
    /// One of two operations: that where case counts, or the other.
    std::uint32_t EmitCased(TOp op, TOp anyCase, std::uint32_t arg);
    TAtom OneCharacter(TOp op, std::uint32_t arg = 0) {
        return {TAtomKind::OneCharacter, Emit(op, arg), true};
    }
    TAtom Assertion(TOp op) { return {TAtomKind::Nothing, Emit(op), false}; }
    TAtom Nothing() const { return {TAtomKind::Nothing, FOut->Code.size(), false}; }

    void OpenGroup();
    void EndBranch();
    void NextBranch();
    TAtom CloseGroup();
    TAtom ParseAtom();
    TAtom ParseExtension();
    bool ApplyModifiers(std::u16string_view names);
    TAtom ParseEscape();
    TAtom Literal(char16_t c);
    TAtom SkipExtended(char16_t first);
    TAtom ParseSet();
    void ParseSetMember();
    char16_t TakeSetCharacter();

    void ParseQuantifier(const TAtom& atom);
    void Quantify(const TAtom& atom, const TCount& count, bool greedy);
    void FindLeading();

    std::unique_ptr<TRegExprProgram> FOut = std::make_unique<TRegExprProgram>();
    std::vector<TGroup> FGroups;
    unsigned FModifiers = DefaultModifiers;
    std::uint32_t FGroupCount = 0;
    bool FHasBackReference = false;
};

std::uint32_t TCompiler::Emit(TOp op, std::uint32_t arg) {
    FOut->Code.push_back({.Op = op, .Arg = arg});
    return static_cast<std::uint32_t>(FOut->Code.size() - 1);
}

std::uint32_t TCompiler::EmitCased(TOp op, TOp anyCase, std::uint32_t arg) {
    if (!(FModifiers & AnyCase)) return Emit(op, arg);
    FOut->UsesCapitals = true;
    return Emit(anyCase, arg);
}

std::unique_ptr<const TRegExprProgram> TCompiler::Compile() {
    OpenGroup();
    while (Peek()) {
        if (Peek() == u'|') {
            ++FPos;
            NextBranch();
        } else if (Peek() == u'(' && Peek(1) != u'?') {
            ++FPos;
            OpenGroup();
        } else {
            ParseQuantifier(Peek() == u')' ? CloseGroup() : ParseAtom());
        }
    }
    if (FGroups.size() > 1) Fail("ParseReg Unmatched ()");
    CloseGroup();
    FindLeading();
    return std::move(FOut);
}

void TCompiler::OpenGroup() {
    if (FGroupCount == RegExprPlaces) Fail("ParseReg Too Many ()");
    FGroups.push_back({FGroupCount++, FOut->Code.size(), FModifiers});
    if (FGroups.size() > 1) {
        Emit(TOp::Nothing);  // the place of an Enter, should the group be repeated
        Emit(TOp::Open, FGroups.back().Number);
    }
    FGroups.back().Branch = Emit(TOp::Branch);
}

void TCompiler::EndBranch() {
    TGroup& group = FGroups.back();
    group.HasWidth = group.HasWidth && group.BranchHasWidth;
    group.BranchHasWidth = false;
}

void TCompiler::NextBranch() {
    EndBranch();
    TGroup& group = FGroups.back();
    group.LastJump = Emit(TOp::Jump, group.LastJump);
    const std::uint32_t next = Emit(TOp::Branch);
    FOut->Code[group.Branch].Arg = next;
    group.Branch = next;
}

/// Called for the whole expression too, at its end.
TAtom TCompiler::CloseGroup() {
    const bool whole = !Peek();
    if (!whole && FGroups.size() == 1) Fail("ParseReg Unmatched ()");
    if (!whole) ++FPos;
    EndBranch();
    const TGroup group = FGroups.back();
    FGroups.pop_back();
    FModifiers = group.OuterModifiers;
    FOut->Code[group.Branch].Op = TOp::Nothing;  // behind the last alternative there is none to try
    const std::uint32_t end = Emit(whole ? TOp::Found : TOp::Close, group.Number);
    for (std::uint32_t jump = group.LastJump; jump != RegExprNowhere;) {
        jump = std::exchange(FOut->Code[jump].Arg, end);
    }
    return {TAtomKind::Group, group.Start, group.HasWidth};
}

TAtom TCompiler::ParseAtom() {
    const char16_t c = FText[FPos++];
    if (c == u'^') return Assertion(FModifiers & Lines ? TOp::LineStart : TOp::TextStart);
    if (c == u'$') return Assertion(FModifiers & Lines ? TOp::LineEnd : TOp::TextEnd);
    if (c == u'.') return OneCharacter(FModifiers & DotTakesAll ? TOp::Any : TOp::AnyInLine);
    if (c == u'[') return ParseSet();
    if (c == u'(') return ParseExtension();
    if (c == u'\\') return ParseEscape();
    if (c == u'*' || c == u'+' || c == u'?') Fail("?+*{ Follows Nothing");
    if ((FModifiers & Extended) && (c == u'#' || IsIgnoredBlank(c))) return SkipExtended(c);
    return Literal(c);
}

TAtom TCompiler::Literal(char16_t c) {
    const std::uint32_t at = EmitCased(TOp::Char, TOp::CharAnyCase, 0);
    FOut->Code[at].Char = FModifiers & AnyCase ? Capital(c) : c;
    return {TAtomKind::OneCharacter, at, true};
}

/// A comment up to its line ends, or a run of blanks. It is an atom: nothing can repeat it.
TAtom TCompiler::SkipExtended(char16_t first) {
    if (first == u'#') {
        while (Peek() && Peek() != u'\r' && Peek() != u'\n') ++FPos;
        while (Peek() == u'\r' || Peek() == u'\n') ++FPos;
    } else {
        while (IsIgnoredBlank(Peek())) ++FPos;
    }
    return Nothing();
}

/// What begins with `(?`: a comment or modifiers. It stands on the question mark.
TAtom TCompiler::ParseExtension() {
    const bool comment = Peek(1) == u'#';
    const std::size_t begin = ++FPos;
    while (Peek() && Peek() != u')') ++FPos;
    if (comment && !Peek()) Fail("Unclosed (?#Comment)");
    const std::u16string_view names = Since(begin);
    if (!comment && (!Peek() || !ApplyModifiers(names))) Fail("Urecognized Modifier");
    ++FPos;
    return Nothing();
}

bool TCompiler::ApplyModifiers(std::u16string_view names) {
    bool on = true;
    for (const char16_t name : names) {
        const std::size_t place = ModifierNames.find(name);
        if (name != u'-' && place == std::u16string_view::npos) return false;
        const unsigned modifier = name == u'-' ? 0 : 1u << place / 2;
        if (name == u'-') on = false;
        FModifiers = on ? FModifiers | modifier : FModifiers & ~modifier;
    }
    return true;
}

TAtom TCompiler::ParseEscape() {
    const char16_t c = Peek();
    if (!c) Fail("Trailing \\");
    if (FOut->AddClass(c | 0x20)) {  // either case of d, s, w
        ++FPos;
        return OneCharacter(TOp::Set, FOut->FinishSet(c < u'a'));
    }
    if (c >= u'1' && c <= u'9') {
        ++FPos;
        FHasBackReference = true;
        return {TAtomKind::BackReference, EmitCased(TOp::BackRef, TOp::BackRefAnyCase, c - u'0'), true};
    }
    constexpr std::u16string_view names = u"AZbB";
    constexpr TOp assertions[] = {TOp::TextStart, TOp::TextEnd, TOp::WordEdge, TOp::NoWordEdge};
    const std::size_t place = names.find(c);
    if (place == std::u16string_view::npos) return Literal(TakeEscaped());
    ++FPos;
    return Assertion(assertions[place]);
}

TAtom TCompiler::ParseSet() {
    const bool negated = Peek() == u'^';
    if (negated) ++FPos;
    // A bracket that would close an empty set is a member.
    for (bool first = true; Peek() && (first || Peek() != u']'); first = false) {
        if (Peek() == u'\\' && FOut->AddClass(Peek(1))) {
            FPos += 2;
        } else {
            ParseSetMember();
        }
    }
    if (!Peek()) Fail("Unmatched []");
    ++FPos;
    if (FModifiers & AnyCase) FOut->LearnSmallLetters();
    return {TAtomKind::OneCharacter, EmitCased(TOp::Set, TOp::SetAnyCase, FOut->FinishSet(negated)), true};
}

/// One character or a range. Behind a range, or before a class, a hyphen is a member.
void TCompiler::ParseSetMember() {
    const char16_t first = TakeSetCharacter();
    FOut->AddRange(first, first);
    if (Peek() != u'-' || !Peek(1) || Peek(1) == u']') return;
    ++FPos;
    if (Peek() == u'\\' && IsClassName(Peek(1))) {
        FOut->AddRange(u'-', u'-');
        return;
    }
    const char16_t last = TakeSetCharacter();
    if ((FModifiers & Russian) && FOut->AddRussian(first, last)) return;
    if (first > last) {
        --FPos;  // the library reports the place of the last character
        Fail("Invalid [] Range");
    }
    FOut->AddRange(first, last);
}

char16_t TCompiler::TakeSetCharacter() {
    if (Peek() != u'\\') return FText[FPos++];
    ++FPos;
    if (!Peek()) Fail("Parse Atom Trailing \\");
    return TakeEscaped();
}

void TCompiler::ParseQuantifier(const TAtom& atom) {
    bool& hasWidth = FGroups.back().BranchHasWidth;
    const char16_t sign = Peek();
    TCount count;
    if (!IsQuantifier(sign)) {
        hasWidth |= atom.HasWidth;
        return;
    }
    if (!atom.HasWidth && sign != u'?') Fail("*+ Operand Could Be Empty");
    if (sign == u'{' && !TakeBraces(count)) {  // the brace is a literal
        hasWidth = true;
        return;
    }
    if (sign == u'+') count.Min = 1;
    if (sign == u'?') count.Max = 1;
    const bool lazy = Peek(1) == u'?';
    Quantify(atom, count, (FModifiers & Greedy) && !lazy);
    FPos += lazy ? 2 : 1;
    if (IsQuantifier(Peek())) Fail("Nested *?+");
    // The library takes {0,5} for something that has a width. So does this, and the matcher leaves the loop
    // where a round took nothing.
    hasWidth |= sign == u'{' ? count.Max > 0 : count.Min > 0;
}

void TCompiler::Quantify(const TAtom& atom, const TCount& count, bool greedy) {
    auto& code = FOut->Code;
    const auto start = code.begin() + static_cast<std::ptrdiff_t>(atom.Start);
    TRegExprStep step{.Op = TOp::Repeat, .Greedy = greedy, .Min = count.Min, .Max = count.Max};
    if (atom.Kind == TAtomKind::Nothing) {  // what need not hold says nothing
        code.erase(start, code.end());
        return;
    }
    if (atom.Kind == TAtomKind::OneCharacter) {
        code.insert(start, step);
        return;
    }
    if (atom.Kind == TAtomKind::BackReference) code.insert(start, TRegExprStep{});
    const auto test = static_cast<std::uint32_t>(code.size());
    code[atom.Start].Op = TOp::Enter;
    code[atom.Start].Arg = test;
    step.Op = TOp::Test;
    step.Arg = static_cast<std::uint32_t>(atom.Start);
    step.Loop = FOut->Loops++;
    code.push_back(step);
}

void TCompiler::FindLeading() {
    if (FHasBackReference) return;  // what follows could then depend on the start
    std::uint32_t at = 0;
    while (FOut->Code[at].Op == TOp::Nothing || FOut->Code[at].Op == TOp::Open) ++at;
    const TRegExprStep& step = FOut->Code[at];
    if (step.Op == TOp::Repeat && step.Max == RegExprNoLimit) FOut->Leading = at;
}

}  // namespace

std::unique_ptr<const TRegExprProgram> CompileRegExpr(std::string_view expression) {
    return TCompiler(expression).Compile();
}

}  // namespace rux
