// How a request text is read, and how texts become values.
#include <gtest/gtest.h>

#include "Engine/Core/RUXClasses.h"
#include "Engine/Core/RUXInterfaceTable.h"
#include "Engine/Request/RUXConversion.h"
#include "Engine/Request/RUXInvoker.h"
#include "Engine/Request/RUXRequestText.h"
#include "rtl/CodePage.h"
#include "support/EngineFixture.h"

namespace rux::test {

namespace {

class TRequestTextTest : public TEngineTest {
 protected:
    /// "locator|method|[arg][arg]|options" in UTF-8; the arguments as a method gets them.
    static std::string Parsed(std::string_view utf8) {
        TRequestText r;
        try {
            ParseURL(Ansi(utf8), r);
        } catch (const ERUX_URL_ParseError& error) {
            return error.Message().starts_with("URL") ? "no call" : "no closing";
        }
        std::string text = r.Locator + "|" + r.MethodName + (r.IsFind ? "*" : "") + "|";
        for (const std::string& arg : r.Args) text += "[" + ArgumentText(arg) + "]";
        text += "|";
        if (r.PopupWindow) text += "P(" + r.PopupWindowCaption + ")";
        if (r.WaitForWindow) text += "W(" + r.WaitForWindowCaption + ")";
        if (r.CloseUnExpactPopupWindow) text += "C";
        if (!r.PartMatch) text += "E";
        if (r.IgnorePopupWindow) text += "I";
        return AnsiToUtf8(text);
    }
};

}  // namespace

TEST_F(TRequestTextTest, Splitting) {
    // clang-format off
    const struct {
        const char *Text, *Expected;
    } rows[] = {
        {"a$b", "a|b||"}, {"a$b?PopupWindow", "a|b||P()"},
        {"a$b(1,2)?ExactMatch?IgnorePopupWindow", "a|b|[1][2]|EI"}, {"a\\$b$c", "a$b|c||"},
        {"a\\/b$c\\$d(\\$)", "a\\/b|c$d|[$]|"},  // other escapes of the locator are its own
        {"\\\\$b", "no call"},                   // a doubled backslash protects all the same
        {"$b", "|b||"}, {"a$", "a|||"}, {"ab", "no call"}, {"a$b(1", "no closing"}, {"a$b()", "a|b||"},
        {"a$b(,)", "a|b|[][]|"}, {"a$b(a,)", "a|b|[a][]|"},
        {"a$b(x)y?ExactMatch", "a|b|[x]|E"},       // what stands behind the parenthesis is an option, too
        {"a$b(x)ExactMatch", "a|b|[x]|E"},         //
        {"a$b(1)?PopupWindow=x,y", "no closing"},  // a comma in the options ends an argument
        {"a$b(1)2)", "a|b|[1]|"},                  // the first parenthesis closes
        {"a$b(\\))", "a|b|[)]|"}, {"a$FIND", "a|FIND*||"},
        {"a$b? popupwindow = 保存 .*?Nothing??WaitForWindow=^a\\?b$", "a|b||P( 保存 .*)W(^a\\?b$)"},
        {"a$b?CloseUnExpactPopupWindow?CloseUnexpectPopupWindow", "a|b||C"},
        {"a$b(\"x\",\"y,z\")", "a|b|[x][\"y][z\"]|"},  // quotes do not hold a comma
        {"a$b(\")", "a|b|[]|"},
        {"a$b(\"\\:x\")", "a|b|[\":x\"]|"},  // an escaped colon first: quotes stay
        {"a$b(\"x:\\:\")", "a|b|[x::]|"}, {"a$b(a\\,b)", "a|b|[a,b]|"},
        {"a$b(a\\\\,b)", "a|b|[a\\,b]|"},  // the comma is protected, and so is the backslash
        {"a$b(a\\\\\\,b)", "a|b|[a\\,b]|"}, {"a$b(\\a\\)", "no closing"}, {"a$b(\\a)", "a|b|[a]|"},
        {"誠$b(誠,億,\\誠)?PopupWindow=誠",
         "誠|b|[誠][億][誠]|P(誠)"},       // second bytes 5C and 7C are no syntax
        {"a$b(服\\,务)", "a|b|[服,务]|"},  // nor is the second byte FE a placeholder
    };
    // clang-format on
    for (const auto& row : rows) EXPECT_EQ(Parsed(row.Text), row.Expected) << row.Text;
}

TEST_F(TRequestTextTest, NamesAndTargets) {
    const struct {
        const char* Argument;
        bool Named;
    } names[] = {{"a:b", true},     {":b", false}, {"a\\:b", false},
                 {"a\\:b:c", true}, {"", false},   {"誠:x", true}};
    for (const auto& row : names) EXPECT_EQ(IsNamedArgument(Ansi(row.Argument)), row.Named) << row.Argument;
    EXPECT_EQ(NamedArgument({"x", "b:1", "A:2", "a:3"}, "a"), "2");
    EXPECT_EQ(NamedArgument({"a"}, "a"), "");
    const struct {
        const char *Locator, *Target;
    } targets[] = {
        {"x?Button#2", "Button"}, {"?a?b", "a?b"}, {"a\\?b? ToolKit ", "ToolKit"}, {"x", ""}, {"?", ""}};
    for (const auto& row : targets) EXPECT_EQ(GetLocatorTarget(row.Locator), row.Target) << row.Locator;
}

namespace {

enum class TSide : std::uint8_t { Left, Right };
struct TMarker {};

}  // namespace
}  // namespace rux::test

