// What is refused, with the whole message.
#include <vector>

#include "platform/headless/forms/FormLimits.h"
#include "tests/forms/FormTestSupport.h"

namespace rux::test {

namespace {

using namespace std::string_literals;
using FormErrors = FormTest;

struct TRow {
    std::string Text;
    int Line;
    std::string Found;
    std::string Expected;
};

void ExpectErrors(std::string_view before, const std::vector<TRow>& rows) {
    for (const auto& [text, line, found, expected] : rows) {
        std::string message = "f.dfm:" + std::to_string(line) + ": found " + found + ", expected " + expected;
        EXPECT_EQ(DumpOf(std::string(before) + text), message) << text.substr(0, 200);
    }
}

const char* const Conflict = " (a version control conflict is to be resolved first)";
const char* const Placeholders = " (the placeholders of a template are to be filled in first)";
const char* const End = "the end of the file";

TEST_F(FormErrors, FilesThatAreNoTextForms) {
    const std::string root = "'object', 'inherited' or 'inline' at the beginning of a form";
    const std::string other = "a text form file (this ";
    const std::string binary = other + "is a binary form: convert it with the IDE or `convert -t`)";
    ExpectErrors(
        "",
        {{"", 1, End, root},
         {"\xEF\xBB\xBF\r\n \n", 3, End, root},
         {"TODO", 1, "\"TODO\"", root},
         {"object.x F: TF end", 1, "\"object\"", root},
         {"<<<<<<< .r3", 1, "\"<<<<<<< .r3\"", root + Conflict},
         {"\xEF\xBB\xBF\n<Project ToolsVersion=\"4.0\" xmlns=\"http://a.b\">", 2,
          "\"<Project ToolsVersion=\\x224.0\\x22 xmlns=\\x22http:\"...", other + "looks like XML)"},
         {"\xFF\x0A\x00TF\x00\x30\x10"s, 1, "\"\\xFF\\x0A\\x00TF\\x000\\x10\"", binary},
         {"TPF0\x05TForm", 1, "\"TPF0\\x05TForm\"", binary},
         {"\xFF\x0D\x0A\x00TF"s, 1, "\"\\xFF\\x0D\\x0A\\x00TF\"",
          other + "is a binary form that a conversion of line ends has destroyed)"},
         {"\xFF\xD8\xFF\xE0\x00JFIF"s, 1, "\"\\xFF\\xD8\\xFF\\xE0\\x00JFIF\"", other + "is a JPEG picture)"},
         {"\xFF\xFEo\0b\0"s, 1, "\"\\xFF\\xFEo\\x00b\\x00\"", other + "is UTF-16: save it as UTF-8)"},
         {std::string(FormFileSizeLimit + 1, ' '), 1, "67108865 bytes", "at most 67108864"}});
}

TEST_F(FormErrors, FaultyForms) {
    const std::string in1 = "a property, an object or the 'end' of the object begun on line 1";
    const std::string closing = "an object or the 'end' of the object begun on line 1";
    const std::string quote = "a quote at the end of the text, on the same line";
    const std::string hex = "hexadecimal digits or the '}' of the binary value begun on line 1";
    const std::string position = "a position from 0 up";
    const std::string bits = "an integer of at most 64 bits";
    const std::string range = "a number within the range of a double";
    ExpectErrors(
        "object ",
        {{"%FORMNAME%: T%FORMNAME%\nend", 1, "\"%FORMNAME%:\"",
          "the name or the class of an object"s + Placeholders},
         {"F: T%NAME%\nend", 1, "\"%NAME%\"", in1 + Placeholders},
         {"F:\n'x' end", 2, "\"'x'\"", "the class of the object"},
         {"F A = 1\n<<<<<<< .mine\n B = 2\n=======\n", 2, "\"<<<<<<< .mine\"", in1 + Conflict},
         {"F A = (\n||||||| .r3\r\n", 2, "\"||||||| .r3\"", "a value or the ')' of a list"s + Conflict},
         {"F A = {\n00\n======= x\n11", 3, "\"======= x\"", hex + Conflict},
         {"F\n object G\n  A = 1\nend\n", 5, End, closing},
         {"F end end", 1, "\"end\"", "the end of the file behind the root's 'end'"},
         {"F end.", 1, End, "a name behind '.'"},
         {"F object G end A = 1 end", 1, "\"A\"", closing},
         {"F [-1] end", 1, "\"-1\"", position},
         {"F [2147483648] end", 1, "\"2147483648\"", position},
         {"F [1 end", 1, "\"end\"", "']' behind the position"},
         {"F 5 = 1 end", 1, "\"5\"", in1},
         {"F A 1 end", 1, "\"1\"", "'=' behind the name of a property"},
         {"F A = ] end", 1, "\"]\"", "a value"},
         {"F A = }\" end", 1, "\"}\\x22\"", "a value"},
         {"F A = B = 1 end", 1, "\"=\"", in1},
         {"F A = 'x' 'y' end", 1, "\"'y'\"", in1},
         {"F A = 'x' +\n 5 end", 2, "\"5\"", "a string behind '+'"},
         {"F A = 'abc\r\n' end", 1, "\"'abc\"", quote},
         {"F A = '" + std::string(50, 'x'), 1, "\"'" + std::string(FormQuoteLimit - 1, 'x') + "\"...", quote},
         {"F A = #65536 end", 1, "\"#65536\"", "a character's number up to 65535"},
         {"F A = 'a'#$FFFFFFFFF end", 1, "\"#$FFFFFFFFF\"", "a character's number up to 65535"},
         {"F A = 9223372036854775808 end", 1, "\"9223372036854775808\"", bits},
         {"F A = $10000000000000000 end", 1, "\"$10000000000000000\"", bits},
         {"F A = -1e309 end", 1, "\"-1e309\"", range},
         {"F A = 1e+400 end", 1, "\"1e+400\"", range},
         {"F A = 1e99999999999 end", 1, "\"1e99999999999\"", range},
         {"F A = " + std::string(400, '9') + ".0 end", 1, "\"" + std::string(40, '9') + "\"...", range},
         {"F A = 12ab end", 1, "\"12ab\"", "a number without letters behind it"},
         {"F A = $ end", 1, "\"$\"", "a value"},
         {"F A = - end", 1, "\"-\"", "a value"},
         {"F A = [a b] end", 1, "\"b\"", "',' or ']' behind an element of a set"},
         {"F A = [a,] end", 1, "\"]\"", "a name or an integer as an element of a set"},
         {"F A = (1 B = 2 end", 1, "\"=\"", "a value or the ')' of a list"},
         {"F A = {0\n1 2} end", 2, "\"}\"", "one more hexadecimal digit"},
         {"F A = {\n00\n0G} end", 3, "\"G}\"", hex},
         {"F A = {00 ", 1, End, hex},
         {"F A = <\n B = 1 end> end", 2, "\"B\"", "'item' or the '>' of a collection"},
         {"F A = <\nitem\n B = 1 > end", 3, "\">\"", "a property or the 'end' of the item begun on line 2"}});
}

TEST_F(FormErrors, NestingAndNumberOfPartsAreBounded) {
    auto form = [](const std::string& value) { return "object F: TF A = " + value + " end"; };
    const std::string tooDeep = ", expected at most 64 values within each other";
    EXPECT_EQ(DumpOf(form(Repeat(64, "(") + Repeat(64, ")"))),
              "0: object F: TF\n  A = " + Repeat(64, "(").substr(1) + "()" + Repeat(63, ")") + "\n");
    EXPECT_EQ(DumpOf(form(Repeat(100'000, "("))), "f.dfm:1: found \"(\"" + tooDeep);
    EXPECT_EQ(DumpOf(form(Repeat(33, "<item A = ("))), "f.dfm:1: found \"<\"" + tooDeep);
    EXPECT_NE(DumpOf(form("<" + Repeat(500, "item A = () B = <> end ") + ">"))
                  .find("<item A = (); B = <> end item"),
              std::string::npos);

    // Room for one part more: the object, its property and each element are parts.
    const std::string almost = "object T A=[" + Repeat(static_cast<int>(FormPartLimit) - 4, "a,") + "a] ";
    EXPECT_EQ(ParseFormFile("f.dfm", almost + "B=1 end").Objects[0].Properties.size(), 2u);
    const std::string tooMany = "at most 1048576 objects, properties and values in a file";
    ExpectErrors(almost, {{"B=1 C=1", 1, "\"C\"", tooMany},
                          {"B=(2", 1, "\"2\"", tooMany},
                          {"B=[c", 1, "\"c\"", tooMany},
                          {"B=<Item", 1, "\"Item\"", tooMany},
                          {"object T inline T", 1, "\"inline\"", tooMany}});
}

}  // namespace

}  // namespace rux::test
