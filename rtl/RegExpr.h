// The one matcher for patterns that a script supplies.
//
// Syntax, defaults and error texts are those of the run-time library's TRegExpr. Unlike there, everything
// goes by characters of the code page, so a trail byte is never an operator and `.` takes a whole character.
// Neither an expression nor a subject can overflow the stack or keep the thread: nothing recurses, and steps
// are counted.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "rtl/Exceptions.h"

namespace rux {

using ERegExpr = TNamedException<Exception, "ERegExpr">;

/// Groups that an expression may have, and the places of their answers: 0 is the whole match.
constexpr int RegExprGroups = 14;
constexpr int RegExprPlaces = RegExprGroups + 1;
/// Bytes of an expression; a longer one is refused with "Regexp Too Big".
constexpr std::size_t RegExprMaxExpression = std::size_t{1} << 20;
/// Bytes of a subject; a longer one counts as beyond the budget.
constexpr std::size_t RegExprMaxSubject = std::size_t{1} << 26;
/// Steps of one Exec; a step is one operation or one character taken by a repetition. About half a second.
constexpr std::uint64_t RegExprStepBudget = 50'000'000;
/// Ways back that one Exec may have open (8 bytes each): enough for `(a|b)*` over 1,000,000 characters.
constexpr std::size_t RegExprMaxBacktrack = std::size_t{1} << 23;

class TRegExprProgram;

/// A compiled expression and the answers of its last Exec. Compiled in the code page then in force; one
/// thread at a time.
///
/// Operators: `* + ? {n} {n,} {n,m}` and with `?` behind them, `|`, `()`, `[]`, `. ^ $`, `\1` to `\9`, `\b \B
/// \A \Z`,
/// `\d \D \w \W \s \S`, `\t \n \r \f \a \e \xHH \x{HH}`, `(?#...)`, and the modifiers `(?imsgxr-imsgxr)` up
/// to the end of the group. Case counts, `.` takes line ends, `^` and `$` are the ends of the subject, unless
/// a modifier says otherwise. A lead byte and its trail byte, both written as `\xHH`, are one character. A #0
/// ends the expression, and the subject. Ranges of a set go by the codes of the code page.
class TRegExpr {
 public:
    /// Raises ERegExpr "TRegExpr(comp): <what> (pos <bytes before the place>)".
    explicit TRegExpr(std::string_view expression);

    /// Searches for the leftmost match; of those that begin there, the one that backtracking finds first.
    /// False too when the search went beyond `stepBudget` or another limit. Raises ERegExpr "TRegExpr(exec):
    /// Not Assigned Expression Property" when the expression is empty.
    bool Exec(std::string_view subject, std::uint64_t stepBudget = RegExprStepBudget);
    /// True when the last Exec gave up, so that its False means "not known".
    bool BudgetExceeded() const { return FBudgetExceeded; }

    /// Where a group matched last, in bytes from 1; -1 when it did not, or there is no such group.
    int MatchPos(int group) const { return IsPlace(group) ? FPlaces[group].Pos : -1; }
    /// Bytes of that match, or -1.
    int MatchLen(int group) const { return IsPlace(group) ? FPlaces[group].Len : -1; }

 private:
    struct TPlace {
        int Pos = -1;
        int Len = -1;
    };
    static bool IsPlace(int group) { return group >= 0 && group < RegExprPlaces; }

    std::shared_ptr<const TRegExprProgram> FProgram;
    std::array<TPlace, RegExprPlaces> FPlaces;
    bool FBudgetExceeded = false;
};

/// True when `expression` matches somewhere in `subject`; raises as TRegExpr does.
bool ExecRegExpr(std::string_view expression, std::string_view subject);

}  // namespace rux
