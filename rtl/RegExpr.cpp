// The matcher: it runs the steps of a program over the characters of a subject and keeps the ways back on a
// stack of its own.
#include "rtl/RegExpr.h"

#include <algorithm>
#include <string>
#include <vector>

#include "rtl/Chars.h"
#include "rtl/CodePage.h"
#include "rtl/RegExprProgram.h"
#include "rtl/Text.h"

namespace rux {
namespace {

using TOp = TRegExprOp;

bool IsWordCharacter(char16_t c) {
    return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_';
}

bool IsLineEnd(char16_t c) {
    return c == u'\r' || c == u'\n';
}

class TMatcher {
 public:
    TMatcher(const TRegExprProgram& program, std::string_view subject, std::uint64_t budget)
        : FProgram(program),
          FText(RegExprCharacters(subject)),
          FCapitals(program.UsesCapitals ? RegExprCharacters(AnsiUpperCase(subject)) : std::u16string()),
          FSize(static_cast<std::uint32_t>(FText.size())),
          FStepsLeft(budget),
          FSlots(FirstLoopSlot + 2 * std::size_t{program.Loops}, RegExprNowhere) {}

    bool Search();
    bool OutOfBudget() const { return FStepsLeft == 0; }
    std::u16string_view Text() const { return FText; }
    /// Offsets in characters; RegExprNowhere where the group did not take part.
    std::uint32_t Start(std::size_t group) const { return FSlots[group]; }
    std::uint32_t End(std::size_t group) const { return FSlots[RegExprPlaces + group]; }

 private:
    /// What an entry of the stack does when it is taken off, and how many bits the tag leaves.
    enum TTag : std::uint32_t {
        GoTo = 0,              // goes on at a step
        Restore = 1u << 30,    // puts an old value back into a slot
        NextRound = 2u << 30,  // tries one more round of a loop, named by its Test
        OtherCount = 3u << 30  // lets a Repeat take another number of characters; its last one lies below
    };
    static constexpr std::uint32_t TagMask = 3u << 30;
    static constexpr std::size_t FirstLoopSlot = 2 * RegExprPlaces;

    struct TEntry {
        std::uint32_t What, Value;
    };

    bool RunFrom(std::uint32_t start);
    bool Backtrack();
    bool DoStep(const TRegExprStep& step);
    bool TakesOne(const TRegExprStep& step, std::uint32_t pos) const;
    bool Holds(TOp assertion) const;
    bool TakeReference(std::uint32_t group, bool anyCase);
    bool Repeat(const TRegExprStep& step);
    bool TakeOtherCount(std::uint32_t pc, std::uint32_t pos);
    void EnterLoop(const TRegExprStep& test);
    void EndRound(const TRegExprStep& test);
    void Decide(const TRegExprStep& test, std::uint32_t rounds);
    void BeginRound(const TRegExprStep& test);

    void Push(std::uint32_t what, std::uint32_t value);
    void SetSlot(std::size_t slot, std::uint32_t value);
    void NoteLeading(std::uint32_t pc) {
        if (pc == FProgram.Leading) FLeadingEnd = std::max(FLeadingEnd, FPos);
    }
    void Spend(std::uint64_t steps) { FStepsLeft -= std::min(steps, FStepsLeft); }
    static std::size_t RoundsSlot(const TRegExprStep& test) {
        return FirstLoopSlot + 2 * std::size_t{test.Loop};
    }
    static std::size_t RoundStartSlot(const TRegExprStep& test) { return RoundsSlot(test) + 1; }
    /// `*` and `+` need no count: behind the first round all are alike.
    static bool IsCounted(const TRegExprStep& test) { return test.Min > 1 || test.Max != RegExprNoLimit; }

