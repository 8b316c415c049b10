#include <tuple>

#include "rtl/MemIniFile.h"
#include "rtl/StringList.h"
#include "tests/rtl/TestCodePage.h"

namespace rux::test {
namespace {

using std::string;
using namespace std::string_literals;
using TItems = std::vector<string>;

class TListTest : public TRtlTest {};

TEST_F(TListTest, SplitAndJoinAgain) {
    // clang-format off
    const std::tuple<string, char, TItems, string> rows[] = {
        {"", ',', {}, ""}, {" \t", ',', {}, ""}, {"a b", ',', {"a", "b"}, "a,b"},
        {" a\r\n, b ", ',', {"a", "b"}, "a,b"}, {"a,,b", ',', {"a", "", "b"}, "a,,b"},
        {"a,", ',', {"a", ""}, "a,"}, {",", ',', {"", ""}, ","}, {"|a", '|', {"", "a"}, "|a"},
        {"a||", '|', {"a", "", ""}, "a||"}, {"\"a b\"", ',', {"a b"}, "\"a b\""},
        {"a\"b", ',', {"a\"b"}, "\"a\"\"b\""},
        {"n=\"a b\"", ',', {"n=\"a", "b\""}, "\"n=\"\"a\",\"b\"\"\""},
        {"\"n=a b\"", ',', {"n=a b"}, "\"n=a b\""}, {"\"a\"\"b\"", ',', {"a\"b"}, "\"a\"\"b\""},
        {"\"\"", ',', {""}, "\"\""}, {"\"a\"b", ',', {"a", "b"}, "a,b"},
        {"a=1;b = 2", ';', {"a=1", "b", "=", "2"}, "a=1;b;=;2"}, {"'a b'", ',', {"'a", "b'"}, "'a,b'"},
        {"\"abc", ',', {"abc"}, "abc"}, {"a,b\0,c"s, ',', {"a", "b"}, "a,b"},
        {Ansi("億|乕|x"), '|', {Ansi("億"), Ansi("乕"), "x"}, Ansi("億|乕|x")},
        {"\xFE,b", ',', {"\xFE,b"}, "\xFE,b"},
        {Ansi("\"億\"\"|\"|"), '|', {Ansi("億\"|"), ""}, Ansi("\"億\"\"|\"|")}};
    // clang-format on
    for (const auto& [text, delimiter, items, joined] : rows) {
        EXPECT_EQ(SplitDelimited(text, delimiter), items) << text;
        EXPECT_EQ(JoinDelimited(items, delimiter), joined) << text;
    }
    EXPECT_EQ(JoinDelimited({"a b", "c\"d", "e/f", "", "g", "h\0i"s}, '/'),
              "\"a b\"/\"c\"\"d\"/\"e/f\"//g/\"h\0i\""s);
    TStringList list;
    list.Delimiter = ';';
    list.QuoteChar = '\'';
    list.SetDelimitedText("'a b';c");
    EXPECT_EQ(list.Items(), (TItems{"a b", "c"}));
    EXPECT_EQ(list.DelimitedText(), "'a b';c");
}

TEST_F(TListTest, NamesAndValues) {
    TStringList list;
    for (const char* item : {"k= y = z ", "abc", "=x", "K=2", "誠\\=3"}) list.Add(Ansi(item));
    const string expected[][2] = {{"k", " y = z "}, {"", "bc"}, {"", "x"}, {"K", "2"}, {Ansi("誠\\"), "3"}};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(list.Name(i), expected[i][0]) << i;
        EXPECT_EQ(list.ValueFromIndex(i), expected[i][1]) << i;
    }
    EXPECT_EQ(list.Value("K"), " y = z ");
    EXPECT_EQ(list.Value(""), "x");
    EXPECT_EQ(list.Value("abc"), "");
    EXPECT_EQ(list.IndexOf("ABC"), 1);
    EXPECT_EQ(list.IndexOf("ab"), -1);
    list.NameValueSeparator = '\\';
    EXPECT_EQ(list.Name(4), Ansi("誠"));
}

TEST_F(TListTest, IndexOutOfBounds) {
    TStringList list;
    list.Add("a");
    EXPECT_EQ(Raised([&] { list[5]; }), "EStringListError: List index out of bounds (5)");
    EXPECT_EQ(Raised([&] { list.Set(-1, "x"); }), "EStringListError: List index out of bounds (-1)");
    EXPECT_EQ(Raised([&] { list.Delete(1); }), "EStringListError: List index out of bounds (1)");
    list.Delete(0);
    EXPECT_EQ(list.Count(), 0u);
}

TEST_F(TListTest, TextBreaksIntoItems) {
    // clang-format off
    const std::pair<string, TItems> rows[] = {
        {"", {}}, {"\r\n", {""}}, {"a", {"a"}}, {"a\r\nb\n", {"a", "b"}}, {"a\rb", {"a", "b"}},
        {"\n\r", {"", ""}}, {"a\n\0b"s, {"a"}}, {"a\r\n\r\nb", {"a", "", "b"}}};
    // clang-format on
    TStringList list;
    for (const auto& [text, items] : rows) {
        list.SetText(text);
        EXPECT_EQ(list.Items(), items) << testing::PrintToString(text);
    }
    EXPECT_EQ(list.Text(), "a\r\n\r\nb\r\n");
}

TEST_F(TListTest, IniFileKeepsItsHabits) {
    TMemIniFile ini;
    ini.Load(
        Ansi("lost=1\r\n; lost too\r\n [ First ] \r\n  k = v ; kept \r\n;lost\r\n\r\nK=second\nbare\n"
             "[Second]\nA= b = c \n[誠乚\n[乚]\nЁ=1\n[first]\nk=again\n"));
    EXPECT_EQ(ini.Save(),
              Ansi("[First]\r\nk=v ; kept\r\nK=second\r\nbare\r\n\r\n"
                   "[Second]\r\nA=b = c\r\n[誠乚\r\n\r\n[乚]\r\nЁ=1\r\n\r\n[first]\r\nk=again\r\n\r\n"));
    EXPECT_EQ(ini.ReadSections(), (TItems{"First", "Second", Ansi("乚"), "first"}));
    EXPECT_EQ(ini.ReadSection("SECOND"), (TItems{"A", ""}));
    EXPECT_EQ(ini.ReadSection("none"), TItems());
    EXPECT_EQ(ini.ReadString("FIRST", "K", "?"), "again");
    EXPECT_EQ(ini.ReadString("second", "a", "?"), "b = c");
    EXPECT_EQ(ini.ReadString("second", "b", "?"), "?");
    EXPECT_EQ(ini.ReadString(Ansi("乚"), Ansi("ё"), "?"), "1");
    EXPECT_TRUE(ini.ValueExists("second", "a"));
    EXPECT_TRUE(ini.ValueExists("second", ""));
    EXPECT_FALSE(ini.ValueExists("first", ""));
    EXPECT_FALSE(ini.ValueExists("none", "a"));
    EXPECT_TRUE(ini.HasLine("a=B = c"));
    EXPECT_FALSE(ini.HasLine("A="));
}

TEST_F(TListTest, IniFileIsWrittenInPlace) {
    TMemIniFile ini;
    EXPECT_EQ(ini.Save(), "");
    ini.Load("[A]\nx=1\nX=2\ny=3\n");
    ini.WriteString("a", "X", "");
    ini.WriteString("B", "z", "26");
    ini.WriteString("b", "Z", "27");
    ini.WriteString("a", "p=q", "r");
    EXPECT_EQ(ini.Save(), "[A]\r\nX=\r\nX=2\r\ny=3\r\np=q=r\r\n\r\n[B]\r\nZ=27\r\n\r\n");
    EXPECT_EQ(ini.ReadString("A", "x", "?"), "");
    EXPECT_EQ(ini.ReadString("a", "P", "?"), "q=r");
    EXPECT_TRUE(ini.ValueExists("A", "x"));
    ini.Load("");
    EXPECT_EQ(ini.ReadSections(), TItems());
    EXPECT_FALSE(ini.ValueExists("A", "x"));
}

}  // namespace
}  // namespace rux::test
