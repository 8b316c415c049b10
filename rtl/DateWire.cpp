// Dates in the fixed forms that other programs read.
#include <cstdlib>

#include "rtl/Chars.h"
#include "rtl/DateMath.h"

namespace rux {
namespace {

void AppendTime(std::string& out, const TDateParts& parts) {
    AppendNumber(out, parts.Hour, 2);
    out += ':';
    AppendNumber(out, parts.Minute, 2);
    out += ':';
    AppendNumber(out, parts.Second, 2);
}

/// Sign, hours, `between`, minutes.
void AppendZone(std::string& out, int biasMinutes, std::string_view between) {
    const int size = std::abs(biasMinutes);
    out += biasMinutes < 0 ? '-' : '+';
    AppendNumber(out, size / 60, 2);
    out.append(between);
    AppendNumber(out, size % 60, 2);
}

/// Reads fixed fields; once one is missing, all further ones are.
class TFieldReader {
 public:
    explicit TFieldReader(std::string_view text) : FText(text) {}
    bool Failed() const { return FFailed; }
    bool AtEnd() const { return FText.empty(); }

    bool TryMark(char mark) {
        if (!FText.starts_with(mark)) return false;
        FText.remove_prefix(1);
        return true;
    }
    void Mark(char mark) { FFailed = FFailed || !TryMark(mark); }

    int Digits(std::size_t count) {
        int value = 0;
        for (; count; --count) value = value * 10 + Digit();
        return value;
    }
    /// A fraction of any length, cut to milliseconds.
    int Milliseconds() {
        int value = 0;
        int weight = 100;
        do {
            value += Digit() * weight;
            weight /= 10;
        } while (!FFailed && !FText.empty() && IsDigit(FText[0]));
        return value;
    }

 private:
    int Digit() {
        FFailed = FFailed || FText.empty() || !IsDigit(FText[0]);
        if (FFailed) return 0;
        const int value = FText[0] - '0';
        FText.remove_prefix(1);
        return value;
    }
    std::string_view FText;
    bool FFailed = false;
};

TDateParts ReadDateTime(TFieldReader& reader) {
    TDateParts parts;
    parts.Year = reader.Digits(4);
    reader.Mark('-');
    parts.Month = reader.Digits(2);
    reader.Mark('-');
    parts.Day = reader.Digits(2);
    reader.Mark('T');
    parts.Hour = reader.Digits(2);
    reader.Mark(':');
    parts.Minute = reader.Digits(2);
    reader.Mark(':');
    parts.Second = reader.Digits(2);
    if (reader.TryMark('.')) parts.Millisecond = reader.Milliseconds();
    return parts;
}

/// Minutes east of Greenwich, `local` where the text ends before; nothing for an impossible zone.
std::optional<int> ReadZone(TFieldReader& reader, int local) {
    if (reader.AtEnd()) return local;
    if (reader.TryMark('Z')) return 0;
    const bool west = reader.TryMark('-');
    if (!west) reader.Mark('+');
    const int hours = reader.Digits(2);
    reader.Mark(':');
    const int minutes = reader.Digits(2);
    if (hours > 23 || minutes > 59) return std::nullopt;
    return west ? -(hours * 60 + minutes) : hours * 60 + minutes;
}

}  // namespace

std::string Rfc822DateTime(TDateTime localTime, int biasMinutes) {
    const TDateParts parts = DecodeDateTime(localTime);
    std::string out(NameAt(DayNames, parts.DayOfWeek).substr(0, 3));
    out.append(", ");
    AppendNumber(out, parts.Day, 1);
    out.append(" ").append(NameAt(MonthNames, parts.Month).substr(0, 3)).append(" ");
    AppendNumber(out, parts.Year, 4);
    out += ' ';
    AppendTime(out, parts);
    out += ' ';
    AppendZone(out, biasMinutes, "");
    return out;
}

std::string DateTimeToXml(TDateTime localTime, int biasMinutes) {
    const TDateParts parts = DecodeDateTime(localTime);
    std::string out;
    AppendNumber(out, parts.Year, 4);
    out += '-';
    AppendNumber(out, parts.Month, 2);
    out += '-';
    AppendNumber(out, parts.Day, 2);
    out += 'T';
    AppendTime(out, parts);
    out += '.';
    AppendNumber(out, parts.Millisecond, 3);
    if (biasMinutes == 0) return out + 'Z';
    AppendZone(out, biasMinutes, ":");
    return out;
}

std::optional<TDateTime> XmlToDateTime(std::string_view text, int biasMinutes) {
    TFieldReader reader(text);
    const TDateParts parts = ReadDateTime(reader);
    const std::optional<int> zone = ReadZone(reader, biasMinutes);
    const std::optional<std::int64_t> date = DateInMilliseconds(parts), time = TimeInMilliseconds(parts);
    if (reader.Failed() || !reader.AtEnd() || !zone || !date || !time) return std::nullopt;
    return FromMilliseconds(*date + *time + (biasMinutes - *zone) * MillisecondsPerMinute);
}

}  // namespace rux
