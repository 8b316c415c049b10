#include "platform/headless/forms/FormDump.h"

#include <string_view>

#include "platform/headless/forms/FormLimits.h"
#include "platform/headless/forms/FormNumbers.h"

namespace rux {

namespace {

class TFormDump {
 public:
    std::string Dump(const TFormFile& file);

 private:
    void AddEscaped(std::string_view text);
    void AddOrder(const std::optional<int>& order);
    void AddObject(const TFormObject& object, std::size_t index);
    void AddProperty(const TFormProperty& property);
    void AddValue(const TFormValue& value);
    void AddSet(const TFormSet& set);
    void AddList(const TFormList& list);
    void AddBinary(const TFormBinary& binary);
    void AddCollection(const TFormCollection& collection);

    std::string FText;
};

/// FNV-1a.
std::uint64_t Hash(std::string_view bytes) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    return hash;
}

std::string TFormDump::Dump(const TFormFile& file) {
    for (std::size_t i = 0; i < file.Objects.size(); ++i) AddObject(file.Objects[i], i);
    return std::move(FText);
}

void TFormDump::AddEscaped(std::string_view text) {
    for (char c : text) {
        if (c >= ' ' && c <= '~' && c != '\'' && c != '\\') {
            FText += c;
        } else {
            FText += "\\x" + FormHexText({&c, 1});
        }
    }
}

void TFormDump::AddOrder(const std::optional<int>& order) {
    if (order) FText += " [" + std::to_string(*order) + "]";
}

void TFormDump::AddObject(const TFormObject& object, std::size_t index) {
    FText += std::to_string(index);
    if (object.Parent >= 0) FText += " in " + std::to_string(object.Parent);
    FText += ": ";
    FText += FormObjectWord(object.Kind);
    FText += ' ';
    AddEscaped(object.Name);
    if (!object.Name.empty()) FText += ": ";
    AddEscaped(object.ClassName);
    AddOrder(object.Order);
    FText += '\n';
    for (const TFormProperty& property : object.Properties) {
        FText += "  ";
        AddProperty(property);
        FText += '\n';
    }
}

void TFormDump::AddProperty(const TFormProperty& property) {
    AddEscaped(property.Name);
    FText += " = ";
    AddValue(property.Value);
}

void TFormDump::AddValue(const TFormValue& value) {
    value.Visit(
        [this](const TFormString& text) {
            FText += '\'';
            AddEscaped(text.Text);
            FText += '\'';
        },
        [this](std::int64_t number) { FText += std::to_string(number); },
        [this](const TFormFloat& number) {
            FText += FormDoubleText(number.Value);
            if (number.Suffix) FText += number.Suffix;
        },
        [this](const TFormIdent& ident) { AddEscaped(ident.Name.empty() ? "-" : ident.Name); },
        [this](const TFormSet& set) { AddSet(set); }, [this](const TFormList& list) { AddList(list); },
        [this](const TFormBinary& binary) { AddBinary(binary); },
        [this](const TFormCollection& collection) { AddCollection(collection); });
}

void TFormDump::AddSet(const TFormSet& set) {
    std::string_view separator = "[";
    for (const std::string& element : set.Elements) {
        FText += separator;
        AddEscaped(element);
        separator = ", ";
    }
    FText += set.Elements.empty() ? "[]" : "]";
}

void TFormDump::AddList(const TFormList& list) {
    std::string_view separator = "(";
    for (const TFormValue& value : list.Values) {
        FText += separator;
        AddValue(value);
        separator = " ";
    }
    FText += list.Values.empty() ? "()" : ")";
}

void TFormDump::AddBinary(const TFormBinary& binary) {
    const std::string& bytes = binary.Bytes;
    FText += '{';
    FText += bytes.size() <= FormDumpBinaryLimit
                 ? FormHexText(bytes)
                 : std::to_string(bytes.size()) + " bytes, " + std::to_string(Hash(bytes));
    FText += '}';
}

void TFormDump::AddCollection(const TFormCollection& collection) {
    FText += '<';
    std::string_view before;
    for (const TFormItem& item : collection.Items) {
        FText += before;
        FText += "item";
        AddOrder(item.Order);
        std::string_view separator = " ";
        for (const TFormProperty& property : item.Properties) {
            FText += separator;
            AddProperty(property);
            separator = "; ";
        }
        FText += " end";
        before = " ";
    }
    FText += '>';
}

}  // namespace

std::string DumpFormFile(const TFormFile& file) {
    return TFormDump().Dump(file);
}

}  // namespace rux
