#include "platform/headless/loader/HPropertyReader.h"

#include <cctype>

#include "platform/headless/loader/HIdents.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HStrings.h"
#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/StringList.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// "OnClick", not "Online": events of the toolkit go on with a capital letter.
bool IsEventName(std::string_view name) {
    return name.size() > 2 && name.substr(0, 2) == "On" && std::isupper(static_cast<unsigned char>(name[2]));
}

bool IsBoolean(std::string_view ident) {
    return SameText(ident, "True") || SameText(ident, "False");
}

std::string TextOfElement(const TFormValue& value) {
    if (const auto* text = value.As<TFormString>()) return text->Text;
    if (const auto* ident = value.As<TFormIdent>()) return ident->Name;
    if (const auto* number = value.As<std::int64_t>()) return std::to_string(*number);
    return {};
}

/// Elements in ordinal order, as the toolkit writes a set.
std::string SetText(const HEnumInfo* info, const std::vector<std::string>& elements) {
    std::vector<std::string> ordered;
    if (info)
        for (const std::string_view name : info->Elements)
            for (const std::string& element : elements)
                if (SameText(element, name)) ordered.emplace_back(name);
    const std::vector<std::string>& row = ordered.size() == elements.size() ? ordered : elements;
    std::string text;
    for (const std::string& element : row) text += (text.empty() ? "" : ",") + element;
    return text;
}

}  // namespace

HObject* HPropertyReader::PartOf(HObject& object, TName name, std::string_view className) {
    TPropValue value;
    if (object.GetProp(name, value) && value.Object) return dynamic_cast<HObject*>(value.Object);
    if (value.Kind != TTypeKind::Unknown && value.Kind != TTypeKind::Class) return nullptr;
    std::unique_ptr<HObject> made = FKit.Make(className);
    if (!made) return nullptr;
    HObject& part = object.Adopt(std::move(made));
    object.SetProp(name, HObjectValue(&part));
    return &part;
}

void HPropertyReader::Read(HObject& object, const TFormProperty& property, HComponent& scope) {
    HObject* target = &object;
    std::string_view path = property.Name;
    for (std::size_t dot = path.find('.'); dot != path.npos; dot = path.find('.')) {
        const std::string_view rest = path.substr(dot + 1);
        const bool strings = SameText(rest, "Strings") && property.Value.As<TFormList>();
        target = PartOf(*target, InternName(path.substr(0, dot)), strings ? "TStringList" : "TPersistent");
        if (!target) return;
        path = rest;
    }
    const auto* method = property.Value.As<TFormIdent>();
    auto* component = dynamic_cast<HComponent*>(target);
    if (component && method && IsEventName(path) && !IsBoolean(method->Name)) {
        // A form that stands on another may take an event's method away.
        component->SetEvent(InternName(path), SameText(method->Name, "nil") ? std::string() : method->Name);
        return;
    }
    ReadValue(*target, InternName(path), property.Value, scope);
}

void HPropertyReader::ReadValue(HObject& object, TName name, const TFormValue& value, HComponent& scope) {
    const HPropDef* def = object.Def().Props->Find(name);
    const bool wantsFloat = def && def->Kind == TTypeKind::Float;
    const bool wantsChar = def && def->Kind == TTypeKind::Char;
    value.Visit(
        [&](const TFormString& text) {
            object.SetProp(name, wantsChar ? HCharValue(text.Text) : HStringValue(text.Text));
        },
        [&](std::int64_t number) {
            if (def && def->Kind == TTypeKind::Enumeration)
                object.SetProp(name, HEnumValue(*def->Enum, static_cast<int>(number)));
            else
                object.SetProp(name,
                               wantsFloat ? HFloatValue(static_cast<double>(number)) : HIntegerValue(number));
        },
        [&](const TFormFloat& number) { object.SetProp(name, HFloatValue(number.Value)); },
        [&](const TFormIdent& ident) { ReadIdent(object, name, def, ident.Name, scope); },
        [&](const TFormSet& set) {
            object.SetProp(name, HSetValue(SetText(def ? def->Enum : nullptr, set.Elements)));
        },
        [&](const TFormList& list) {
            std::vector<std::string> lines;
            for (const TFormValue& element : list.Values) lines.push_back(TextOfElement(element));
            if (auto* strings = dynamic_cast<HStrings*>(&object))
                strings->SetLines(std::move(lines));
            else
                object.SetProp(name, HStringValue(JoinDelimited(lines, ',')));
        },
        [&](const TFormBinary& binary) { object.StoreBlob(name, binary.Bytes); },
        [&](const TFormCollection& collection) { ReadCollection(object, name, collection, scope); });
}

void HPropertyReader::ReadIdent(HObject& object, TName name, const HPropDef* def, const std::string& ident,
                                HComponent& scope) {
    if (ident.empty()) return;
    if (def && def->Enum && def->Kind == TTypeKind::Enumeration) {
        const int ordinal = def->Enum->OrdinalOf(ident);
        if (ordinal >= 0) object.SetProp(name, HEnumValue(*def->Enum, ordinal));
        return;
    }
    if (const std::optional<std::int64_t> number = IntegerOfIdent(ident);
        number && (!def || def->Kind == TTypeKind::Integer)) {
        object.SetProp(name, HIntegerValue(*number));
        return;
    }
    if (SameText(ident, "nil")) {
        object.SetProp(name, HObjectValue(nullptr));
        return;
    }
    if (IsBoolean(ident)) {
        object.SetProp(name, HBooleanValue(SameText(ident, "True")));
        return;
    }
    if (SameText(ident, "Null")) {
        object.SetProp(name, {.Kind = TTypeKind::Variant, .Text = {}});
        return;
    }
    // An element of an enumeration that nobody knows, or a component: that shows once all are alive.
    FReferences.push_back({&object, name, ident, &scope});
}

void HPropertyReader::ReadCollection(HObject& object, TName name, const TFormCollection& collection,
                                     HComponent& scope) {
    auto* target = dynamic_cast<HCollection*>(PartOf(object, name, "TCollection"));
    if (!target) return;
    const HClassDef* known = target->Def().Item;
    const HClassDef& itemDef = known ? *known : *FKit.ClassDefs().FindDef("TCollectionItem");
    // A form that stands on another one gives the whole collection anew.
    target->Clear();
    for (const TFormItem& item : collection.Items) {
        HObject& made = target->Add(itemDef.Make(FKit, itemDef));
        for (const TFormProperty& property : item.Properties) Read(made, property, scope);
    }
}

}  // namespace rux
