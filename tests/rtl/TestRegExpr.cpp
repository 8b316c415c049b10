#include "rtl/RegExpr.h"

// GCC 12 sees uninitialised members in its own <regex> when that is sanitized.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif

#include <iterator>
#include <random>
#include <regex>
#include <utility>
#include <vector>

#include "tests/rtl/TestCodePage.h"
#include "tests/support/SmallStack.h"

namespace rux::test {
namespace {

using std::string;
using namespace std::string_literals;

class TRegExprTest : public TRtlTest {};

/// "<place>:<match>", then "|<match>" for each group up to the last that took part ("-" for one that did
/// not); or "no", "beyond", or the message of what was raised.
string Answer(std::string_view expression, std::string_view subject,
              std::uint64_t budget = RegExprStepBudget) {
    try {
        TRegExpr compiled(expression);
        if (!compiled.Exec(subject, budget)) return compiled.BudgetExceeded() ? "beyond" : "no";
        string out = std::to_string(compiled.MatchPos(0)) + ":";
        for (int group = 0; group < RegExprPlaces; ++group) {
            const int pos = compiled.MatchPos(group), len = compiled.MatchLen(group);
            const bool none = pos == -1 && len == -1;
            out +=
                none ? "-" : subject.substr(static_cast<std::size_t>(pos) - 1, static_cast<std::size_t>(len));
            out += '|';
        }
        while (out.ends_with("|-|")) out.resize(out.size() - 2);
        return out.substr(0, out.size() - 1);
    } catch (const ERegExpr& e) {
        return e.Message();
    }
}

struct TRow {
    const char *Expression, *Subject, *Answer;
};

void Check(std::initializer_list<TRow> rows) {
    for (const auto& [expression, subject, answer] : rows)
        EXPECT_EQ(Answer(Ansi(expression), Ansi(subject)), Ansi(answer)) << expression << " in " << subject;
}

TEST_F(TRegExprTest, MatchesAsTheLibraryDoes) {
    // clang-format off
    Check({
        {"a.b", "a\nb", "1:a\nb"}, {"a$", "a\n", "no"}, {"^b", "a\nb", "no"}, {"b", "aab", "3:b"}, {"B", "b", "no"},
        {"a|ab", "ab", "1:a"}, {"(|a)b", "ab", "1:ab|a"}, {"a|", "b", "1:"}, {"(a)|(b)", "b", "1:b|-|b"}, {"", "", "TRegExpr(exec): Not Assigned Expression Property"},
        {"a*", "baa", "1:"}, {"a+?", "aaa", "1:a"}, {"a{2}", "aaa", "1:aa"}, {"a{2,}", "aaaa", "1:aaaa"}, {"a{1,2}?b", "aaab", "2:aab"}, {"(ab){2,3}", "ababab", "1:ababab|ab"}, {"(ab){2,3}?", "ababab", "1:abab|ab"}, {"xa{0}(b){0}y", "xy", "1:xy"},
        {"(?-g)a+", "aa", "1:a"}, {"(a|ab)(c|bcd)(d*)", "abcd", "1:abcd|a|bcd|"},
        {"[]a]+", "a]b", "1:a]"}, {"[^]]+", "]ab", "2:ab"}, {"[a-]+", "-ab", "1:-a"}, {"[a-c-e]+", "d-eb", "2:-eb"}, {"[\\d-x]+", "-1x", "1:-1x"}, {"[a-\\d]+", "b-5a", "2:-5a"}, {"[c-da-z]+", "-xc", "2:xc"}, {"[\\D\\W]+", "1WDa", "2:WD"}, {"[[:alpha:]]", "h]", "1:h]"},
        {"\\d+\\D", "a12_", "2:12_"}, {"\\w+\\W", ".a_1Z-", "2:a_1Z-"}, {"\\s+\\S", "a \t\n\r\fb", "2: \t\n\r\fb"}, {"\\s", "\v", "no"},
        {"\\t\\n\\r\\f\\a\\e\\x41\\x{42}\\.\\q", "\t\n\r\f\a\x1B" "AB.q", "1:\t\n\r\f\a\x1B" "AB.q"},
        {"\\bb\\B.", "ab bc", "4:bc"}, {"\\Aa\\Z", "a", "1:a"}, {"b\\Z", "ba", "no"}, {"\\z", "z", "1:z"},
        {"(a|b)\\1", "abb", "2:bb|b"}, {"(a)|b\\1", "b", "no"}, {"(a*)x\\1*b", "aaxaaaab", "1:aaxaaaab|aa"}, {"(a)\\1{2}", "aaa", "1:aaa|a"}, {"\\5", "5", "no"}, {"(x\\1?)+y", "xxy", "1:xxy|x"}, {"(a*)b\\1$", "aaba", "2:aba|a"}, {"((a\\2b|a)x)+$", "axabx", "1:axabx|abx|ab"},
        {"(?i)a[b-c]\\xE9", "AC\xC3\xA9", "no"}, {"a(?i)b", "aB", "1:aB"}, {"(a(?i)b)c", "aBC", "no"}, {"(?i)(b)\\1", "bB", "1:bB|b"}, {"(?i)[^b]", "Ba", "2:a"}, {"(?i-i)a", "A", "no"}, {"a(?#note)b(?i)?C", "abc", "1:abc"},
        {"(?-s)a.", "a\na\ra.", "5:a."}, {"(?m)^b$", "a\r\nb\r\nc", "4:b"}, {"(?m)$", "a\r\n", "2:"}, {"(?m)^\\n", "\r\n", "no"}, {"(?x)a b # c\n\\ d", "ab d", "1:ab d"}, {"(?x)[ ]", "a ", "2: "},
        {"a{2", "a{2", "1:a{2"}, {"a{,3}", "a{,3}", "1:a{,3}"}, {"{2}", "{2}", "1:{2}"}, {"a{{2}", "a{{", "1:a{{"}, {"a{1,x}]}", "a{1,x}]}", "1:a{1,x}]}"},
        {"[^\\\\]:", "a:b", "1:a:"}, {"[^\\\\]:", ":b", "no"}, {"[^\\\\]:", "a\\:b", "no"}, {"^?b", "ab", "2:b"}, {"\\b??a$?", "ba", "2:a"}, {"(\\1b|a)+", "aabc", "1:aab|b"}, {"(a{0,2})*b", "aaab", "1:aaab|"}, {"((a{0,1}){2,3}){2}", "b", "1:||"},
    });
    string numbers;
    for (const char* subject : {"12abc", "-5x", "0", "0.5", "00", "-0.5", "", "x\r\n12"})
        numbers += ExecRegExpr("^[-+]?([1-9]\\d*(\\.\\d+)?)|(^0(\\.\\d+)?)$", subject) ? '1' : '0';
    EXPECT_EQ(numbers, "11110000");
    // clang-format on
    EXPECT_EQ(Answer("b\0["s, "ab\0"s), "2:b");
    EXPECT_EQ(Answer("[^a]|b$", "a\0b"s), "no");
}

TEST_F(TRegExprTest, RefusesWithTheLibrarysTexts) {
    // clang-format off
    constexpr std::pair<const char*, const char*> rows[] = {
        {"(a*)*", "*+ Operand Could Be Empty (pos 4)"}, {"^*", "*+ Operand Could Be Empty (pos 1)"}, {"(a|)+", "*+ Operand Could Be Empty (pos 4)"}, {"(?i)*", "*+ Operand Could Be Empty (pos 4)"}, {"(?x)a *", "*+ Operand Could Be Empty (pos 6)"},
        {"a**", "Nested *?+ (pos 2)"}, {"a???", "Nested *?+ (pos 3)"}, {"a{2}{3}", "Nested *?+ (pos 4)"}, {"*a", "?+*{ Follows Nothing (pos 1)"}, {"a|?", "?+*{ Follows Nothing (pos 3)"},
        {"(", "ParseReg Unmatched () (pos 1)"}, {")", "ParseReg Unmatched () (pos 0)"}, {"誠)", "ParseReg Unmatched () (pos 2)"}, {"[", "Unmatched [] (pos 1)"}, {"[]", "Unmatched [] (pos 2)"}, {"[^]", "Unmatched [] (pos 3)"},
        {"\\", "Trailing \\ (pos 1)"}, {"[\\", "Parse Atom Trailing \\ (pos 2)"}, {"[z-a]", "Invalid [] Range (pos 3)"}, {"[z-\\x41]", "Invalid [] Range (pos 6)"},
        {"(?:a)", "Urecognized Modifier (pos 4)"}, {"(?=a)", "Urecognized Modifier (pos 4)"}, {"(?!a)", "Urecognized Modifier (pos 4)"}, {"(?i", "Urecognized Modifier (pos 3)"}, {"(?#", "Unclosed (?#Comment) (pos 3)"},
        {"\\x4", "No Hex Code After \\x (pos 3)"}, {"\\x{4", "No Hex Code After \\x (pos 4)"}, {"\\xg", "Bad Hex Digit (pos 2)"}, {"\\x{100}", "Hex Code After \\x Is Too Big (pos 5)"},
        {"a{3,2}", "BRACE Min Param Greater then Max (pos 5)"}, {"a{123456789}", "BRACES Argument Too Big (pos 11)"}, {"()()()()()()()()()()()()()()()", "ParseReg Too Many () (pos 29)"}};
    // clang-format on
    for (const auto& [expression, text] : rows)
        EXPECT_EQ(Answer(Ansi(expression), ""), "TRegExpr(comp): "s + text) << expression;
    EXPECT_EQ(Answer("()()()()()()()()()()()()()(x)", "x"), "1:x||||||||||||||x");
    EXPECT_EQ(Raised([] { TRegExpr(string(RegExprMaxExpression + 1, 'a')); }),
              "ERegExpr: TRegExpr(comp): Regexp Too Big (pos 0)");
}

TEST_F(TRegExprTest, SeesCharactersOfTheCodePage) {
    // The second bytes are 5C \, 7C |, 5E ^, 5F _, 5B [, 5D ], 7B {, 7D }.
    // clang-format off
    Check({
        {"誠", "x誠", "2:誠"}, {"^億x$", "億x", "1:億x"}, {"億", "root", "no"}, {"a區b", "a區b", "1:a區b"}, {"[乕乚]+$", "乚乕", "1:乚乕"}, {"乕a", "乕a", "1:乕a"},
        {"x亄2倉*", "x亄2倉倉", "1:x亄2倉倉"}, {"^.$", "誠", "1:誠"}, {"[^中]", "中国", "3:国"}, {"泄", "中国", "no"}, {"\\\\(.)", "誠x\\億", "4:\\億|億"}, {"\\誠", "誠", "1:誠"},
        {"[亄-誠]", "泄誠", "1:泄"}, {"\\w", "卂丄", "no"}, {"\\bx", "卂x", "3:x"}, {"\\xD5\\x5C+", "誠誠", "1:誠誠"}, {"[\\xD5\\x{5C}]", "\\誠", "2:誠"}, {"(国|中)+?\\1$", "国中中", "1:国中中|中"},
        {"(?i)丄", "乤", "no"}, {"(?i)Ёа[ⅰ][Ａ]", "ёАⅠａ", "1:ёАⅠａ"}, {"(?i)[^α]", "Αα中", "5:中"},
    });
    // clang-format on
    EXPECT_EQ(Answer("^.$", "\xD5"), "1:\xD5");
    EXPECT_EQ(Answer("\\xD5", Ansi("誠")), "no");
}

TEST_F(TRegExprTest, KnowsTheRussianAlphabet) {
    TCodePageTables page;
    page.Number = 1251;
    page.ToWide.resize(0x10000);
    page.FromWide.resize(0x10000);
    for (unsigned byte = 0xBE; byte <= 0xFF; ++byte) {
        const unsigned at = byte == 0xBE ? 0xA8 : byte == 0xBF ? 0xB8 : byte;
        const char16_t unit = at == 0xA8 ? u'Ё' : at == 0xB8 ? u'ё' : static_cast<char16_t>(at + 0x350);
        page.ToWide[at] = unit;
        page.FromWide[unit] = static_cast<std::uint16_t>(at);
    }
    SetAnsiCodePage(page);
    // clang-format off
    Check({{"[а-я]+", "ЁёбЯ", "2:ёб"}, {"[А-Я]+", "ёЁБя", "2:ЁБ"}, {"[а-Я]+", "-яЁбё", "2:яЁбё"}, {"(?-r)[а-я]", "ё", "no"},
           {"(?-r)[а-Я]", "", "TRegExpr(comp): Invalid [] Range (pos 8)"}, {"[а-б]", "ё", "no"}});
    // clang-format on
}

TEST_F(TRegExprTest, NeitherOverflowsNorHangs) {
    const string run(1'000'000, 'a');
    OnSmallStack(256 * 1024, [&run] {
        for (const char* expression : {".*b", "(a|b)*b", "(?i)[^B]+B"})
            EXPECT_EQ(Answer(expression, run + "b").substr(0, 8), "1:aaaaaa") << expression;
        for (const char* expression : {".*x", "(a+)(x|y)", "a*?b", "(ab)*c"})
            EXPECT_EQ(Answer(expression, run), "no") << expression;
        for (const char* expression : {"(a|aa)+$", "((a{0,9}){0,9})+$", "(a*)\\1b", "((a+)+)+$"})
            EXPECT_EQ(Answer(expression, run.substr(0, 60000) + "c", 2'000'000), "beyond") << expression;
        EXPECT_EQ(Answer("((((((a))))))*c", run), "beyond");  // more ways back than are kept
        string answers;
        for (const string part : {"(", "[", "(?", "a|", "(?i)", "(?i)[\\x01-\\xFF]", "\\1?", "x{1"}) {
            string expression;
            while (expression.size() < run.size()) expression += part;
            answers += Answer(expression, "b") + "\n";
        }
        EXPECT_EQ(
            answers,
            "TRegExpr(comp): ParseReg Too Many () (pos 15)\nTRegExpr(comp): Unmatched [] (pos 1000000)\n"
            "TRegExpr(comp): Urecognized Modifier (pos 1000000)\n1:\n1:\nno\n1:\nno\n");
    });
    EXPECT_EQ(Answer("^(a{1000})\\1b", run.substr(0, 2000), 5500), "beyond");  // comparing costs too
    EXPECT_EQ(Answer("ab", "aab", 6), "beyond");
    EXPECT_EQ(Answer("ab", "aab", 7), "2:ab");
}

string Bytes(const string& letters) {
    string out;
    for (const char letter : letters) out += letter == '-' ? Ansi("誠") : string(1, letter);
    return out;
}

/// Expressions and subjects at random for another matcher, which sees `-` for the character of two bytes.
class TMaker {
 public:
    explicit TMaker(unsigned seed) : FRandom(seed) {}
    string MakeExpression() {
        bool ignored;
        return MakeBranches(1, 2, ignored);
    }
    string MakeSubject() {
        string out;
        for (int left = Roll(9); left > 0; --left) out += "ab-"[Roll(3)];
        return out;
    }

