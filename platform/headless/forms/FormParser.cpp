#include "platform/headless/forms/FormParser.h"

#include <array>
#include <limits>
#include <utility>

#include "platform/headless/forms/FormLimits.h"
#include "platform/headless/forms/FormNumbers.h"
#include "platform/headless/forms/FormText.h"
#include "platform/headless/forms/FormTokens.h"

namespace rux {

namespace {

struct TForeignFile {
    std::string_view Beginning;
    std::string_view What;
};
using namespace std::string_view_literals;
/// What lies about under the name of a form file; of two that fit, the first counts.
constexpr std::array<TForeignFile, 7> ForeignFiles{
    {{"TPF0"sv, "this is a binary form: convert it with the IDE or `convert -t`"sv},
     {"\xFF\x0D\x0A"sv, "this is a binary form that a conversion of line ends has destroyed"sv},
     {"\xFF\xD8\xFF"sv, "this is a JPEG picture"sv},
     {"\xFF\xFE"sv, "this is UTF-16: save it as UTF-8"sv},
     {"\xFE\xFF"sv, "this is UTF-16: save it as UTF-8"sv},
     {"\xFF"sv, "this is a binary form: convert it with the IDE or `convert -t`"sv},
     {"<"sv, "this looks like XML"sv}}};

class TFormParser {
 public:
    TFormParser(std::string fileName, std::string_view bytes);
    TFormFile Parse();

 private:
    void RefuseForeign() const;
    bool AtKeyword(std::string_view word) const;
    std::optional<TFormObjectKind> AtObject() const;
    bool AtMissingValue(int line) const;
    void Expect(char symbol, std::string_view expected);
    void AddPart();
    void Enter();
    std::string ParseName(std::string_view expected);
    std::string ParseDottedName(std::string_view expected);
    std::optional<int> ParseOrder();
    void ParseObjects();
    int OpenObject(TFormObjectKind kind, int parent);
    [[noreturn]] void FailInObject(const TFormObject& object) const;
    TFormProperty ParseProperty(std::string_view expected);
    TFormValue ParseValue(std::string_view expected);
    TFormString ParseString();
    std::int64_t ParseInteger();
    TFormFloat ParseFloat();
    TFormSet ParseSet();
    TFormList ParseList();
    TFormBinary ParseBinary();
    TFormCollection ParseCollection();
    TFormItem ParseItem();

