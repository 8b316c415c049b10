#include "platform/headless/toolkit/HStrings.h"

#include "rtl/StringList.h"

namespace rux {

void HStrings::SetLines(std::vector<std::string> lines) {
    FLines = std::move(lines);
    if (FOnChange) FOnChange();
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
