#include "Engine/Request/RUXConversion.h"

#include <cmath>
#include <limits>

#include "Engine/Core/RUXEngineState.h"
#include "platform/ClockService.h"
#include "rtl/CodePage.h"
#include "rtl/Dates.h"
#include "rtl/Exceptions.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// What a text that names no element leaves behind. It is no error.
constexpr std::uint8_t UnknownElement = 255;

[[noreturn]] void RaiseTypeTrans(const TTypeInfo& info) {
    throw ETypeTransException(
        Format("Internal error: data type kind %s not expected in this context", {info.Name}));
}

template <class T>
void Put(void* storage, T value) {
    *static_cast<T*>(storage) = value;
}
template <class T>
const T& Get(const void* storage) {
    return *static_cast<const T*>(storage);
}

void PutInteger(TWidth width, void* storage, std::int32_t value) {
    switch (width) {
        case TWidth::S8:
            return Put(storage, static_cast<std::int8_t>(value));
        case TWidth::U8:
            return Put(storage, static_cast<std::uint8_t>(value));
        case TWidth::S16:
            return Put(storage, static_cast<std::int16_t>(value));
        case TWidth::U16:
            return Put(storage, static_cast<std::uint16_t>(value));
        case TWidth::U32:
            return Put(storage, static_cast<std::uint32_t>(value));
        default:
            return Put(storage, value);
    }
}

std::int64_t GetInteger(TWidth width, const void* storage) {
    switch (width) {
        case TWidth::S8:
            return Get<std::int8_t>(storage);
        case TWidth::U8:
            return Get<std::uint8_t>(storage);
        case TWidth::S16:
            return Get<std::int16_t>(storage);
        case TWidth::U16:
            return Get<std::uint16_t>(storage);
        case TWidth::U32:
            return Get<std::uint32_t>(storage);
        default:
            return Get<std::int32_t>(storage);
    }
}

std::uint8_t ElementOf(const TTypeInfo& info, std::string_view text) {
    if (text.empty()) return 0;
    if (SameText(info.Name, "Boolean")) {
        if (text == "1") return 1;
        if (text == "0") return 0;
    }
    for (std::size_t i = 0; i < info.Elements.size(); ++i)
        if (SameText(info.Elements[i], text)) return static_cast<std::uint8_t>(i);
    return UnknownElement;
}

double NumberOf(const std::string& text) {
    if (SameText(text, "NaN")) return std::numeric_limits<double>::quiet_NaN();
    if (SameText(text, "INF")) return std::numeric_limits<double>::infinity();
    if (SameText(text, "-INF")) return -std::numeric_limits<double>::infinity();
    const std::optional<double> value = TryStrToFloat(text, '.');
    if (!value) throw EConvertError("'" + text + "' is not a valid floating point value");
    return *value;
}

/// To the nearest integer, ties to even; what does not fit is an invalid operation.
std::int64_t Rounded(double value) {
    if (!(std::fabs(value) < 9.2e18)) throw EInvalidOp("Invalid floating point operation");
    return static_cast<std::int64_t>(std::nearbyint(value));
}

void PutFloat(const TTypeInfo& info, const std::string& text, void* storage) {
    switch (info.Width) {
        case TWidth::Single:
            return Put(storage, static_cast<float>(NumberOf(text)));
        case TWidth::Comp:
            return Put(storage, TCompValue{Rounded(NumberOf(text))});
        case TWidth::Currency:
            return Put(storage, TCurrencyValue{Rounded(NumberOf(text) * 10000)});
        case TWidth::DateTime: {
            const std::optional<TDateTime> value = XmlToDateTime(text, Platform().Clock.BiasMinutes());
            if (!value) throw EConvertError("'" + text + "' is not a valid date and time");
            return Put(storage, TDateTimeValue{*value});
        }
        default:
            return Put(storage, NumberOf(text));
    }
}

