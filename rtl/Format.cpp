#include <algorithm>

#include "rtl/Chars.h"
#include "rtl/CodePage.h"
#include "rtl/Exceptions.h"
#include "rtl/Numbers.h"

namespace rux {
namespace {

/// Widths come with formats, and those may come from outside: beyond this one they are cut.
constexpr std::size_t MaxWidth = 4096;
/// More of a failing place is not quoted.
constexpr std::size_t MaxQuoted = 31;

/// One place of a format, from its percent sign to its letter.
struct TPlace {
    std::string_view Whole;
    std::optional<std::size_t> Index;
    bool Left = false;
    std::size_t Width = 0;
    std::optional<std::size_t> Precision;
    /// Lower case; #0 when the format ends before it, or a character of two bytes stands there.
    char Letter = 0;
};

[[noreturn]] void RaiseInvalid(const TPlace& place) {
    throw EConvertError("Format '" + std::string(place.Whole.substr(0, MaxQuoted)) +
                        "' invalid or incompatible with argument");
}

[[noreturn]] void RaiseNoArgument(const TPlace& place) {
    throw EConvertError("No argument for format '" + std::string(place.Whole.substr(0, MaxQuoted)) + "'");
}

std::optional<std::size_t> TakeNumber(std::string_view& text) {
    std::optional<std::size_t> number;
    for (const char c : TakeDigits(text)) {
        number = std::min(number.value_or(0) * 10 + static_cast<std::size_t>(c - '0'), MaxWidth);
    }
    return number;
}

bool TakeMark(std::string_view& text, char mark) {
    if (!text.starts_with(mark)) return false;
    text.remove_prefix(1);
    return true;
}

/// Reads the place that `format` begins with.
TPlace ReadPlace(std::string_view format) {
    TPlace place;
    std::string_view rest = format.substr(1);
    place.Left = TakeMark(rest, '-');
    std::optional<std::size_t> number = TakeNumber(rest);
    if (number && TakeMark(rest, ':')) {
        place.Index = number;
        place.Left = TakeMark(rest, '-');
        number = TakeNumber(rest);
    }
    place.Width = number.value_or(0);
    if (TakeMark(rest, '.')) place.Precision = TakeNumber(rest);
    const std::string_view letter = TTextCursor(rest).Char();
    if (letter.size() == 1) place.Letter = static_cast<char>(letter[0] | 0x20);
    place.Whole = format.substr(0, format.size() - rest.size() + letter.size());
    return place;
}

std::string HexText(std::uint64_t bits) {
    const std::string text =
        IntToHex8(static_cast<std::uint32_t>(bits >> 32)) + IntToHex8(static_cast<std::uint32_t>(bits));
    return text.substr(std::min(text.find_first_not_of('0'), text.size() - 1));
}

std::string NumberText(const TPlace& place, const TFormatArg& arg) {
    switch (place.Letter) {
        case 'd':
            return IntToStr(arg.Number());
        case 'u':
            return std::to_string(arg.Bits());
        case 'x':
            return HexText(arg.Bits());
        default:
            RaiseInvalid(place);
    }
}

std::string PlaceText(const TPlace& place, const TFormatArg& arg) {
    if (arg.IsText()) {
        if (place.Letter != 's') RaiseInvalid(place);
        return std::string(arg.Text().substr(0, place.Precision.value_or(std::string_view::npos)));
    }
    std::string text = NumberText(place, arg);
    const std::size_t sign = text[0] == '-' ? 1 : 0, digits = text.size() - sign;
    if (place.Precision && *place.Precision > digits) text.insert(sign, *place.Precision - digits, '0');
    return text;
}

void AppendPadded(std::string& out, const TPlace& place, std::string_view text) {
    const std::size_t padding = place.Width > text.size() ? place.Width - text.size() : 0;
    if (!place.Left) out.append(padding, ' ');
    out.append(text);
    if (place.Left) out.append(padding, ' ');
}

}  // namespace

std::string Format(std::string_view format, std::initializer_list<TFormatArg> args) {
    std::string out;
    std::size_t next = 0;
    while (!format.empty()) {
        const std::size_t percent = std::min(format.find('%'), format.size());
        out.append(format.substr(0, percent));
        format.remove_prefix(percent);
        if (format.empty()) break;
        if (format.starts_with("%%")) {
            out += '%';
            format.remove_prefix(2);
            continue;
        }
        const TPlace place = ReadPlace(format);
        if (!place.Letter) RaiseInvalid(place);
        next = place.Index.value_or(next);
        if (next >= args.size()) RaiseNoArgument(place);
        AppendPadded(out, place, PlaceText(place, args.begin()[next++]));
        format.remove_prefix(place.Whole.size());
    }
    return out;
}

}  // namespace rux