 private:
    int Roll(std::size_t sides) { return static_cast<int>(FRandom() % sides); }
    /// `hasWidth`: a match takes a character at least.
    string MakeBranches(int shortest, int depth, bool& hasWidth) {
        string out;
        hasWidth = true;
        for (bool more = true; more; more = Roll(3) == 0) {
            bool branch = false, part = false;
            if (!out.empty()) out += '|';
            for (int left = Roll(4) + shortest; left > 0; --left, branch |= part)
                out += MakePart(depth, part);
            hasWidth &= branch;
        }
        return out;
    }
    string MakePart(int depth, bool& hasWidth) {
        static const char* const plain[] = {"^", "$",    "\\b", "a",      "b",  "-",
                                            ".", "[^a]", "[b]", "[a-b-]", "\\w"};
        static const char* const counts[] = {"?", "*", "+", "{0,2}", "{2,3}", "{2}", "{0}"};
        const int index = Roll(std::size(plain)), kind = Roll(6);
        string part = plain[index];
        hasWidth = index > 2;
        bool counted = hasWidth;
        if (kind == 0 && !FClosed.empty()) {
            part = "\\" + std::to_string(FClosed[Roll(FClosed.size())]);
            hasWidth = false;
            counted = true;
        }
        if (kind > 3 && depth > 0 && FGroups < 9) {
            const int number = ++FGroups;
            part = "(" + MakeBranches(0, depth - 1, hasWidth) + ")";
            FClosed.push_back(number);
            counted = true;
        }
        // The other matcher knows no count of an edge, and no reference within the group itself.
        if (!counted || Roll(2) == 0) return part;
        const string count = counts[hasWidth ? Roll(std::size(counts)) : 0];
        hasWidth &= count.find_first_of("?*0") == string::npos;
        return part + count + (Roll(3) == 0 ? "?" : "");
    }

