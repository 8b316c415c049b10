// Expressions made at random, matched a second time in the plainest way: each part calls what follows it. One
// letter of a subject stands for one character, `c` for one of two bytes.
#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <random>
#include <utility>
#include <vector>

#include "rtl/RegExpr.h"
#include "tests/rtl/TestCodePage.h"

namespace rux::test {
namespace {

using std::string;
using TPlaces = std::vector<std::pair<int, int>>;

struct TCount {
    const char* Text = "";
    int Min = 1, Max = 1;
};

/// A character (one of what it Accepts), an edge, a group or a reference.
struct TPart {
    string Text = {}, Accepts = {};
    int Group = 0, Reference = 0;
    std::vector<std::vector<TPart>> Branches = {};
    TCount Count = {};
    bool Greedy = true, HasWidth = true;
};

string Bytes(std::string_view letters) {
    string out;
    for (const char letter : letters) out += letter == 'c' ? Ansi("誠") : string(1, letter);
    return out;
}

class TOracle {
 public:
    explicit TOracle(unsigned seed) : FRandom(seed), FRoot(MakeGroup(0, 2)) {}
    string Expression() const {
        const string whole = Write(FRoot);
        return Bytes(whole.substr(1, whole.size() - 2));
    }
    string MakeSubject() {
        string out;
        for (int left = Roll(9); left > 0; --left) out += "abc"[Roll(3)];
        return out;
    }
    /// Place and length of every group; nothing when there is no match.
    TPlaces Search(const string& subject) {
        FSubject = subject;
        TPlaces places;
        for (int start = 0; start <= static_cast<int>(subject.size()) && places.empty(); ++start) {
            FStart.fill(-1);
            FEnd.fill(-1);
            if (!One(FRoot, start, [](int) { return true; })) continue;
            for (int group = 0; group < RegExprPlaces; ++group) {
                const int from = FStart[group], to = FEnd[group];
                const auto bytes = [&](int a, int b) {
                    return static_cast<int>(Bytes(subject.substr(a, b - a)).size());
                };
                places.push_back(from < 0 || to < 0 ? std::pair(-1, -1)
                                                    : std::pair(bytes(0, from) + 1, bytes(from, to)));
            }
        }
        return places;
    }

 private:
    using TThen = std::function<bool(int)>;

    int Roll(std::size_t sides) { return static_cast<int>(FRandom() % sides); }
    TPart MakeGroup(int number, int depth) {
        TPart group{.Group = number};
        for (bool more = true; more; more = Roll(3) == 0) {
            auto& branch = group.Branches.emplace_back();
            for (int left = Roll(4) + (number == 0); left > 0; --left) branch.push_back(MakePart(depth));
            group.HasWidth &=
                std::any_of(branch.begin(), branch.end(), [](auto& part) { return part.HasWidth; });
        }
        return group;
    }
    TPart MakePart(int depth) {
        static const TPart plain[] = {
            {"a", "a"},        {"b", "b"},    {"c", "c"}, {".", "abc"}, {"[^a]", "bc"}, {"[b]", "b"},
            {"[a-bc]", "abc"}, {"\\w", "ab"}, {"^"},      {"$"},        {"\\b"}};
        static const TCount counts[] = {{"?", 0, 1},     {"*", 0, 99},  {"+", 1, 99}, {"{0,2}", 0, 2},
                                        {"{2,3}", 2, 3}, {"{2}", 2, 2}, {"{0}", 0, 0}};
        TPart part = plain[Roll(std::size(plain))];
        part.HasWidth = !part.Accepts.empty();
        const int kind = Roll(6), reference = FGroups > 0 ? 1 + Roll(FGroups) : 0;
        if (kind == 0 && reference > 0)
            part = {.Text = "\\" + std::to_string(reference), .Reference = reference};
        if (kind > 3 && depth > 0 && FGroups < 9) part = MakeGroup(++FGroups, depth - 1);
        if (Roll(2) == 0) return part;
        part.Count = counts[part.HasWidth ? Roll(std::size(counts)) : 0];
        part.Greedy = Roll(3) > 0;
        part.HasWidth = part.Count.Text[0] == '{' ? part.Count.Max > 0 : part.Count.Min > 0;
        return part;
    }
    static string Write(const TPart& part) {
        string out = part.Text;
        for (const auto& branch : part.Branches) {
            out += &branch == &part.Branches.front() ? '(' : '|';
            for (const TPart& piece : branch) out += Write(piece);
        }
        return out + (part.Branches.empty() ? "" : ")") + part.Count.Text + (part.Greedy ? "" : "?");
    }

    bool Sequence(const std::vector<TPart>& branch, std::size_t index, int pos, const TThen& then) {
        if (index == branch.size()) return then(pos);
        return Rounds(branch[index], 0, pos, [&](int end) { return Sequence(branch, index + 1, end, then); });
    }
    bool Rounds(const TPart& part, int count, int pos, const TThen& then) {
        const TThen next = [&](int end) {
            return end == pos ? then(end) : Rounds(part, count + 1, end, then);
        };
        const auto again = [&] { return count < part.Count.Max && One(part, pos, next); };
        if (count < part.Count.Min) return again();
        return part.Greedy ? again() || then(pos) : then(pos) || again();
    }
    bool One(const TPart& part, int pos, const TThen& then) {
        const int size = static_cast<int>(FSubject.size());
        const auto isWord = [&](int at) { return at >= 0 && at < size && FSubject[at] != 'c'; };
        if (!part.Branches.empty()) return Group(part, pos, then);
        if (part.Text == "^") return pos == 0 && then(pos);
        if (part.Text == "$") return pos == size && then(pos);
        if (part.Text == "\\b") return isWord(pos - 1) != isWord(pos) && then(pos);
        if (part.Reference == 0)
            return pos < size && part.Accepts.find(FSubject[pos]) != string::npos && then(pos + 1);
        const int from = FStart[part.Reference], to = FEnd[part.Reference], length = std::max(to - from, 0);
        return from >= 0 && to >= 0 && FSubject.compare(pos, length, FSubject, from, length) == 0 &&
               then(pos + length);
    }
    bool Group(const TPart& part, int pos, const TThen& then) {
        const int start = std::exchange(FStart[part.Group], pos);
        const auto close = [&](int at) {
            const int end = std::exchange(FEnd[part.Group], at);
            return then(at) || (FEnd[part.Group] = end, false);
        };
        for (const auto& branch : part.Branches) {
            if (Sequence(branch, 0, pos, close)) return true;
        }
        FStart[part.Group] = start;
        return false;
    }

    std::mt19937 FRandom;
    int FGroups = 0;
    string FSubject;
    TPart FRoot;
    std::array<int, RegExprPlaces> FStart{}, FEnd{};
};

class TRegExprOracleTest : public TRtlTest {};

TEST_F(TRegExprOracleTest, FindsWhatPlainBacktrackingFinds) {
    int found = 0;
    for (unsigned seed = 0; seed < 5000; ++seed) {
        TOracle oracle(seed);
        TRegExpr compiled(oracle.Expression());
        for (int tries = 0; tries < 4; ++tries) {
            const string subject = oracle.MakeSubject();
            TPlaces places;
            if (compiled.Exec(Bytes(subject))) {
                ++found;
                for (int i = 0; i < RegExprPlaces; ++i)
                    places.emplace_back(compiled.MatchPos(i), compiled.MatchLen(i));
            }
            ASSERT_EQ(places, oracle.Search(subject))
                << oracle.Expression() << " in " << subject << ", seed " << seed;
        }
    }
    EXPECT_GT(found, 5000);
}

}  // namespace
}  // namespace rux::test