namespace rux {

template <>
struct TTypeOf<test::TSide> : TPlainSlot<test::TSide> {
    static constexpr std::string_view Elements[] = {"sdLeft", "sdRight"};
    static constexpr TTypeInfo Info{"TSide", TKind::Enumeration, TWidth::U8, Elements};
};
template <>
struct TTypeOf<test::TMarker> : TPlainSlot<test::TMarker> {
    static constexpr TTypeInfo Info{"TMarker", TKind::Set};
};

}  // namespace rux

namespace rux::test {

namespace {

/// The value that a text becomes, as text again.
template <class T>
std::string Through(const std::string& text) {
    typename TTypeOf<T>::Slot slot{};
    try {
        if (!TextToNative(TTypeOf<T>::Info, Ansi(text), &slot)) return "refused";
        return AnsiToUtf8(ValueToText(TTypeOf<T>::Info, &slot));
    } catch (const Exception& error) {
        return std::string(error.ClassName()) + ": " + AnsiToUtf8(error.Message());
    }
}

}  // namespace

TEST_F(TRequestTextTest, Conversion) {
    // clang-format off
    const struct {
        std::string (*Convert)(const std::string&);
        const char *Text, *Expected;
    } rows[] = {
        {Through<int>, " 12 ", "12"}, {Through<int>, "$FFFFFFFF", "-1"},
        {Through<int>, "12a", "EConvertError: '12a' is not a valid integer value"},
        {Through<std::int8_t>, "200", "-56"}, {Through<std::uint16_t>, "65537", "1"},
        {Through<std::int64_t>, "-9223372036854775808", "-9223372036854775808"}, {Through<char>, "xy", "x"},
        {Through<char16_t>, "中文", "中"}, {Through<bool>, " TRUE", "True"}, {Through<bool>, "0", "False"},
        {Through<bool>, "", "False"},
        {Through<bool>, "maybe", "True"},  // stored as 255, which is no error and not False
        {Through<TSide>, "SDRIGHT ", "sdRight"}, {Through<TSide>, "", "sdLeft"}, {Through<TSide>, "up", ""},
        {Through<double>, " 1.5e3 ", "1500"}, {Through<double>, "-inf", "-INF"},
        {Through<double>, "nan", "NaN"},
        {Through<double>, "1,5", "EConvertError: '1,5' is not a valid floating point value"},
        {Through<float>, "0.5", "0.5"},
        {Through<TCompValue>, "2.5", "2"},  // ties to even
        {Through<TCurrencyValue>, "1.23455", "1.2346"},
        {Through<TCurrencyValue>, "1e300", "EInvalidOp: Invalid floating point operation"},
        {Through<TDateTimeValue>, "2008-03-05T09:05:07+08:00", "2008-03-05T09:05:07.000+08:00"},
        {Through<TDateTimeValue>, "5.3.2008", "EConvertError: '5.3.2008' is not a valid date and time"},
        {Through<std::string>, " 中 ", " 中 "}, {Through<std::u16string>, "中", "中"},
        {Through<TObject*>, "x", "refused"},
        {Through<TMarker>, "x",
         "ETypeTransException: Internal error: data type kind TMarker not expected in this context"},
    };
    // clang-format on
    for (const auto& row : rows) EXPECT_EQ(row.Convert(row.Text), row.Expected) << row.Text;
    EXPECT_EQ(Through<TShortStringValue>(std::string(254, 'a') + "中"), std::string(254, 'a'));
    std::vector<std::int32_t> numbers;
    const TTypeInfo& array = TTypeOf<std::vector<std::int32_t>>::Info;
    EXPECT_EQ(ValueToText(array, &numbers), "---\r\n []\r\n\r\n");
    numbers = {1, -2};
    EXPECT_EQ(ValueToText(array, &numbers), "---\r\n\r\n- 1\r\n- -2\r\n");
}

namespace {

class IThing {
 public:
    static const TInterfaceInfo Info;
    virtual ~IThing() = default;
    virtual void None() {}
    virtual std::string One(const std::string& A) { return A; }
    virtual std::string Two(const std::string& A, int B) { return A + std::to_string(B); }
    virtual void Twin(int) {}
    virtual void Twin(int, int) {}
    virtual void Same(int) {}
    virtual void Same(bool) {}
    virtual void Out(int, int& B) { B = 1; }
    virtual void Object(TObject*) {}
};
constexpr auto One = &IThing::One;
constexpr TIntfMethEntry ThingRows[] = {
    Row<&IThing::None>("None"),
    Row<One>("One", "A"),
    Row<&IThing::Two>("Two", "A", "B"),
    Row<static_cast<void (IThing::*)(int)>(&IThing::Twin)>("Twin", "A"),
    Row<static_cast<void (IThing::*)(int, int)>(&IThing::Twin)>("Twin", "A", "B"),
    Row<static_cast<void (IThing::*)(int)>(&IThing::Same)>("Same", "A"),
    Row<static_cast<void (IThing::*)(bool)>(&IThing::Same)>("Same", "A"),
    Row<&IThing::Out>("Out", "A", "B"),
    Row<&IThing::Object>("Object", "A"),
};
constexpr TInterfaceInfo IThing::Info{"IThing", nullptr, ThingRows};

struct TThingObject final : TInvokable, IThing {};

/// What a call with those arguments answers, the method's parameter count in front.
std::string Called(std::string_view name, std::vector<std::string> args) {
    const TIntfMethEntry* method = FindMethod(GetIntfMetaData(IThing::Info), name, args.size());
    if (!method) return "no method";
    try {
        const auto context = method->MakeContext();
        ConvertArguments(*method, *context, args);
        TThingObject thing;
        method->Invoke(thing, *context);
        const std::string value =
            method->ResultType ? ValueToText(*method->ResultType, context->GetResultPointer()) : "";
        return std::to_string(method->ParamCount) + ":" + value;
    } catch (const Exception& error) {
        return AnsiToUtf8(error.Message());
    }
}

}  // namespace

TEST_F(TRequestTextTest, MethodsByNameAndCount) {
    const struct {
        const char* Name;
        std::vector<std::string> Args;
        const char* Expected;
    } rows[] = {
        {"none", {}, "0:"},
        {"none", {"x"}, "参数个数不匹配，需要0个，实传1个。"},
        {"ONE", {}, "1:"},
        {"one", {"x"}, "1:x"},
        {"two", {"B:5", "A:x"}, "2:x5"},  // named, in any order
        {"two", {"x", "a:5"}, "'' is not a valid integer value"},
        {"two", {"x"}, "参数个数不匹配，需要2个，实传1个。"},
        {"twin", {"1"}, "1:"},
        {"twin", {"1", "2"}, "2:"},
        {"twin", {}, "'' is not a valid integer value"},  // the one of one parameter serves none
        {"twin", {"1", "2", "3"}, "no method"},           // two by name, none by count
        {"same", {"1"}, "no method"},                     // two of equal count
        {"out", {"1"}, "参数个数不匹配，需要2个，实传1个。"},
        {"object", {"1"}, "支持\"变体\",\"动态数组\",\"对象\"类型参数"},
        {"absent", {}, "no method"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Called(row.Name, row.Args), row.Expected) << row.Name << row.Args.size();
    EXPECT_EQ(Log(),
              "warn - 收到0个参数，但是需要1个参数，缺项补成空值\r\n"
              "warn - 收到0个参数，但是需要1个参数，缺项补成空值\r\n");
    struct TStranger final : TInvokable {
    } stranger;
    const auto context = ThingRows[0].MakeContext();
    EXPECT_THROW(ThingRows[0].Invoke(stranger, *context), EAccessViolation);
}

}  // namespace rux::test
