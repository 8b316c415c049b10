// The pieces of the locator: tokens, geometry, the searches that stand for slower ones.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "Engine/Locator/RUXContentMatch.h"
#include "Engine/Locator/RUXCoverage.h"
#include "Engine/Locator/RUXLocatorTokens.h"
#include "Engine/Locator/RUXNearest.h"
#include "Engine/Locator/RUXRectGeometry.h"
#include "platform/posix/CodePages.h"
#include "rtl/CodePage.h"
#include "rtl/Exceptions.h"

namespace rux::test {

namespace {

std::string Tokens(std::string_view utf8) {
    const std::string text = Ansi(utf8);
    std::string_view rest = text;
    std::string line;
    while (!rest.empty()) line += "[" + GetToken(rest) + "]";
    return AnsiToUtf8(line);
}

class TLocatorParts : public testing::Test {
 protected:
    TLocatorParts() { SetAnsiCodePage(LoadCodePage(936)); }
    int Pick(int from, int to) { return std::uniform_int_distribution<int>(from, to)(FRandom); }
    TRect PickRect(int spread, int size) {
        const int left = Pick(-spread, spread), top = Pick(-spread, spread);
        return {left, top, left + Pick(0, size), top + Pick(0, size)};
    }
    std::mt19937 FRandom{7};
};

constexpr std::int32_t Most = 2147483647;
constexpr TRect NoPlace{Most, Most, Most, Most};

}  // namespace

TEST_F(TLocatorParts, Tokens) {
    const struct {
        const char *Text, *Expected;
    } rows[] = {
        {"确定", "[确定]"},
        {"?TEdit#2", "[?][TEdit][#][2]"},
        {"a\\/b/c", "[a/b][/][c]"},
        {"a/b\\/c", "[a][/][b\\/c]"},  // the last text keeps its escapes
        {"OK\\#", "[OK\\#]"},          //
        {"OK\\#/", "[OK#][/]"},        //
        {"\\\\#1", "[\\\\][#][1]"},    // an even run does not escape, and stays doubled
        {"\\\\\\#1/", "[\\\\#1][/]"},  //
        {"\\#abc/x", "[#abc][/][x]"},  // acts as the operator after all
        {"a\\b#", "[a\\b][#]"},        // a backslash before anything else stays
        {"\x01x\\#/", "[x#][/]"},      // code 1 vanishes with the first dropped escape
        {"\x01x#", "[\x01x][#]"},      // and only then
        {"誠#1", "[誠][#][1]"},        // second bytes 5C, 5E, 5F are no syntax
        {"區_卂^誠\\#/", "[區][_][卂][^][誠#][/]"},
        {"?#1", "[?][#][1]"},
        {"<>^_", "[<][>][^][_]"},
    };
    for (const auto& row : rows) EXPECT_EQ(Tokens(row.Text), row.Expected) << row.Text;
}

TEST_F(TLocatorParts, ContentMatch) {
    const struct {
        const char *Text, *Content;
        bool Prefix, ListWhole, ListPart;
    } rows[] = {
        {"根", "根|子|孙", true, true, true},      {"根|子", "根|子|孙", true, true, true},
        {"子", "根|子|孙", false, true, true},     {"根|", "根|子|孙", false, false, false},
        {"a|b", "A|B", true, false, false},        {"甲|丙", "甲|乙|丙", false, true, true},
        {"甲丙", "甲|乙|丙", false, false, false}, {"a", "abc|d", false, false, true},
        {"\"a b\"", "ab", false, true, true},      {"", "x", false, true, true},
    };
    for (const auto& row : rows) {
        const std::string text = Ansi(row.Text), content = Ansi(row.Content);
        EXPECT_EQ(MatchContentPrefix(content, text), row.Prefix) << row.Text;
        EXPECT_EQ(MatchContentList(text, content, false), row.ListWhole) << row.Text;
        EXPECT_EQ(MatchContentList(text, content, true), row.ListPart) << row.Text;
    }
}

TEST_F(TLocatorParts, GapsAndDirections) {
    const TRect anchor{100, 100, 200, 120};
    const struct {
        TRect Other;
        const char* Directions;
        double Gap;
    } rows[] = {
        {{200, 100, 250, 120}, ">", 0},            // touching counts
        {{210, 110, 250, 130}, ">", 10},           // overlaps vertically
        {{210, 121, 250, 130}, ">_", 10.0499},     // neither: nearest corners (sqrt of 101)
        {{150, 140, 160, 150}, "_", 20},           //
        {{0, 0, 50, 60}, "<^", 64.0312},           //
        {{120, 100, 180, 120}, "", 80},            // inside: opposite edges all the same
        {{40000, 40000, 80000, 80000}, ">_", -1},  // its sum of squares wraps below 0
    };
    for (const auto& row : rows) {
        std::string directions;
        for (const char d : {'<', '>', '^', '_'})
            if (DirectionHolds(d, anchor, row.Other)) directions += d;
        EXPECT_EQ(directions, row.Directions);
        if (row.Gap < 0)
            EXPECT_THROW(RectGap(anchor, row.Other), EInvalidOp);
        else
            EXPECT_NEAR(RectGap(anchor, row.Other), row.Gap, 0.001);
    }
}

TEST_F(TLocatorParts, CoverageAgainstComparingAll) {
    for (const int size : {10, 60, 400}) {
        TCoverage fast;
        std::vector<TRect> seen;
        int covered = 0;
        for (int i = 0; i < 3000; ++i) {
            const TRect rect = PickRect(300, size);
            const bool expected = std::any_of(seen.begin(), seen.end(), [&](const TRect& r) {
                return r.Top <= rect.Top && r.Left <= rect.Left && r.Bottom >= rect.Bottom &&
                       r.Right >= rect.Right;
            });
            if (!expected) seen.push_back(rect);
            ASSERT_EQ(fast.IsCovered(rect), expected) << i << " of size " << size;
            covered += expected;
        }
        EXPECT_GT(covered, 20);
        EXPECT_LT(covered, 2990);
    }
}

TEST_F(TLocatorParts, NearestAgainstComparingAll) {
    for (int round = 0; round < 60; ++round) {
        std::vector<TRect> candidates;
        for (int i = Pick(0, 200); i > 0; --i) candidates.push_back(PickRect(round % 2 ? 60 : 3000, 40));
        // Things without a place, and places where sums wrap.
        if (round % 3 == 0)
            candidates.insert(candidates.begin() + Pick(0, static_cast<int>(candidates.size())), NoPlace);
        if (round % 5 == 0) candidates.push_back({40000, 40000, 80000, 80000});
        const TNearest fast(candidates);
        for (int i = 0; i < 40; ++i) {
            const TRect anchor = i == 0 ? NoPlace : PickRect(200, 60);
            for (const char d : {'<', '>', '^', '_'}) {
                const auto told = [](const auto& search) {
                    try {
                        return std::to_string(search());
                    } catch (const EInvalidOp&) {
                        return std::string("invalid");
                    }
                };
                const std::string expected = told([&] {
                    std::size_t best = TNearest::None;
                    for (std::size_t k = 0; k < candidates.size(); ++k)
                        if (DirectionHolds(d, anchor, candidates[k]) &&
                            !(best != TNearest::None &&
                              RectGap(anchor, candidates[best]) <= RectGap(anchor, candidates[k])))
                            best = k;
                    return best;
                });
                ASSERT_EQ(told([&] { return fast.Find(d, anchor); }), expected)
                    << "round " << round << " direction " << d;
            }
        }
    }
}

}  // namespace rux::test
