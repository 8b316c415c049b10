#include "rtl/Numbers.h"

#include <cmath>
#include <limits>
#include <tuple>

#include "tests/rtl/TestCodePage.h"

namespace rux::test {
namespace {

using std::nullopt;
using std::optional;
using std::string;
using namespace std::string_literals;

class TNumberTest : public TRtlTest {};

TEST_F(TNumberTest, TextToInteger) {
    constexpr auto min32 = std::numeric_limits<std::int32_t>::min();
    constexpr auto min64 = std::numeric_limits<std::int64_t>::min();
    // clang-format off
    const std::tuple<string, optional<std::int32_t>, optional<std::int64_t>> rows[] = {
        {" +12", 12, 12}, {"-007", -7, -7}, {"12\0z"s, 12, 12}, {"x1", 1, 1}, {"XfF", 255, 255},
        {"-0x1F", -31, -31}, {"$FFFFFFFF", -1, 4294967295}, {"$00000000080000000", min32, 2147483648},
        {"0X100000000", nullopt, 4294967296}, {"$FFFFFFFFFFFFFFFF", nullopt, -1},
        {"2147483648", nullopt, 2147483648}, {"-2147483648", min32, min32},
        {"-2147483649", nullopt, -2147483649}, {"-9223372036854775808", nullopt, min64}};
    // clang-format on
    for (const auto& [text, narrow, wide] : rows) {
        EXPECT_EQ(TryStrToInt(text), narrow) << text;
        EXPECT_EQ(TryStrToInt64(text), wide) << text;
        EXPECT_EQ(StrToIntDef(text, 77), narrow.value_or(77)) << text;
    }
    // clang-format off
    const char* refused[] = {
        "", " ", "+", "$", "x", "0x", "3 ", "\t3", "- 1", "--1", "+-1", "A1", "1A", "%101", "&17", "$G",
        "1.0", "1e3", "$10000000000000000", "9223372036854775808"};
    // clang-format on
    for (const char* text : refused) {
        EXPECT_EQ(TryStrToInt64(text), nullopt) << text;
        EXPECT_EQ(TryStrToInt(text), nullopt) << text;
    }
}

TEST_F(TNumberTest, TextToFloat) {
    // clang-format off
    const std::pair<string, double> rows[] = {
        {" -1.5 ", -1.5}, {"+007", 7}, {".5", 0.5}, {"5.", 5}, {".", 0}, {"1E+3", 1000}, {"1e-3 ", 0.001},
        {"1e", 1}, {"12\0z"s, 12}, {"1e-999", 0}, {"0e99999999999999999999", 0},
        {"0." + string(400, '0') + "1e401", 1}};
    // clang-format on
    for (const auto& [text, value] : rows) EXPECT_EQ(TryStrToFloat(text, '.'), value) << text;
    const char* refused[] = {"",    " ",   "+",   "e5",    "$10",
                             "x1",  "\t1", "- 1", "1,5",   "1.5.2",
                             "1 2", "NAN", "INF", "1e999", "1e99999999999999999999"};
    for (const char* text : refused) EXPECT_EQ(TryStrToFloat(text, '.'), nullopt) << text;
    EXPECT_EQ(TryStrToFloat("1,5", ','), 1.5);
}

TEST_F(TNumberTest, RefusalsQuoteTheTextAsGiven) {
    EXPECT_EQ(Raised([] { StrToInt("3 "); }), "EConvertError: '3 ' is not a valid integer value");
    EXPECT_EQ(Raised([] { StrToInt64(""); }), "EConvertError: '' is not a valid integer value");
    EXPECT_EQ(Raised([] { StrToFloat("1,5"); }), "EConvertError: '1,5' is not a valid floating point value");
}

TEST_F(TNumberTest, FloatToStr) {
    // clang-format off
    const double values[] = {
        0.0, -0.0, 0.1, -100, 0.0001, 0.00001, -0.0000442615029219009, 1.0 / 3, 2.0 / 3, 0.1 + 0.2,
        999999999999999.0, 999999999999999.9, 123456789012345678.0, std::numeric_limits<double>::max(),
        5E-324, NAN, INFINITY, -INFINITY};
    const string texts[] = {
        "0", "0", "0.1", "-100", "0.0001", "1E-5", "-4.42615029219009E-5", "0.333333333333333",
        "0.666666666666667", "0.3", "999999999999999", "1E15", "1.23456789012346E17",
        "1.79769313486232E308", "4.94065645841247E-324", "NAN", "INF", "-INF"};
    // clang-format on
    ASSERT_EQ(std::size(values), std::size(texts));
    for (std::size_t i = 0; i < std::size(values); ++i) EXPECT_EQ(FloatToStr(values[i], '.'), texts[i]);
    EXPECT_EQ(FloatToStr(1.5, ','), "1,5");
}

TEST_F(TNumberTest, RoundingGoesByDigits) {
    // clang-format off
    const std::tuple<double, string, string, string> rows[] = {
        {0, "0", "0.0000", "0"}, {1E-12, "0", "0.0000", "0"}, {-0.00001, "0", "0.0000", "0"},
        {0.00005, "0.0001", "0.0001", "0"}, {1.5, "1.5", "1.5000", "2"}, {-2.5, "-2.5", "-2.5000", "-3"},
        {12.34565, "12.3457", "12.3457", "12"}, {0.12345 + 1E-12, "0.1235", "0.1235", "0"},
        {12.00005 + 1E-12, "12.0001", "12.0001", "12"}, {99.99996, "100", "100.0000", "100"},
        {0.5, "0.5", "0.5000", "1"}, {123456789012.0, "123456789012", "123456789012.0000", "123456789012"},
        {1E18, "1E18", "1E18", "1E18"}, {NAN, "NAN", "NAN", "NAN"}};
    // clang-format on
    for (const auto& [value, picture, fixed4, fixed0] : rows) {
        EXPECT_EQ(FormatFloat4(value), picture);
        EXPECT_EQ(FormatFixed(value, 4), fixed4);
        EXPECT_EQ(FormatFixed(value, 0), fixed0);
    }
    SetLocaleFacts({.DecimalSeparator = ','});
    EXPECT_EQ(FormatFloat4(1.5) + ' ' + FormatFixed(1.5, 2) + ' ' + FloatToStr(1.5), "1,5 1,50 1,5");
    EXPECT_EQ(StrToFloat("1,5"), 1.5);
}

TEST_F(TNumberTest, Format) {
    const std::initializer_list<TFormatArg> args = {"ab", 42, -5, 4660LL};
    // clang-format off
    const std::pair<string, string> rows[] = {
        {"", ""}, {"%s is %d%%", "ab is 42%"}, {"%S=%D", "ab=42"},
        {"%0:s,Global\\%0:s,%d", "ab,Global\\ab,42"}, {"[%5s][%-5d]", "[   ab][42   ]"},
        {"[%.1s][%.4d][%5.3d]", "[a][0042][ -005]"}, {"[%2:-4.2d]", "[-05 ]"},
        {"%3:.8X %3:x %2:x", "00001234 1234 FFFFFFFB"}, {"%2:u", "4294967291"},
        {Ansi("誠%s中"), Ansi("誠ab中")}};
    // clang-format on
    for (const auto& [format, text] : rows) EXPECT_EQ(rux::Format(format, args), text) << format;
    EXPECT_EQ(rux::Format("%x", {-1LL}), "FFFFFFFFFFFFFFFF");
    EXPECT_EQ(rux::Format("%x%d", {0, 0}) + IntToHex8(0xFEDCBA98), "00FEDCBA98");
    EXPECT_LT(rux::Format("%99999999999999999999s", args).size(), 100000u);
}

TEST_F(TNumberTest, FormatRefusesQuotingThePlace) {
    const string invalid = "' invalid or incompatible with argument";
    const std::pair<string, string> rows[] = {{"row [%s] bad", "Format '%s" + invalid},
                                              {"3 % of 7 is %.2f", "Format '% " + invalid},
                                              {"%-8.2f|", "Format '%-8.2f" + invalid},
                                              {Ansi("%誠"), Ansi("Format '%誠") + invalid},
                                              {"50%", "Format '%" + invalid},
                                              {"%d %d", "No argument for format '%d'"},
                                              {"%9:d", "No argument for format '%9:d'"},
                                              {"%0000000000000000000000000000000000001:d",
                                               "No argument for format '%000000000000000000000000000000'"}};
    for (const auto& [format, text] : rows) {
        EXPECT_EQ(Raised([&form = format] { rux::Format(form, {5}); }), "EConvertError: " + text) << format;
    }
    EXPECT_EQ(Raised([] { rux::Format("%d", {"5"}); }), "EConvertError: Format '%d" + invalid);
}

}  // namespace
}  // namespace rux::test
