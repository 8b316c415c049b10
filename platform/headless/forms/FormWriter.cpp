#include "platform/headless/forms/FormWriter.h"

#include <algorithm>
#include <string_view>

#include "platform/headless/forms/FormChars.h"
#include "platform/headless/forms/FormLimits.h"
#include "platform/headless/forms/FormNumbers.h"
#include "platform/headless/forms/FormText.h"
#include "rtl/CodePage.h"

namespace rux {

namespace {

constexpr std::string_view LineEnd = "\r\n";
/// U+FFFD, for the '?' that the code page has in the place of a character of a name.
constexpr std::string_view LostCharacter = "\xEF\xBF\xBD";

class TFormWriter {
 public:
    explicit TFormWriter(bool utf8) : FUtf8(utf8) {}
    std::string Write(const TFormFile& file);
    /// The file has names that want UTF-8, and nothing that only raw bytes can tell.
    bool WantsUtf8() const { return FHasWideNames && !FHasRawText; }

 private:
    void NewLine();
    void AddName(std::string_view name);
    void AddOrder(const std::optional<int>& order);
    void AddObject(const TFormObject& object);
    void AddEnd();
    void AddProperty(const TFormProperty& property);
    void AddValue(const TFormValue& value);
    void AddString(const TFormString& string);
    void AddPiece(std::u16string_view units, bool raw);
    void AddSet(const TFormSet& set);
    void AddList(const TFormList& list);
    void AddBinary(const TFormBinary& binary);
    void AddCollection(const TFormCollection& collection);

