#include "rtl/Text.h"

#include <limits>
#include <random>
#include <tuple>

#include "tests/rtl/TestCodePage.h"

namespace rux::test {
namespace {

using std::string;
using std::string_view;
using namespace std::string_literals;

class TTextTest : public TRtlTest {};

TEST_F(TTextTest, TrimStripsCodesUpTo32AndNothingElse) {
    EXPECT_EQ(Trim("\t\r a b \x1F\0"s), "a b");
    EXPECT_EQ(TrimLeft(" a "), "a ");
    EXPECT_EQ(TrimRight(" a "), " a");
    EXPECT_EQ(Trim(Ansi("　中　")), Ansi("　中　"));
    EXPECT_EQ(Trim("\xA0x\xA0"), "\xA0x\xA0");
    EXPECT_TRUE(IsBlank("\t\r\n\0 "s));
    EXPECT_EQ(RemoveBlanks("\t a  b\0 c \n"s), "\tab\0c\n"s);
    EXPECT_EQ(RemoveBlanks("\xFE ,\xFE\xFE ,"), "\xFE ,\xFE\xFE,");
}

TEST_F(TTextTest, SameTextFoldsBytesAndAnsiSameTextCharacters) {
    for (const auto& [a, b] : {std::pair{"", ""}, {"TButton", "tbUTTON"}, {"é", "é"}}) {
        EXPECT_TRUE(SameText(Ansi(a), Ansi(b)) && AnsiSameText(Ansi(a), Ansi(b))) << a;
    }
    for (const auto& [a, b] : {std::pair{"Ａ", "ａ"}, {"Αё", "αЁ"}, {"аⅠ", "Аⅰ"}}) {
        EXPECT_TRUE(!SameText(Ansi(a), Ansi(b)) && AnsiSameText(Ansi(a), Ansi(b))) << a;
    }
    const char* const different[][2] = {{"a", "ab"},      {"@", "`"},       {"[", "{"},
                                        {"a\x01", "a"},   {"\xD6", "\xD7"}, {"\x81 ", "\x82 "},
                                        {"\xA3\xC1", "A"}};
    for (const auto& [a, b] : different)
        EXPECT_FALSE(SameText(a, b) || AnsiSameText(a, b) || AnsiSameText(b, a)) << a;
    EXPECT_TRUE(SameText(Ansi("丄"), Ansi("乤")));
    EXPECT_FALSE(AnsiSameText(Ansi("丄"), Ansi("乤")));
}

TEST_F(TTextTest, CaseAndOrder) {
    EXPECT_EQ(UpperCase("az{`\x81\x61"), "AZ{`\x81\x41");
    EXPECT_EQ(LowerCase("AZ[@\x81\x41"), "az[@\x81\x61");
    EXPECT_EQ(AnsiUpperCase("az\x81\x61" + Ansi("ёé誠") + "\xFE"), "AZ\x81\x61" + Ansi("Ёé誠") + "\xFE");
    EXPECT_GT(CompareText("_", "z"), 0);
    EXPECT_LT(CompareText("ab", "ABC"), 0);
    EXPECT_EQ(CompareText("ab", "AB"), 0);
    EXPECT_GT(CompareText("\xFF", "a"), 0);
}

TEST_F(TTextTest, PosSeesBytesAndAnsiPosCharacters) {
    // clang-format off
    const std::tuple<string, string, std::size_t, std::size_t> rows[] = {
        {"", "abc", 0, 0}, {"a", "", 0, 0}, {"c", "abc", 3, 3}, {"C", "abc", 0, 0},
        {"\\", Ansi("誠"), 2, 0}, {"\\", Ansi("誠\\"), 2, 3}, {"|", Ansi("億|x"), 2, 3},
        {"^", Ansi("區"), 2, 0}, {Ansi("泄"), Ansi("中国"), 2, 0}, {Ansi("泄"), Ansi("中国泄"), 2, 5},
        {Ansi("国"), Ansi("中国"), 3, 3}, {"x\xD6", Ansi("x中"), 1, 0}, {"x\xD6", "x\xD6", 1, 1},
        {":", "\xFE:", 2, 0}, {"b", "a\0b"s, 3, 0}, {"a\0x"s, "ba", 0, 2}};
    // clang-format on
    for (const auto& [sub, text, inBytes, inCharacters] : rows) {
        EXPECT_EQ(Pos(sub, text), inBytes) << sub << " in " << text;
        EXPECT_EQ(AnsiPos(sub, text), inCharacters) << sub << " in " << text;
    }
}

/// What AnsiPos means, told without any short cut.
std::size_t SteppedPos(string_view sub, string_view text) {
    for (TTextCursor at(text); !at.AtEnd(); at.Next()) {
        TTextCursor end = at;
        while (end.Pos() < at.Pos() + sub.size() && !end.AtEnd()) end.Next();
        if (text.substr(at.Pos(), end.Pos() - at.Pos()) == sub) return at.Pos() + 1;
    }
    return 0;
}

TEST_F(TTextTest, AnsiPosAgreesWithSteppingOnAnyBytes) {
    std::mt19937 random(936);
    const auto bytes = [&random](std::size_t most) {
        string out(random() % most + 1, ' ');
        for (char& c : out) c = "\x81\xFE\\a"[random() % 4];
        return out;
    };
    for (int i = 0; i < 20000; ++i) {
        const string sub = bytes(3), text = bytes(24);
        ASSERT_EQ(AnsiPos(sub, text), SteppedPos(sub, text))
            << testing::PrintToString(sub) << " in " << testing::PrintToString(text);
    }
}

TEST_F(TTextTest, ReplaceAll) {
    // clang-format off
    const string rows[][4] = {
        {"aXaxA", "a", "b", "bXbxA"}, {"aaa", "aa", "b", "ba"}, {"aba", "a", "aa", "aabaa"},
        {"abc", "", "x", "abc"}, {Ansi("誠\\n"), "\\", "/", Ansi("誠/n")},
        {Ansi("中国泄"), Ansi("泄"), "-", Ansi("中国-")}, {"a\0a"s, "a", "bb", "bb\0a"s}};
    // clang-format on
    for (const auto& row : rows) EXPECT_EQ(ReplaceAll(row[0], row[1], row[2]), row[3]);
}

TEST_F(TTextTest, CopyCutsWhatLiesOutside) {
    constexpr long long far = std::numeric_limits<long long>::max();
    EXPECT_EQ(Copy("abc", 2, 1), "b");
    EXPECT_EQ(Copy("abc", -far, 2), "ab");
    EXPECT_EQ(Copy("abc", 2, far), "bc");
    EXPECT_EQ(Copy("abc", 4, 1) + Copy("abc", far, far) + Copy("abc", 1, -1), "");
}

TEST_F(TTextTest, WhatASocketBrought) {
    string line = "GET  /a%20b  HTTP/1.1 ";
    EXPECT_EQ(Fetch(line, ' '), "GET");
    EXPECT_EQ(Fetch(line, ' '), "/a%20b");
    EXPECT_EQ(line, "HTTP/1.1");
    EXPECT_EQ(Fetch(line, ' '), "HTTP/1.1");
    EXPECT_EQ(line, "");
    // As UTF-8 the last byte in front of the blank has the value of a lead byte.
    line = "GET 中 HTTP/1.1";
    Fetch(line, ' ');
    EXPECT_EQ(Fetch(line, ' '), "中");
    EXPECT_EQ(SeparateRight("Host: a:b", ':'), " a:b");
    EXPECT_EQ(SeparateRight("Content-Length 5", ':'), "Content-Length 5");

    const string rows[][2] = {
        {"a%20b+c", "a b+c"}, {"%d6%D0", Ansi("中")}, {"%zz%41", "%zzA"}, {"%%41", "%A"}, {"a%4", "a"},
        {"a%", "a"},          {"a%\r\nb", "ab"},      {"a%\nbc", "abc"},  {"", ""},       {"%00x", "\0x"s}};
    for (const auto& row : rows) EXPECT_EQ(DecodeURL(row[0]), row[1]) << row[0];
}

TEST_F(TTextTest, Paths) {
    const string dir = Ansi("C:\\誠.d\\");
    EXPECT_EQ(ExtractFilePath(dir + "b.exe"), dir);
    EXPECT_EQ(ExtractFileName(dir + "b.exe"), "b.exe");
    EXPECT_EQ(ExtractFilePath("b/c"), "");
    EXPECT_EQ(ExtractFilePath("C:b"), "C:");
    EXPECT_EQ(ChangeFileExt("C:\\d\\lib.x.dll", ".idf"), "C:\\d\\lib.x.idf");
    EXPECT_EQ(ChangeFileExt(dir + "lib", ".idf"), dir + "lib.idf");
    EXPECT_EQ(IncludeTrailingPathDelimiter(Ansi("C:\\誠")), Ansi("C:\\誠\\"));
    EXPECT_EQ(IncludeTrailingPathDelimiter("C:\\"), "C:\\");
}

}  // namespace
}  // namespace rux::test