    std::mt19937 FRandom;
    int FGroups = 0;
    std::vector<int> FClosed;
};

TEST_F(TRegExprTest, FindsWhatTheLanguagesOwnMatcherFinds) {
    int found = 0;
    for (unsigned seed = 0; seed < 5000; ++seed) {
        TMaker maker(seed);
        const string expression = maker.MakeExpression();
        TRegExpr compiled(Bytes(expression));
        const std::regex other(expression);
        for (int tries = 0; tries < 4; ++tries) {
            const string subject = maker.MakeSubject();
            const int matches = compiled.Exec(Bytes(subject)) ? RegExprPlaces : 0;
            found += matches > 0;
            std::smatch match;
            std::regex_search(subject, match, other);
            std::vector<std::pair<int, int>> places, expected;
            for (int i = 0; i < matches; ++i) places.emplace_back(compiled.MatchPos(i), compiled.MatchLen(i));
            const auto bytes = [](const string& letters) { return static_cast<int>(Bytes(letters).size()); };
            for (int i = 0; i < RegExprPlaces && !match.empty(); ++i)
                expected.push_back(match[i].matched ? std::pair(bytes({subject.cbegin(), match[i].first}) + 1,
                                                                bytes(match[i]))
                                                    : std::pair(-1, -1));
            ASSERT_EQ(places, expected) << expression << " in " << subject << ", seed " << seed;
        }
    }
    EXPECT_GT(found, 5000);
}

}  // namespace
}  // namespace rux::test
