// What form files say: text against the canonical dump, which writing and reading again must not change.
#include <algorithm>

#include "platform/headless/forms/FormLimits.h"
#include "tests/forms/FormTestSupport.h"

namespace rux::test {

namespace {

struct TRow {
    std::string_view Text;
    std::string_view Dump;
};

using FormParser = FormTest;

TEST_F(FormParser, ObjectsAndTheirOrder) {
    const TRow rows[] = {
        {"object F: TF end", "0: object F: TF\n"},
        {"\n\tINHERITED F:TF[2]A=1 End\r\n\x01", "0: inherited F: TF [2]\n  A = 1\n"},
        {"object F: TF\n object TMenuItem end\n inline G: TG [2147483647]\n  Left = -1\n  object H: TH end\n "
         "end\n"
         " object I: TI end\nend",
         "0: object F: TF\n1 in 0: object TMenuItem\n2 in 0: inline G: TG [2147483647]\n  Left = -1\n"
         "3 in 2: object H: TH\n4 in 0: object I: TI\n"},
        // Keywords as names.
        {"object End: Object [0] Object = end End.Item = Inline Item = 1 end",
         "0: object End: Object [0]\n  Object = end\n  End.Item = Inline\n  Item = 1\n"},
        {"object inherited object end end end", "0: object inherited\n1 in 0: object end\n"},
        // A value that a writer left out: followed by a property, an object, the end.
        {"object F: TF A.B = \n C.D = 1\n E =\n F =\n object G: TG H =\n end end",
         "0: object F: TF\n  A.B = -\n  C.D = 1\n  E = -\n  F = -\n1 in 0: object G: TG\n  H = -\n"},
        {"object F: TF A = < item B = \n C = \n end > D = \n end.x = 1 E =\n f.g\n end",
         "0: object F: TF\n  A = <item B = -; C = - end>\n  D = -\n  end.x = 1\n  E = f.g\n"},
    };
    for (auto [text, dump] : rows) {
        EXPECT_EQ(DumpOf(text), dump) << text;
        EXPECT_EQ(DumpOfWritten(text), dump) << text;
    }
}

TEST_F(FormParser, Values) {
    const std::string tiny = "0." + std::string(400, '0') + "1";
    // clang-format off
    const TRow rows[] = {
        {"0", "0"}, {"-12", "-12"}, {"10000000074", "10000000074"},
        {"-9223372036854775808", "-9223372036854775808"}, {"$fF", "255"}, {"$FFFFFFFFFFFFFFFF", "-1"},
        {"1.000000000000000000", "1.0"}, {"-0.5", "-0.5"}, {"36854.4251693056", "36854.4251693056"},
        {"1.000000033181354E32", "1.000000033181354e+32"}, {"1e5", "1e+05"}, {"-2.5E-7", "-2.5e-07"},
        {"3.6e-4951", "0.0"}, {tiny, "0.0"}, {"-0.1e-99999999999999999999", "-0.0"}, {"38163d", "38163.0d"},
        {"39630.0006944444D", "39630.0006944444d"}, {"0c", "0.0c"}, {"25000c", "2.5c"},
        {"123456789C", "12345.6789c"}, {"0.5c", "5e-05c"}, {"1.5s", "1.5s"}, {"-2f", "-2.0f"},
        {"True", "True"}, {"frmdm.qryType . X", "frmdm.qryType.X"}, {"_a1", "_a1"}, {"[]", "[]"},
        {"[fsBold]", "[fsBold]"}, {"[ a ,-3,$1F\n,b ]", "[a, -3, $1F, b]"}, {"()", "()"},
        {"('a' 1 -2.5 ([x] ()) {0F} b.c <> 'd' + 'e')", "('a' 1 -2.5 ([x] ()) {0F} b.c <> 'de')"},
        {"(1('a''b')'c'#100)", "(1 ('a\\x27b') 'cd')"}, {"{}", "{}"}, {"{ 0a\n\tF F\r\n00}", "{0AFF00}"},
        {"{000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f20}",
         "{33 bytes, 4617211409311728415}"},
        {"<>", "<>"},
        {"<item end ITEM [3] A.B = 'x' C = <item end> end>",
         "<item end item [3] A.B = 'x'; C = <item end> end>"},
    };
    // clang-format on
    for (auto [text, value] : rows) {
        std::string form = "object F: TF V = " + std::string(text) + " end";
        std::string dump = "0: object F: TF\n  V = " + std::string(value) + "\n";
        EXPECT_EQ(DumpOf(form), dump) << text;
        EXPECT_EQ(DumpOfWritten(form), dump) << text;
    }
}

/// Text of the one string of a form; the whole message when there is an error.
std::string StringOf(std::string_view value, std::string_view before = "") {
    std::string form = std::string(before) + "object F: TF V = " + std::string(value) + " end";
    try {
        TFormFile file = ParseFormFile("f.dfm", form);
        EXPECT_EQ(DumpOfWritten(form), DumpOf(form)) << value;
        return file.Objects.at(0).Properties.at(0).Value.As<TFormString>()->Text;
    } catch (const EFormFileError& error) {
        return error.Message();
    }
}

TEST_F(FormParser, StringsInTheCodePage) {
    // clang-format off
    const TRow rows[] = {
        {"''", ""}, {"''''", "'"}, {"'What'#39's ''new'''", "What's 'new'"},
        {"'a:'#13#10'b'#$41#$6a#9", "a:\r\nbAj\t"}, {"\n 'cel' +\n 'ls' + #33", "cells!"},
        {"'N'#'im'#39#", "Nim'"}, {"#", ""}, {"#20013'x'#25991", "\xD6\xD0x\xCE\xC4"},
        {"#233#$E9", "\xA8\xA6\xA8\xA6"}, {"'a'#55357 +\n#56832'b'", "aHLb"}, {"#57005", "?"},
        // Raw bytes stay as they are, whatever their trail bytes look like and even if they are no text.
        {"'\xB0\xB4\xC5\xA5\x81\x7B\x81\x7D\x81\x5C\x81\x5D\x81\x40'",
         "\xB0\xB4\xC5\xA5\x81\x7B\x81\x7D\x81\x5C\x81\x5D\x81\x40"},
        {"'\xE9' + '\xFF''\x81'#13", "\xE9\xFF'\x81\r"},
        {"'\x80'#20013", "\x80\xD6\xD0"},
    };
    // clang-format on
    for (auto [text, value] : rows) EXPECT_EQ(StringOf(text), value) << text;
}

TEST_F(FormParser, StringsWithASignature) {
    const TRow rows[] = {
        {"'中文 x''é'#233", "\xD6\xD0\xCE\xC4 x'\xA8\xA6\xA8\xA6"},
        // A character beyond 16 bits, and bytes that are none, leave the rest alone.
        {"'中\xF0\x9F\x98\x80文'", "\xD6\xD0HL\xCE\xC4"},
        {"'\xFF中\xE4\xB8x\xC0\xAF\xED\xA0\x80\xF5\x80'", "?\xD6\xD0??x???????"},
        {"'中\xE6'#25991", "\xD6\xD0?\xCE\xC4"},
        {"'\xF4\x8F\xBF\xBF\xF4\x90\x80\x80'", "??????"},
        {"'\xE0\x80\x80\xF0\x80\x80\x80'", "???????"},
    };
    for (auto [text, value] : rows) EXPECT_EQ(StringOf(text, "\xEF\xBB\xBF"), value) << text;
}

TEST_F(FormParser, LongStringsAreWrittenInPieces) {
    std::string text = "object F: TF V = 'a" + Repeat(200, "\xD6\xD0\x81\x7B''") + "' end";
    std::string value = "a" + Repeat(200, "\xD6\xD0\x81\x7B'");
    std::string written = WriteFormFile(ParseFormFile("f.dfm", text));
    EXPECT_EQ(written.find_first_not_of("\r\n #+'0123456789:=FTVabcdejnot"), std::string::npos) << written;
    EXPECT_EQ(std::count(written.begin(), written.end(), '+'),
              std::ptrdiff_t{(1 + 3 * 200) / FormStringWidth})
        << written;
    EXPECT_EQ(ParseFormFile("f.dfm", written).Objects[0].Properties[0].Value.As<TFormString>()->Text, value);
}

TEST_F(FormParser, NamesBeyondAscii) {
    std::string withSignature = "\xEF\xBB\xBFobject 中文: T亄 按钮.Aé = 宋体 B = [中, \xF0\x9F\x98\x81] end";
    std::string dump =
        "0: object \\xD6\\xD0\\xCE\\xC4: T\\x81{\n  \\xB0\\xB4\\xC5\\xA5.A\\xA8\\xA6 = \\xCB\\xCE\\xCC\\xE5\n"
        "  B = [\\xD6\\xD0, H?]\n";
    EXPECT_EQ(DumpOf(withSignature), dump);
    std::string written = WriteFormFile(ParseFormFile("f.dfm", withSignature));
    EXPECT_EQ(written,
              "\xEF\xBB\xBFobject 中文: T亄\r\n  按钮.Aé = 宋体\r\n  B = [中, "
              "H\xEF\xBF\xBD]\r\nend\r\n");
    EXPECT_EQ(DumpOf(written), dump);
    // A text that is none in the code page keeps the names raw too.
    std::string raw = "object \xD6\xD0: T\xFF A = '\xE9' end";
    EXPECT_EQ(WriteFormFile(ParseFormFile("f.dfm", raw)),
              "object \xD6\xD0: T\xFF\r\n  A = '\xE9'\r\nend\r\n");
}

TEST_F(FormParser, WrittenLikeTheDesignerDoes) {
    std::string form =
        "object F: TF\r\n  Font.Style = [a, -3, $1F]\r\n  L = (\r\n    'x'\r\n    ())\r\n  C = <\r\n    "
        "item\r\n"
        "      Width = 3.0c\r\n    end>\r\n  D = {\r\n    00FF}\r\n  object TMenuItem [1]\r\n  "
        "end\r\nend\r\n";
    EXPECT_EQ(WriteFormFile(ParseFormFile("f.dfm", form)), form);
}

TEST_F(FormParser, LinesAreCountedAtEveryKindOfEnd) {
    TFormFile file = ParseFormFile(
        "f.dfm", "\r\n\n\robject F: TF\rA =\r\n'x' +\n'y'\n\rB = {\r\n00}\r C = 1 object G: TG end end");
    ASSERT_EQ(file.Objects.size(), 2u);
    const TFormObject& root = file.Objects[0];
    ASSERT_EQ(root.Properties.size(), 3u);
    EXPECT_EQ(root.Line, 4);
    EXPECT_EQ(root.Properties[0].Line, 5);
    EXPECT_EQ(root.Properties[1].Line, 9);
    EXPECT_EQ(root.Properties[2].Line, 11);
    EXPECT_EQ(file.Objects[1].Line, 11);
    EXPECT_EQ(root.Children, std::vector<int>{1});
    EXPECT_EQ(file.FileName, "f.dfm");
}

}  // namespace

}  // namespace rux::test
