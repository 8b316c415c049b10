#include "platform/headless/loader/HContent.h"

#include <string>
#include <string_view>

#include "platform/headless/toolkit/HStrings.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

namespace {

struct TListedProperty {
    std::string_view Property, Kind;
};
constexpr TListedProperty ListedProperties[] = {
    {"Items", "item"},     {"ItemsEx", "item"},   {"Tabs", "tab"},   {"TabItems", "tab"},
    {"Columns", "column"}, {"Panels", "panel"},   {"Bands", "band"}, {"Sections", "section"},
    {"Bars", "bar"},       {"ActionBars", "bar"}, {"Pages", "page"}, {"Buttons", "button"},
};

std::string TextProperty(HObject& object, std::string_view name) {
    TPropValue value;
    return object.GetProp(FindName(name), value) ? value.Text : std::string();
}

/// What a person would call an entry of a collection.
std::string EntryText(HObject& entry) {
    for (const std::string_view name : {"Caption", "Text", "FieldName"})
        if (std::string text = TextProperty(entry, name); !text.empty()) return text;
    TPropValue title;
    auto* part = entry.GetProp(FindName("Title"), title) ? dynamic_cast<HObject*>(title.Object) : nullptr;
    return part ? TextProperty(*part, "Caption") : std::string();
}

void AddLines(HObject& list, std::string_view kind, std::vector<HContentLine>& content) {
    if (auto* strings = dynamic_cast<HStrings*>(&list))
        for (std::string& line : strings->Lines()) content.push_back({kind, 0, {std::move(line)}});
    if (auto* collection = dynamic_cast<HCollection*>(&list))
        for (HObject* entry : collection->Items()) content.push_back({kind, 0, {EntryText(*entry)}});
}

}  // namespace

std::vector<HContentLine> ContentOf(HComponent& component) {
    std::vector<HContentLine> content = component.Content();
    if (!content.empty()) return content;
    for (const TListedProperty& row : ListedProperties) {
        // Parts that nobody has asked for yet are empty, and are not made for a look.
        const TPropValue* kept = component.Stored(FindName(row.Property));
        TPropValue value;
        const HPropDef* def = component.Def().Props->Find(FindName(row.Property));
        if (!kept && !(def && def->Get)) continue;
        if (!component.GetProp(FindName(row.Property), value)) continue;
        if (auto* list = dynamic_cast<HObject*>(value.Object)) AddLines(*list, row.Kind, content);
    }
    return content;
}

}  // namespace rux
