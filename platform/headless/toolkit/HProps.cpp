#include "platform/headless/toolkit/HProps.h"

#include <algorithm>
#include <bit>

#include "rtl/Text.h"

namespace rux {

int HEnumInfo::OrdinalOf(std::string_view element) const {
    for (std::size_t i = 0; i < Elements.size(); ++i)
        if (SameText(Elements[i], element)) return static_cast<int>(i);
    return -1;
}

const HEnumInfo& HBooleanInfo() {
    static const HEnumInfo info{"Boolean", {"False", "True"}};
    return info;
}

TPropValue HIntegerValue(std::int64_t value) {
    return {.Kind = TTypeKind::Integer, .Ordinal = value, .Text = {}};
}
TPropValue HStringValue(std::string value) {
    return {.Kind = TTypeKind::String, .Text = std::move(value)};
}
TPropValue HCharValue(std::string_view text) {
    const int ordinal = text.empty() ? 0 : static_cast<unsigned char>(text.front());
    return {.Kind = TTypeKind::Char, .Ordinal = ordinal, .Text = {}};
}
TPropValue HFloatValue(double value) {
    return {.Kind = TTypeKind::Float, .Real = value, .Text = {}};
}
TPropValue HObjectValue(HObject* value) {
    return {.Kind = TTypeKind::Class,
            .Ordinal = value ? static_cast<std::int64_t>(value->RefNumber()) : 0,
            .Text = {},
            .Object = value};
}
TPropValue HSetValue(std::string elements) {
    return {.Kind = TTypeKind::Set, .Text = std::move(elements)};
}

TPropValue HEnumValue(const HEnumInfo& info, int ordinal) {
    const bool known = ordinal >= 0 && static_cast<std::size_t>(ordinal) < info.Elements.size();
    return {.Kind = TTypeKind::Enumeration,
            .Ordinal = ordinal,
            .Text = known ? std::string(info.Elements[static_cast<std::size_t>(ordinal)]) : std::string()};
}

HPropDef HKept(std::string_view name, TPropValue fallback, const HEnumInfo* info) {
    const TTypeKind kind = fallback.Kind;
    return {InternName(name), kind, info, nullptr, nullptr, std::move(fallback)};
}

HPropTable::HPropTable(const HPropTable* parent, std::vector<HPropDef> own) : FOwn(std::move(own)) {
    if (parent) FAll = parent->FAll;
    for (const HPropDef& def : FOwn) {
        // A descendant may publish a property anew, with another default.
        const auto same = [&](const HPropDef* other) { return other->Name == def.Name; };
        if (const auto old = std::find_if(FAll.begin(), FAll.end(), same); old != FAll.end())
            *old = &def;
        else
            FAll.push_back(&def);
    }
    FPlaces.resize(std::bit_ceil(FAll.size() * 2 + 2));
    FMask = FPlaces.size() - 1;
    for (const HPropDef* def : FAll) {
        std::size_t at = def->Name.Id & FMask;
        while (FPlaces[at]) at = (at + 1) & FMask;
        FPlaces[at] = def;
    }
}

}  // namespace rux