    TFormFile FFile;
    bool FUtf8;
    TFormTokens FTokens;
    std::size_t FParts = 0;
    int FNesting = 0;
};

TFormParser::TFormParser(std::string fileName, std::string_view bytes)
    : FFile{std::move(fileName), {}},
      FUtf8(bytes.starts_with(Utf8Signature)),
      FTokens(FFile.FileName, bytes.substr(FUtf8 ? Utf8Signature.size() : 0)) {}

TFormFile TFormParser::Parse() {
    RefuseForeign();
    ParseObjects();
    if (!FTokens.Is(TFormTokenKind::End)) FTokens.Fail("the end of the file behind the root's 'end'");
    return std::move(FFile);
}

void TFormParser::RefuseForeign() const {
    for (const TForeignFile& file : ForeignFiles) {
        if (!FTokens.Rest().starts_with(file.Beginning) || FTokens.Is(TFormTokenKind::Conflict)) continue;
        throw EFormFileError(FFile.FileName, FTokens.Current().Line, QuoteFormText(FTokens.Rest()),
                             "a text form file (" + std::string(file.What) + ")");
    }
}

/// A property may bear a keyword's name; then a sign follows that no keyword has behind it.
bool TFormParser::AtKeyword(std::string_view word) const {
    if (!FTokens.IsWord(word)) return false;
    TFormToken next = FTokens.Peek();
    return next.Kind != TFormTokenKind::Symbol || (next.Text != "=" && next.Text != ".");
}

std::optional<TFormObjectKind> TFormParser::AtObject() const {
    for (std::size_t i = 0; i < FormObjectWords.size(); ++i) {
        if (AtKeyword(FormObjectWords[i])) return static_cast<TFormObjectKind>(i);
    }
    return std::nullopt;
}

/// Behind the sign on `line`: does the next property, object or `end` follow instead of a value?
bool TFormParser::AtMissingValue(int line) const {
    if (!FTokens.Is(TFormTokenKind::Ident) || FTokens.Current().Line == line) return false;
    if (AtObject() || AtKeyword("end")) return true;
    TFormTokens ahead = FTokens;
    for (ahead.Next(); ahead.Is('.'); ahead.Next()) {
        ahead.Next();
        if (!ahead.Is(TFormTokenKind::Ident)) return false;
    }
    return ahead.Is('=');
}

void TFormParser::Expect(char symbol, std::string_view expected) {
    if (!FTokens.Is(symbol)) FTokens.Fail(expected);
    FTokens.Next();
}

void TFormParser::AddPart() {
    if (++FParts > FormPartLimit) {
        FTokens.Fail("at most " + std::to_string(FormPartLimit) +
                     " objects, properties and values in a file");
    }
}

void TFormParser::Enter() {
    if (++FNesting > FormNestingLimit) {
        FTokens.Fail("at most " + std::to_string(FormNestingLimit) + " values within each other");
    }
    FTokens.Next();
}

std::string TFormParser::ParseName(std::string_view expected) {
    if (!FTokens.Is(TFormTokenKind::Ident)) FTokens.Fail(expected);
    std::string name = FormNameText(FTokens.Current().Text, FUtf8);
    FTokens.Next();
    return name;
}

std::string TFormParser::ParseDottedName(std::string_view expected) {
    std::string name = ParseName(expected);
    while (FTokens.Is('.')) {
        FTokens.Next();
        name += '.';
        name += ParseName("a name behind '.'");
    }
    return name;
}

std::optional<int> TFormParser::ParseOrder() {
    constexpr std::string_view expected = "a position from 0 up";
    if (!FTokens.Is('[')) return std::nullopt;
    FTokens.Next();
    if (!FTokens.Is(TFormTokenKind::Integer)) FTokens.Fail(expected);
    std::optional<std::int64_t> order = ReadFormInteger(FTokens.Current().Text);
    if (!order || *order < 0 || *order > std::numeric_limits<int>::max()) FTokens.Fail(expected);
    FTokens.Next();
    Expect(']', "']' behind the position");
    return static_cast<int>(*order);
}

void TFormParser::ParseObjects() {
    std::optional<TFormObjectKind> root = AtObject();
    if (!root) FTokens.Fail("'object', 'inherited' or 'inline' at the beginning of a form");
    int open = OpenObject(*root, -1);
    while (open >= 0) {
        if (std::optional<TFormObjectKind> kind = AtObject()) {
            open = OpenObject(*kind, open);
            continue;
        }
        TFormObject& object = FFile.Objects[static_cast<std::size_t>(open)];
        if (AtKeyword("end")) {
            FTokens.Next();
            open = object.Parent;
            continue;
        }
        if (!FTokens.Is(TFormTokenKind::Ident) || !object.Children.empty()) FailInObject(object);
        object.Properties.push_back(ParseProperty({}));
    }
}

int TFormParser::OpenObject(TFormObjectKind kind, int parent) {
    AddPart();
    auto index = static_cast<int>(FFile.Objects.size());
    TFormObject object;
    object.Kind = kind;
    object.Line = FTokens.Current().Line;
    object.Parent = parent;
    FTokens.Next();
    object.ClassName = ParseName("the name or the class of an object");
    if (FTokens.Is(':')) {
        FTokens.Next();
        object.Name = std::exchange(object.ClassName, ParseName("the class of the object"));
    }
    object.Order = ParseOrder();
    FFile.Objects.push_back(std::move(object));
    if (parent >= 0) FFile.Objects[static_cast<std::size_t>(parent)].Children.push_back(index);
    return index;
}

void TFormParser::FailInObject(const TFormObject& object) const {
    std::string expected = object.Children.empty() ? "a property, an object" : "an object";
    FTokens.Fail(expected + " or the 'end' of the object begun on line " + std::to_string(object.Line));
}

TFormProperty TFormParser::ParseProperty(std::string_view expected) {
    AddPart();
    TFormProperty property;
    property.Line = FTokens.Current().Line;
    property.Name = ParseDottedName(expected);
    int signLine = FTokens.Current().Line;
    Expect('=', "'=' behind the name of a property");
    property.Value = AtMissingValue(signLine) ? TFormValue{TFormIdent{}} : ParseValue("a value");
    return property;
}

TFormValue TFormParser::ParseValue(std::string_view expected) {
    switch (FTokens.Current().Kind) {
        case TFormTokenKind::Ident:
            return {TFormIdent{ParseDottedName(expected)}};
        case TFormTokenKind::Integer:
            return {ParseInteger()};
        case TFormTokenKind::Float:
            return {ParseFloat()};
        case TFormTokenKind::String:
            return {ParseString()};
        case TFormTokenKind::Binary:
            return {ParseBinary()};
        case TFormTokenKind::Symbol:
            if (FTokens.Is('[')) return {ParseSet()};
            if (FTokens.Is('(')) return {ParseList()};
            if (FTokens.Is('<')) return {ParseCollection()};
            break;
        case TFormTokenKind::End:
        case TFormTokenKind::Conflict:
        case TFormTokenKind::Foreign:
            break;
    }
    FTokens.Fail(expected);
}

TFormString TFormParser::ParseString() {
    TFormText text(FUtf8);
    text.AddChunk(FTokens.Current().Text);
    for (FTokens.Next(); FTokens.Is('+'); FTokens.Next()) {
        FTokens.Next();
        if (!FTokens.Is(TFormTokenKind::String)) FTokens.Fail("a string behind '+'");
        text.AddChunk(FTokens.Current().Text);
    }
    return {text.Take()};
}

std::int64_t TFormParser::ParseInteger() {
    std::optional<std::int64_t> value = ReadFormInteger(FTokens.Current().Text);
    if (!value) FTokens.Fail("an integer of at most 64 bits");
    FTokens.Next();
    return *value;
}

TFormFloat TFormParser::ParseFloat() {
    std::optional<TFormFloat> value = ReadFormFloat(FTokens.Current().Text);
    if (!value) FTokens.Fail("a number within the range of a double");
    FTokens.Next();
    return *value;
}

TFormSet TFormParser::ParseSet() {
    TFormSet set;
    FTokens.Next();
    while (!FTokens.Is(']')) {
        if (!set.Elements.empty()) Expect(',', "',' or ']' behind an element of a set");
        if (!FTokens.Is(TFormTokenKind::Ident) && !FTokens.Is(TFormTokenKind::Integer)) {
            FTokens.Fail("a name or an integer as an element of a set");
        }
        AddPart();
        set.Elements.push_back(FormNameText(FTokens.Current().Text, FUtf8));
        FTokens.Next();
    }
    FTokens.Next();
    return set;
}

TFormList TFormParser::ParseList() {
    TFormList list;
    Enter();
    while (!FTokens.Is(')')) {
        AddPart();
        list.Values.push_back(ParseValue("a value or the ')' of a list"));
    }
    FTokens.Next();
    --FNesting;
    return list;
}

TFormBinary TFormParser::ParseBinary() {
    TFormBinary binary{ReadFormBinary(FTokens.Current().Text)};
    FTokens.Next();
    return binary;
}

TFormCollection TFormParser::ParseCollection() {
    TFormCollection collection;
    Enter();
    while (!FTokens.Is('>')) {
        AddPart();
        if (!FTokens.IsWord("item")) FTokens.Fail("'item' or the '>' of a collection");
        collection.Items.push_back(ParseItem());
    }
    FTokens.Next();
    --FNesting;
    return collection;
}

TFormItem TFormParser::ParseItem() {
    TFormItem item;
    std::string expected = "a property or the 'end' of the item begun on line ";
    expected += std::to_string(FTokens.Current().Line);
    FTokens.Next();
    item.Order = ParseOrder();
    while (!AtKeyword("end")) item.Properties.push_back(ParseProperty(expected));
    FTokens.Next();
    return item;
}

}  // namespace

TFormFile ParseFormFile(std::string fileName, std::string_view bytes) {
    if (bytes.size() > FormFileSizeLimit) {
        throw EFormFileError(std::move(fileName), 1, std::to_string(bytes.size()) + " bytes",
                             "at most " + std::to_string(FormFileSizeLimit));
    }
    return TFormParser(std::move(fileName), bytes).Parse();
}

}  // namespace rux
