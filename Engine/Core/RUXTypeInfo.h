// Type information of what may cross from a request into a method and back.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace rux {

class TObject;

/// Kinds as the run-time library's type information has them.
enum class TKind : std::uint8_t {
    Integer,
    Int64,
    Char,
    WChar,
    Enumeration,
    Float,
    ShortString,
    LString,
    WString,
    // Never taken as a parameter.
    Class,
    Variant,
    DynArray,
    Set,
    Method,
    Array,
    Record,
    Interface,
};

/// How a number is held in its storage.
enum class TWidth : std::uint8_t {
    None,
    S8,
    U8,
    S16,
    U16,
    S32,
    U32,
    Single,
    Double,
    DateTime,
    Comp,
    Currency
};

struct TTypeInfo {
    std::string_view Name;
    TKind Kind;
    TWidth Width = TWidth::None;
    /// Element names of an enumeration.
    std::span<const std::string_view> Elements = {};
};

/// A date in a parameter or result, told apart from a plain number by its type.
struct TDateTimeValue {
    double Days = 0;
};
/// Ten-thousandths.
struct TCurrencyValue {
    std::int64_t Units = 0;
};
/// An integer of 64 bits that is converted as a floating-point number.
struct TCompValue {
    std::int64_t Number = 0;
};
/// At most 255 characters.
struct TShortStringValue {
    std::string Text;
};

/// Type information of a C++ type that methods of interfaces use. `Slot` is its storage in a call. A type
/// without one cannot stand in a table.
template <class T>
struct TTypeOf;

template <class T>
struct TPlainSlot {
    using Slot = T;
    static const T& Take(const Slot& slot) { return slot; }
};

template <>
struct TTypeOf<std::int8_t> : TPlainSlot<std::int8_t> {
    static constexpr TTypeInfo Info{"ShortInt", TKind::Integer, TWidth::S8};
};
template <>
struct TTypeOf<std::uint8_t> : TPlainSlot<std::uint8_t> {
    static constexpr TTypeInfo Info{"Byte", TKind::Integer, TWidth::U8};
};
template <>
struct TTypeOf<std::int16_t> : TPlainSlot<std::int16_t> {
    static constexpr TTypeInfo Info{"SmallInt", TKind::Integer, TWidth::S16};
};
template <>
struct TTypeOf<std::uint16_t> : TPlainSlot<std::uint16_t> {
    static constexpr TTypeInfo Info{"Word", TKind::Integer, TWidth::U16};
};
template <>
struct TTypeOf<std::int32_t> : TPlainSlot<std::int32_t> {
    static constexpr TTypeInfo Info{"Integer", TKind::Integer, TWidth::S32};
};
template <>
struct TTypeOf<std::uint32_t> : TPlainSlot<std::uint32_t> {
    static constexpr TTypeInfo Info{"Cardinal", TKind::Integer, TWidth::U32};
};
template <>
struct TTypeOf<std::int64_t> : TPlainSlot<std::int64_t> {
    static constexpr TTypeInfo Info{"Int64", TKind::Int64};
};
template <>
struct TTypeOf<char> : TPlainSlot<char> {
    static constexpr TTypeInfo Info{"Char", TKind::Char};
};
template <>
struct TTypeOf<char16_t> : TPlainSlot<char16_t> {
    static constexpr TTypeInfo Info{"WideChar", TKind::WChar};
};
template <>
struct TTypeOf<float> : TPlainSlot<float> {
    static constexpr TTypeInfo Info{"Single", TKind::Float, TWidth::Single};
};
template <>
struct TTypeOf<double> : TPlainSlot<double> {
    static constexpr TTypeInfo Info{"Double", TKind::Float, TWidth::Double};
};
template <>
struct TTypeOf<TDateTimeValue> : TPlainSlot<TDateTimeValue> {
    static constexpr TTypeInfo Info{"TDateTime", TKind::Float, TWidth::DateTime};
};
template <>
struct TTypeOf<TCurrencyValue> : TPlainSlot<TCurrencyValue> {
    static constexpr TTypeInfo Info{"Currency", TKind::Float, TWidth::Currency};
};
template <>
struct TTypeOf<TCompValue> : TPlainSlot<TCompValue> {
    static constexpr TTypeInfo Info{"Comp", TKind::Float, TWidth::Comp};
};
template <>
struct TTypeOf<TShortStringValue> : TPlainSlot<TShortStringValue> {
    static constexpr TTypeInfo Info{"ShortString", TKind::ShortString};
};
template <>
struct TTypeOf<std::string> : TPlainSlot<std::string> {
    static constexpr TTypeInfo Info{"string", TKind::LString};
};
template <>
struct TTypeOf<std::u16string> : TPlainSlot<std::u16string> {
    static constexpr TTypeInfo Info{"WideString", TKind::WString};
};
template <>
struct TTypeOf<std::vector<std::int32_t>> : TPlainSlot<std::vector<std::int32_t>> {
    static constexpr TTypeInfo Info{"TIntegerDynArray", TKind::DynArray};
};
template <>
struct TTypeOf<TObject*> : TPlainSlot<TObject*> {
    static constexpr TTypeInfo Info{"TObject", TKind::Class};
};

/// Held as a byte: an unknown word is stored as 255, which is neither False nor a C++ bool.
template <>
struct TTypeOf<bool> {
    using Slot = std::uint8_t;
    static constexpr std::string_view Elements[] = {"False", "True"};
    static constexpr TTypeInfo Info{"Boolean", TKind::Enumeration, TWidth::U8, Elements};
    static bool Take(Slot slot) { return slot != 0; }
};

}  // namespace rux