    bool FUtf8;
    bool FHasWideNames = false;
    bool FHasRawText = false;
    int FLevel = 0;
    std::string FText;
};

bool IsCodePageText(std::string_view text) {
    return WideToAnsi(AnsiToWide(text)) == text;
}

bool IsPlainName(std::string_view name) {
    return std::all_of(name.begin(), name.end(), [](char c) {
        return c == '.' || (IsFormNamePart(c) && static_cast<unsigned char>(c) < 0x80);
    });
}

bool IsNumber(std::string_view element) {
    return element.find_first_of("-$0123456789") == 0;
}

std::string Utf8Name(std::string_view name) {
    std::string result;
    for (char c : AnsiToUtf8(name)) {
        if (c == '?') {
            result += LostCharacter;
        } else {
            result += c;
        }
    }
    return result;
}

std::string TFormWriter::Write(const TFormFile& file) {
    if (FUtf8) FText = Utf8Signature;
    int open = -1;
    for (std::size_t i = 0; i < file.Objects.size(); ++i) {
        const TFormObject& object = file.Objects[i];
        for (; open != object.Parent && open >= 0;
             open = file.Objects[static_cast<std::size_t>(open)].Parent) {
            AddEnd();
        }
        AddObject(object);
        open = static_cast<int>(i);
    }
    while (FLevel > 0) AddEnd();
    return std::move(FText);
}

void TFormWriter::NewLine() {
    FText += LineEnd;
    FText.append(2 * static_cast<std::size_t>(std::min(FLevel, FormIndentLimit)), ' ');
}

void TFormWriter::AddName(std::string_view name) {
    if (IsPlainName(name)) {
        FText += name;
        return;
    }
    FHasWideNames = true;
    if (!IsCodePageText(name)) FHasRawText = true;
    FText += FUtf8 ? Utf8Name(name) : std::string(name);
}

void TFormWriter::AddOrder(const std::optional<int>& order) {
    if (order) FText += " [" + std::to_string(*order) + "]";
}

void TFormWriter::AddObject(const TFormObject& object) {
    if (FLevel > 0) NewLine();
    FText += FormObjectWord(object.Kind);
    FText += ' ';
    AddName(object.Name);
    if (!object.Name.empty()) FText += ": ";
    AddName(object.ClassName);
    AddOrder(object.Order);
    ++FLevel;
    for (const TFormProperty& property : object.Properties) AddProperty(property);
}

void TFormWriter::AddEnd() {
    --FLevel;
    NewLine();
    FText += "end";
    if (FLevel == 0) FText += LineEnd;
}

void TFormWriter::AddProperty(const TFormProperty& property) {
    NewLine();
    AddName(property.Name);
    FText += " = ";
    AddValue(property.Value);
}

void TFormWriter::AddValue(const TFormValue& value) {
    value.Visit([this](const TFormString& string) { AddString(string); },
                [this](std::int64_t number) { FText += std::to_string(number); },
                [this](const TFormFloat& number) { FText += FormFloatText(number); },
                [this](const TFormIdent& ident) { AddName(ident.Name); },
                [this](const TFormSet& set) { AddSet(set); },
                [this](const TFormList& list) { AddList(list); },
                [this](const TFormBinary& binary) { AddBinary(binary); },
                [this](const TFormCollection& collection) { AddCollection(collection); });
}

/// Long texts are broken; where does not matter, for the reader joins even the halves of a character.
void TFormWriter::AddString(const TFormString& string) {
    const std::string& text = string.Text;
    std::u16string units = AnsiToWide(text);
    bool raw = WideToAnsi(units) != text;
    if (raw) {
        FHasRawText = true;
        units.clear();
        for (char c : text) units += static_cast<unsigned char>(c);
    }
    ++FLevel;
    std::u16string_view rest = units;
    for (; rest.size() > FormStringWidth; rest.remove_prefix(FormStringWidth)) {
        AddPiece(rest.substr(0, FormStringWidth), raw);
        FText += " +";
        NewLine();
    }
    AddPiece(rest, raw);
    --FLevel;
}

void TFormWriter::AddPiece(std::u16string_view units, bool raw) {
    bool quoted = false;
    for (char16_t unit : units) {
        bool plain = (unit >= ' ' && unit <= '~' && unit != '\'') || (raw && unit >= 0x80);
        if (plain != quoted) FText += '\'';
        quoted = plain;
        if (plain) {
            FText += static_cast<char>(unit);
        } else {
            FText += "#" + std::to_string(static_cast<unsigned>(unit));
        }
    }
    if (quoted || units.empty()) FText += '\'';
    if (units.empty()) FText += '\'';
}

void TFormWriter::AddSet(const TFormSet& set) {
    FText += '[';
    std::string_view separator;
    for (const std::string& element : set.Elements) {
        FText += separator;
        if (IsNumber(element)) {
            FText += element;
        } else {
            AddName(element);
        }
        separator = ", ";
    }
    FText += ']';
}

void TFormWriter::AddList(const TFormList& list) {
    FText += '(';
    ++FLevel;
    for (const TFormValue& value : list.Values) {
        NewLine();
        AddValue(value);
    }
    --FLevel;
    FText += ')';
}

void TFormWriter::AddBinary(const TFormBinary& binary) {
    FText += '{';
    ++FLevel;
    std::string_view rest = binary.Bytes;
    for (; !rest.empty(); rest.remove_prefix(std::min(FormBinaryWidth, rest.size()))) {
        NewLine();
        FText += FormHexText(rest.substr(0, FormBinaryWidth));
    }
    --FLevel;
    FText += '}';
}

void TFormWriter::AddCollection(const TFormCollection& collection) {
    FText += '<';
    ++FLevel;
    for (const TFormItem& item : collection.Items) {
        NewLine();
        FText += "item";
        AddOrder(item.Order);
        ++FLevel;
        for (const TFormProperty& property : item.Properties) AddProperty(property);
        --FLevel;
        NewLine();
        FText += "end";
    }
    --FLevel;
    FText += '>';
}

}  // namespace

std::string WriteFormFile(const TFormFile& file) {
    TFormWriter plain(false);
    std::string text = plain.Write(file);
    return plain.WantsUtf8() ? TFormWriter(true).Write(file) : text;
}

}  // namespace rux