std::string FloatText(const TTypeInfo& info, const void* storage) {
    switch (info.Width) {
        case TWidth::Single:
            return FloatToStr(Get<float>(storage), '.');
        case TWidth::Comp:
            return IntToStr(Get<TCompValue>(storage).Number);
        case TWidth::Currency:
            return FloatToStr(static_cast<double>(Get<TCurrencyValue>(storage).Units) / 10000, '.');
        case TWidth::DateTime:
            return DateTimeToXml(Get<TDateTimeValue>(storage).Days, Platform().Clock.BiasMinutes());
        default: {
            const double value = Get<double>(storage);
            return std::isnan(value) ? "NaN" : FloatToStr(value, '.');
        }
    }
}

/// At most 255 bytes, cut between characters.
std::string ShortText(const std::string& text) {
    constexpr std::size_t limit = 255;
    TTextCursor at(text);
    while (!at.AtEnd() && at.Pos() + at.Length() <= limit) at.Next();
    return text.substr(0, at.Pos());
}

}  // namespace

bool TextToNative(const TTypeInfo& info, const std::string& text, void* storage) {
    const std::string trimmed(Trim(text));
    switch (info.Kind) {
        case TKind::Integer:
            PutInteger(info.Width, storage, StrToInt(trimmed));
            return true;
        case TKind::Int64:
            Put(storage, StrToInt64(trimmed));
            return true;
        case TKind::Enumeration:
            Put(storage, ElementOf(info, trimmed));
            return true;
        case TKind::Float:
            PutFloat(info, trimmed, storage);
            return true;
        case TKind::Char:
            if (!text.empty()) Put(storage, text.front());
            return true;
        case TKind::WChar:
            if (!text.empty()) Put(storage, AnsiToWide(text).front());
            return true;
        case TKind::ShortString:
            *static_cast<TShortStringValue*>(storage) = {ShortText(text)};
            return true;
        case TKind::LString:
            *static_cast<std::string*>(storage) = text;
            return true;
        case TKind::WString:
            *static_cast<std::u16string*>(storage) = AnsiToWide(text);
            return true;
        case TKind::Class:
        case TKind::Variant:
            return false;
        case TKind::DynArray:
        case TKind::Set:
        case TKind::Method:
        case TKind::Array:
        case TKind::Record:
        case TKind::Interface:
            break;
    }
    RaiseTypeTrans(info);
}

std::string NativeToText(const TTypeInfo& info, const void* storage) {
    switch (info.Kind) {
        case TKind::Integer:
            return IntToStr(GetInteger(info.Width, storage));
        case TKind::Int64:
            return IntToStr(Get<std::int64_t>(storage));
        case TKind::Enumeration: {
            const std::uint8_t element = Get<std::uint8_t>(storage);
            return element < info.Elements.size() ? std::string(info.Elements[element]) : std::string();
        }
        case TKind::Float:
            return FloatText(info, storage);
        case TKind::Char:
            return std::string(1, Get<char>(storage));
        case TKind::WChar:
            return WideToAnsi(std::u16string(1, Get<char16_t>(storage)));
        case TKind::ShortString:
            return Get<TShortStringValue>(storage).Text;
        case TKind::LString:
            return Get<std::string>(storage);
        case TKind::WString:
            return WideToAnsi(Get<std::u16string>(storage));
        case TKind::Class:
        case TKind::Variant:
        case TKind::DynArray:
        case TKind::Set:
        case TKind::Method:
        case TKind::Array:
        case TKind::Record:
        case TKind::Interface:
            break;
    }
    RaiseTypeTrans(info);
}

std::string ValueToText(const TTypeInfo& info, const void* storage) {
    if (info.Kind == TKind::Enumeration && SameText(info.Name, "Boolean"))
        return BoolToStr(Get<std::uint8_t>(storage) != 0);
    if (info.Kind != TKind::DynArray || !SameText(info.Name, "TIntegerDynArray"))
        return NativeToText(info, storage);
    const auto& numbers = Get<std::vector<std::int32_t>>(storage);
    std::string text = "---\r\n";
    if (numbers.empty()) text += " []\r\n";
    for (const std::int32_t number : numbers) text += "\r\n- " + IntToStr(number);
    return text + "\r\n";
}

}  // namespace rux