    const TRegExprProgram& FProgram;
    const std::u16string FText;
    const std::u16string FCapitals;
    const std::uint32_t FSize;
    std::uint64_t FStepsLeft;
    /// Starts of the groups, their ends, then rounds and start of the round for each loop.
    std::vector<std::uint32_t> FSlots;
    std::vector<TEntry> FStack;
    std::uint32_t FPc = 0;
    std::uint32_t FPos = 0;
    /// Where the characters end that the leading Repeat took.
    std::uint32_t FLeadingEnd = 0;
};

bool TMatcher::Search() {
    for (std::uint32_t start = 0; start <= FSize; start = std::max(start, FLeadingEnd) + 1) {
        if (RunFrom(start)) return true;
        if (OutOfBudget()) return false;
    }
    return false;
}

bool TMatcher::RunFrom(std::uint32_t start) {
    FPc = 0;
    FPos = start;
    while (FStepsLeft > 0) {
        --FStepsLeft;
        const TRegExprStep& step = FProgram.Code[FPc];
        if (step.Op == TOp::Found) {
            FSlots[0] = start;
            FSlots[RegExprPlaces] = FPos;
            FStepsLeft = std::max<std::uint64_t>(FStepsLeft, 1);  // the last step of the budget may find it
            return true;
        }
        if (!DoStep(step) && !Backtrack()) return false;
    }
    return false;
}

bool TMatcher::DoStep(const TRegExprStep& step) {
    switch (step.Op) {
        case TOp::TextStart:
        case TOp::TextEnd:
        case TOp::LineStart:
        case TOp::LineEnd:
        case TOp::WordEdge:
        case TOp::NoWordEdge:
            if (!Holds(step.Op)) return false;
            break;
        case TOp::BackRef:
        case TOp::BackRefAnyCase:
            if (!TakeReference(step.Arg, step.Op == TOp::BackRefAnyCase)) return false;
            break;
        case TOp::Nothing:
            break;
        case TOp::Branch:
            Push(GoTo | step.Arg, FPos);
            break;
        case TOp::Jump:
            FPc = step.Arg;
            return true;
        case TOp::Open:
            SetSlot(step.Arg, FPos);
            break;
        case TOp::Close:
            SetSlot(RegExprPlaces + step.Arg, FPos);
            break;
        case TOp::Repeat:
            return Repeat(step);
        case TOp::Enter:
            EnterLoop(FProgram.Code[step.Arg]);
            return true;
        case TOp::Test:
            EndRound(step);
            return true;
        default:
            if (!TakesOne(step, FPos)) return false;
            ++FPos;
            break;
    }
    ++FPc;
    return true;
}

/// Undoes what was done since the last way out, and takes that; false when there is none.
bool TMatcher::Backtrack() {
    while (!FStack.empty()) {
        const TEntry entry = FStack.back();
        FStack.pop_back();
        const std::uint32_t what = entry.What & ~TagMask;
        switch (entry.What & TagMask) {
            case Restore:
                FSlots[what] = entry.Value;
                continue;
            case OtherCount:
                if (!TakeOtherCount(what, entry.Value)) continue;
                return true;
            case NextRound:
                FPos = entry.Value;
                BeginRound(FProgram.Code[what]);
                return true;
            default:
                FPc = what;
                FPos = entry.Value;
                return true;
        }
    }
    return false;
}

void TMatcher::Push(std::uint32_t what, std::uint32_t value) {
    if (FStack.size() >= RegExprMaxBacktrack) {
        FStepsLeft = 0;
        return;
    }
    FStack.push_back({what, value});
}

void TMatcher::SetSlot(std::size_t slot, std::uint32_t value) {
    Push(Restore | static_cast<std::uint32_t>(slot), FSlots[slot]);
    FSlots[slot] = value;
}

bool TMatcher::TakesOne(const TRegExprStep& step, std::uint32_t pos) const {
    if (pos >= FSize) return false;
    const char16_t c = FText[pos];
    switch (step.Op) {
        case TOp::Char:
            return c == step.Char;
        case TOp::CharAnyCase:
            return FCapitals[pos] == step.Char;
        case TOp::AnyInLine:
            return !IsLineEnd(c);
        case TOp::Set:
            return FProgram.InSet(step.Arg, c);
        case TOp::SetAnyCase:
            return FProgram.InSetAnyCase(step.Arg, c, FCapitals[pos]);
        default:
            return true;
    }
}

/// A CR LF is one line end: nothing lies between the two.
bool TMatcher::Holds(TOp assertion) const {
    const char16_t before = FPos > 0 ? FText[FPos - 1] : u'\0', after = FPos < FSize ? FText[FPos] : u'\0';
    const bool inPair = before == u'\r' && after == u'\n';
    switch (assertion) {
        case TOp::TextStart:
            return FPos == 0;
        case TOp::TextEnd:
            return FPos == FSize;
        case TOp::LineStart:
            return FPos == 0 || (IsLineEnd(before) && !inPair);
        case TOp::LineEnd:
            return FPos == FSize || (IsLineEnd(after) && !inPair);
        default:
            return (IsWordCharacter(before) != IsWordCharacter(after)) == (assertion == TOp::WordEdge);
    }
}

/// A group that has not matched matches nothing, not even the empty text.
bool TMatcher::TakeReference(std::uint32_t group, bool anyCase) {
    const std::uint32_t start = Start(group), end = End(group);
    if (start == RegExprNowhere || end == RegExprNowhere) return false;
    if (start >= end) return true;  // inside the group itself, whose end is still that of an earlier round
    const std::u16string_view text = anyCase ? FCapitals : FText;
    const std::uint32_t length = end - start;
    if (length > FSize - FPos) return false;
    Spend(length);  // also when it is in vain: a comparison that fails late costs as much
    if (text.substr(FPos, length) != text.substr(start, length)) return false;
    FPos += length;
    return true;
}

bool TMatcher::Repeat(const TRegExprStep& step) {
    const TRegExprStep& one = FProgram.Code[FPc + 1];
    const std::uint32_t begin = FPos, limit = step.Max < FSize - begin ? begin + step.Max : FSize;
    const std::uint32_t wanted = step.Greedy ? limit : begin + std::min(step.Min, limit - begin);
    while (FPos < wanted && TakesOne(one, FPos)) ++FPos;
    Spend(FPos - begin);
    NoteLeading(FPc);
    if (FPos - begin < step.Min) return false;
    const std::uint32_t last = step.Greedy ? begin + step.Min : limit;
    if (FPos != last) {
        Push(GoTo, last);
        Push(OtherCount | FPc, FPos);
    }
    FPc += 2;
    return true;
}

/// One character less for a greedy Repeat, one more for the other; the last count is the entry below.
bool TMatcher::TakeOtherCount(std::uint32_t pc, std::uint32_t pos) {
    const std::uint32_t last = FStack.back().Value;
    const bool greedy = FProgram.Code[pc].Greedy;
    if (!greedy && !TakesOne(FProgram.Code[pc + 1], pos)) {
        FStack.pop_back();
        return false;
    }
    FPos = greedy ? pos - 1 : pos + 1;
    FPc = pc + 2;
    NoteLeading(pc);
    if (FPos == last) {
        FStack.pop_back();
    } else {
        FStack.push_back({OtherCount | pc, FPos});
    }
    return true;
}

void TMatcher::EnterLoop(const TRegExprStep& test) {
    if (IsCounted(test)) SetSlot(RoundsSlot(test), 0);
    Decide(test, 0);
}

/// A round that took nothing is the last: all further ones would do the same.
void TMatcher::EndRound(const TRegExprStep& test) {
    if (FPos == FSlots[RoundStartSlot(test)]) {
        ++FPc;
        return;
    }
    const std::uint32_t rounds = IsCounted(test) ? FSlots[RoundsSlot(test)] + 1 : 1;
    if (IsCounted(test)) SetSlot(RoundsSlot(test), rounds);
    Decide(test, rounds);
}

/// One more round, the way on, or one of them with the other as a way back.
void TMatcher::Decide(const TRegExprStep& test, std::uint32_t rounds) {
    const std::uint32_t at = FProgram.Code[test.Arg].Arg;
    if (rounds >= test.Max) {
        FPc = at + 1;
    } else if (rounds < test.Min) {
        BeginRound(test);
    } else if (test.Greedy) {
        Push(GoTo | (at + 1), FPos);
        BeginRound(test);
    } else {
        Push(NextRound | at, FPos);
        FPc = at + 1;
    }
}

void TMatcher::BeginRound(const TRegExprStep& test) {
    SetSlot(RoundStartSlot(test), FPos);
    FPc = test.Arg + 1;
}

}  // namespace

std::u16string RegExprCharacters(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    for (TTextCursor at(text); !at.AtEnd(); at.Next()) {
        const std::string_view c = at.Char();
        const auto first = static_cast<unsigned char>(c[0]);
        out += static_cast<char16_t>(c.size() == 1 ? first : first << 8 | static_cast<unsigned char>(c[1]));
    }
    return out;
}

std::size_t RegExprBytes(std::u16string_view characters) {
    const auto pairs =
        std::count_if(characters.begin(), characters.end(), [](char16_t c) { return c > 0xFF; });
    return characters.size() + static_cast<std::size_t>(pairs);
}

TRegExpr::TRegExpr(std::string_view expression) {
    expression = UpToNul(expression);
    if (expression.size() > RegExprMaxExpression) throw ERegExpr("TRegExpr(comp): Regexp Too Big (pos 0)");
    if (!expression.empty()) FProgram = CompileRegExpr(expression);
}

bool TRegExpr::Exec(std::string_view subject, std::uint64_t stepBudget) {
    if (!FProgram) throw ERegExpr("TRegExpr(exec): Not Assigned Expression Property");
    FPlaces = {};
    subject = UpToNul(subject);
    FBudgetExceeded = subject.size() > RegExprMaxSubject;
    if (FBudgetExceeded) return false;
    TMatcher matcher(*FProgram, subject, stepBudget);
    if (!matcher.Search()) {
        FBudgetExceeded = matcher.OutOfBudget();
        return false;
    }
    for (std::size_t group = 0; group < FPlaces.size(); ++group) {
        const std::uint32_t start = matcher.Start(group), end = matcher.End(group);
        if (start == RegExprNowhere || end == RegExprNowhere) continue;
        FPlaces[group].Pos = static_cast<int>(RegExprBytes(matcher.Text().substr(0, start))) + 1;
        FPlaces[group].Len = static_cast<int>(RegExprBytes(matcher.Text().substr(start, end - start)));
    }
    return true;
}

bool ExecRegExpr(std::string_view expression, std::string_view subject) {
    return TRegExpr(expression).Exec(subject);
}

}  // namespace rux
