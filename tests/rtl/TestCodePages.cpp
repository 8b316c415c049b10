#include "tests/rtl/TestCodePage.h"

namespace rux::test {
namespace {

using std::string;
using std::string_view;
using namespace std::string_literals;

TEST(CodePageDefault, IsSevenBitUntilOneIsSet) {
    if (AnsiCodePage() != 20127) GTEST_SKIP() << "another test of this process has set the code page";
    EXPECT_EQ(WideToAnsi(u"aé\x7F"), "a?\x7F");
    EXPECT_EQ(AnsiToWide("a\xD6\xD0"), u"a\xFFFD\xFFFD");
    EXPECT_FALSE(IsLeadByte(0xD6));
}

class TCodePageTest : public TRtlTest {};

TEST_F(TCodePageTest, TextsGoToUtf8AndBack) {
    for (const string_view utf8 :
         {"", "a", "1234567中8901234567890国x", "€é　誠", "中", "sixteen bytes ok"}) {
        EXPECT_EQ(AnsiToUtf8(Utf8ToAnsi(utf8)), utf8);
        EXPECT_EQ(WideToAnsi(AnsiToWide(Ansi(utf8))), Ansi(utf8));
    }
    EXPECT_EQ(Ansi("a中€"), "a\xD6\xD0\x80");
    EXPECT_EQ(AnsiToWide("\x80\xD6\xD0"), u"€中");
    EXPECT_EQ(AnsiToWide("a\0b"s), u"a\0b"s);
}

TEST_F(TCodePageTest, WhatHasNoPlaceIsMarked) {
    EXPECT_EQ(AnsiToWide("\xD6 x\xFE"), u"\xFFFDx\xFFFD");
    EXPECT_EQ(AnsiToUtf8("\x82\x82"), "\xEF\xBF\xBD");
    EXPECT_EQ(WideToAnsi(u"a\U0001F600\xFFFD"), "a???");
    EXPECT_EQ(Utf8ToAnsi("ß中"), "?\xD6\xD0");
}

TEST_F(TCodePageTest, AsciiIsAsciiWhateverTheTablesSay) {
    TCodePageTables tables;
    tables.Number = 1;
    tables.Lead['a'] = true;
    SetAnsiCodePage(std::move(tables));
    EXPECT_EQ(AnsiToWide("ab\x81"), u"ab\xFFFD");
    EXPECT_EQ(WideToAnsi(u"ab"), "ab");
    EXPECT_FALSE(IsLeadByte('a'));
    EXPECT_EQ(AnsiCodePage(), 1u);
}

TEST_F(TCodePageTest, Utf8IsDecodedWholeOrNotAtAll) {
    // clang-format off
    const std::pair<string, std::u16string> rows[] = {
        {"\xE4\xB8\xAD", u"中"}, {"\xE4\xB8", u""}, {"ab\xC3", u""}, {"a\xFF" "b", u""}, {"\xD6\xD0", u""},
        {"a\x80\x80", u""}, {"\xF0\x9F\x98\x80", u""}, {"\xE4\x41\x41", u""}, {"\xC0\x80", u"\0"s},
        {"\xEF\xBB\xBFx", u"\xFEFFx"}, {"\xED\xA0\xBD", u"\xD83D"}, {"\xF4\xB8\xAD", u"中"},
        {"long enough for words\xC3\xA9", u"long enough for words\x00E9"}};
    // clang-format on
    for (const auto& [utf8, wide] : rows) EXPECT_EQ(Utf8Decode(utf8), wide) << testing::PrintToString(utf8);
}

string Stepped(string_view text, bool placeholders) {
    string out;
    for (TTextCursor at(text, 0, placeholders); !at.AtEnd(); at.Next()) out.append(at.Char()).append(";");
    return out;
}

TEST_F(TCodePageTest, CursorStepsByCharacters) {
    const string text = Ansi("a誠\\服") + "\xFE,\xFE";
    EXPECT_EQ(Stepped(text, false), Ansi("a;誠;\\;服;") + "\xFE,;\xFE;");
    EXPECT_EQ(Stepped(text, true), Ansi("a;誠;\\;服;") + "\xFE;,;\xFE;");
    EXPECT_FALSE(TTextCursor(text, 1).Is('\xD5'));
    EXPECT_TRUE(TTextCursor(text, 3).Is('\\'));
    TTextCursor beyond("ab", 9);
    beyond.Next();
    EXPECT_TRUE(beyond.AtEnd());
    EXPECT_EQ(beyond.Char(), "");
}

}  // namespace
}  // namespace rux::test
