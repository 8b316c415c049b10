#include "platform/headless/toolkit/HStrings.h"

#include "rtl/StringList.h"
#include "rtl/Text.h"

namespace rux {

void HStrings::SetLines(std::vector<std::string> lines) {
    FLines = std::move(lines);
    if (FOnChange) FOnChange();
}

namespace {

std::string LineOf(const std::vector<std::string>& lines, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= lines.size())
        throw EStringListError("List index out of bounds (" + std::to_string(index) + ")");
    return lines[static_cast<std::size_t>(index)];
}

int PlaceOf(const std::vector<std::string>& lines, const std::string& text) {
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (AnsiSameText(lines[i], text)) return static_cast<int>(i);
    return -1;
}

}  // namespace

std::string HStrings::Get(int index) {
    return LineOf(FLines, index);
}

int HStrings::IndexOf(const std::string& text) {
    return PlaceOf(FLines, text);
}

std::string HTextLines::Get(int index) {
    return LineOf(Lines(), index);
}

int HTextLines::IndexOf(const std::string& text) {
    return PlaceOf(Lines(), text);
}

std::string HStrings::Text() const {
    std::string text;
    for (const std::string& line : Lines()) text += line + "\r\n";
    return text;
}

void HStrings::SetText(std::string_view text) {
    TStringList list;
    list.SetText(text);
    SetLines(list.Items());
}

void HTextLines::Attach(std::function<std::string()> get, std::function<void(std::string)> set) {
    FGet = std::move(get);
    FSet = std::move(set);
}

std::vector<std::string> HTextLines::Lines() const {
    TStringList list;
    if (FGet) list.SetText(FGet());
    return list.Items();
}

void HTextLines::SetLines(std::vector<std::string> lines) {
    std::string text;
    // Lines are added one by one, and each brings its own end.
    for (const std::string& line : lines) text += line + "\r\n";
    if (FSet) FSet(std::move(text));
}

HObject& HCollection::Add(std::unique_ptr<HObject> item) {
    HObject& kept = Adopt(std::move(item));
    FItems.push_back(&kept);
    return kept;
}

}  // namespace rux
