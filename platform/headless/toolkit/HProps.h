// Published properties: one table for each class, used by the form reader, by reads by name and by the dump.
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "platform/headless/toolkit/HObject.h"

namespace rux {

/// Names of an enumeration's elements, in ordinal order.
struct HEnumInfo {
    std::string_view Name;
    std::vector<std::string_view> Elements;
    /// -1 for an unknown name; compared without case.
    int OrdinalOf(std::string_view element) const;
};

/// The Boolean type.
const HEnumInfo& HBooleanInfo();
/// Names of the enumeration behind a C++ type; specialised beside each.
template <class E>
const HEnumInfo& HEnumOf();

struct HPropDef {
    TName Name;
    TTypeKind Kind = TTypeKind::Unknown;
    /// Enumeration and Set.
    const HEnumInfo* Enum = nullptr;
    /// Without a getter the value is kept by the object as form files store it, with Default until then.
    void (*Get)(HObject&, TPropValue&) = nullptr;
    /// Without a setter the property is read-only or kept by the object.
    void (*Set)(HObject&, const TPropValue&) = nullptr;
    TPropValue Default;
};

TPropValue HIntegerValue(std::int64_t value);
TPropValue HStringValue(std::string value);
/// The first byte of a text; the empty text gives #0.
TPropValue HCharValue(std::string_view text);
TPropValue HFloatValue(double value);
/// Ordinal is the object's reference number.
TPropValue HObjectValue(HObject* value);
TPropValue HEnumValue(const HEnumInfo& info, int ordinal);
inline TPropValue HBooleanValue(bool value) {
    return HEnumValue(HBooleanInfo(), value ? 1 : 0);
}
/// Elements joined by commas, without brackets.
TPropValue HSetValue(std::string elements);

/// How a C++ value becomes a property's value and comes from it.
template <class T>
struct HValueOf {
    static constexpr TTypeKind Kind = TTypeKind::Enumeration;
    static const HEnumInfo* Enum() { return &HEnumOf<T>(); }
    static void Put(TPropValue& to, T from) { to = HEnumValue(HEnumOf<T>(), static_cast<int>(from)); }
    static T Take(const TPropValue& from) { return static_cast<T>(from.Ordinal); }
};
template <>
struct HValueOf<bool> {
    static constexpr TTypeKind Kind = TTypeKind::Enumeration;
    static const HEnumInfo* Enum() { return &HBooleanInfo(); }
    static void Put(TPropValue& to, bool from) { to = HBooleanValue(from); }
    static bool Take(const TPropValue& from) { return from.Ordinal != 0; }
};
template <>
struct HValueOf<int> {
    static constexpr TTypeKind Kind = TTypeKind::Integer;
    static const HEnumInfo* Enum() { return nullptr; }
    static void Put(TPropValue& to, int from) {
        to.Kind = Kind;
        to.Ordinal = from;
    }
    static int Take(const TPropValue& from) { return static_cast<int>(from.Ordinal); }
};
template <>
struct HValueOf<double> {
    static constexpr TTypeKind Kind = TTypeKind::Float;
    static const HEnumInfo* Enum() { return nullptr; }
    static void Put(TPropValue& to, double from) {
        to.Kind = Kind;
        to.Real = from;
    }
    static double Take(const TPropValue& from) {
        return from.Kind == Kind ? from.Real : static_cast<double>(from.Ordinal);
    }
};
template <>
struct HValueOf<std::string> {
    static constexpr TTypeKind Kind = TTypeKind::String;
    static const HEnumInfo* Enum() { return nullptr; }
    static void Put(TPropValue& to, const std::string& from) {
        to.Kind = Kind;
        to.Text = from;
    }
    static const std::string& Take(const TPropValue& from) { return from.Text; }
};
template <>
struct HValueOf<HObject*> {
    static constexpr TTypeKind Kind = TTypeKind::Class;
    static const HEnumInfo* Enum() { return nullptr; }
    static void Put(TPropValue& to, HObject* from) {
        to.Kind = Kind;
        to.Object = from;
    }
    static HObject* Take(const TPropValue& from) { return dynamic_cast<HObject*>(from.Object); }
};

template <class M>
struct HMember;
template <class R, class C>
struct HMember<R (C::*)()> {
    using Owner = C;
    using Value = std::remove_cvref_t<R>;
};
template <class R, class C>
struct HMember<R (C::*)() const> : HMember<R (C::*)()> {};

/// A property with a getter and a setter of the class.
template <auto Getter, auto Setter>
HPropDef HProp(std::string_view name) {
    using M = HMember<decltype(Getter)>;
    using V = HValueOf<typename M::Value>;
    return {InternName(name),
            V::Kind,
            V::Enum(),
            [](HObject& o, TPropValue& v) { V::Put(v, (static_cast<typename M::Owner&>(o).*Getter)()); },
            [](HObject& o, const TPropValue& v) { (static_cast<typename M::Owner&>(o).*Setter)(V::Take(v)); },
            {}};
}
/// A property that can only be read.
template <auto Getter>
HPropDef HReadOnly(std::string_view name) {
    using M = HMember<decltype(Getter)>;
    using V = HValueOf<typename M::Value>;
    return {InternName(name),
            V::Kind,
            V::Enum(),
            [](HObject& o, TPropValue& v) { V::Put(v, (static_cast<typename M::Owner&>(o).*Getter)()); },
            nullptr,
            {}};
}
/// A property without behaviour: kept as it was stored, `fallback` where the form file is silent.
HPropDef HKept(std::string_view name, TPropValue fallback, const HEnumInfo* info = nullptr);

/// All published properties of one class, inherited ones included.
class HPropTable {
 public:
    HPropTable(const HPropTable* parent, std::vector<HPropDef> own);
    const HPropDef* Find(TName name) const {
        for (std::size_t at = name.Id & FMask;; at = (at + 1) & FMask) {
            const HPropDef* def = FPlaces[at];
            if (!def || def->Name == name) return def;
        }
    }
    /// In the order of declaration, ancestors first.
    const std::vector<const HPropDef*>& All() const { return FAll; }

 private:
    std::vector<HPropDef> FOwn;
    std::vector<const HPropDef*> FAll;
    std::vector<const HPropDef*> FPlaces;
    std::size_t FMask = 0;
};

}  // namespace rux
