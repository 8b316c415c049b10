// Expressions of scripts: the first line is the expression, the rest the subject.
#include <algorithm>
#include <cstdint>

#include "fuzz/FuzzEngine.h"
#include "platform/posix/CodePages.h"
#include "rtl/Chars.h"
#include "rtl/RegExpr.h"

namespace rux::fuzz {
namespace {

constexpr std::uint64_t SmallBudget = 20'000, Budget = 200'000;

void CheckPlaces(const TRegExpr& expression, std::string_view subject) {
    for (int group = 0; group < RegExprPlaces; ++group) {
        const int pos = expression.MatchPos(group), len = expression.MatchLen(group);
        Demand((pos < 0) == (len < 0));
        if (pos < 0) continue;
        Demand(pos >= 1 && static_cast<std::size_t>(pos - 1 + len) <= subject.size());
        // A place begins and ends between characters.
        TTextCursor at(subject);
        while (at.Pos() < static_cast<std::size_t>(pos - 1)) at.Next();
        Demand(at.Pos() == static_cast<std::size_t>(pos - 1));
        while (at.Pos() < static_cast<std::size_t>(pos - 1 + len)) at.Next();
        Demand(at.Pos() == static_cast<std::size_t>(pos - 1 + len));
    }
    Demand(expression.MatchPos(0) > 0);
}

void Check(std::string_view text, std::string_view subject) {
    try {
        TRegExpr expression(text);
        const bool found = expression.Exec(subject, SmallBudget);
        const bool beyond = expression.BudgetExceeded();
        const int pos = expression.MatchPos(0), len = expression.MatchLen(0);
        Demand(found ? !beyond : pos == -1);
        if (found) CheckPlaces(expression, UpToNul(subject));
        // More steps change nothing where there were enough.
        const bool again = expression.Exec(subject, Budget);
        Demand(beyond || (again == found && expression.MatchPos(0) == pos && expression.MatchLen(0) == len));
    } catch (const ERegExpr& e) {
        Demand(e.Message().starts_with("TRegExpr("));
    }
}

}  // namespace
}  // namespace rux::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rux;
    static const bool ready = (SetAnsiCodePage(LoadCodePage(936)), true);
    fuzz::Demand(ready);
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t end = std::min(input.find('\n'), size);
    fuzz::Check(input.substr(0, end), input.substr(std::min(end + 1, size)));
    return 0;
}
