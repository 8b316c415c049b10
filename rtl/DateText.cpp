// Dates as the user's regional settings picture them.
#include <algorithm>
#include <charconv>

#include "rtl/Chars.h"
#include "rtl/CodePage.h"
#include "rtl/DateMath.h"
#include "rtl/Exceptions.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// Years of two digits lie less than this many years back.
constexpr int CenturyWindow = 50;

constexpr std::string_view HalfDayMarks[] = {"AM/PM", "AMPM", "A/P"};

/// The mark for the half of the day that `picture` begins with; empty if there is none.
std::string_view HalfDayMark(std::string_view picture) {
    for (const std::string_view mark : HalfDayMarks) {
        if (SameText(picture.substr(0, mark.size()), mark)) return mark;
    }
    return {};
}

/// Offset behind the literal whose opening quote stands at `start`.
std::size_t QuotedEnd(std::string_view picture, std::size_t start) {
    TTextCursor at(picture, start);
    do at.Next();
    while (!at.AtEnd() && !at.Is(picture[start]));
    return at.Pos();
}

bool IsQuote(const TTextCursor& at) {
    return at.Is('\'') || at.Is('"');
}

bool HasHalfDay(std::string_view picture) {
    for (TTextCursor at(picture); !at.AtEnd(); at.Next()) {
        if (IsQuote(at)) at = TTextCursor(picture, QuotedEnd(picture, at.Pos()));
        if (!HalfDayMark(picture.substr(at.Pos())).empty()) return true;
    }
    return false;
}

/// Writes one moment by pictures.
class TPictureWriter {
 public:
    TPictureWriter(std::string& out, const TDateParts& parts)
        : FOut(out), FParts(parts), FLocale(LocaleFacts()) {}

    void Write(std::string_view picture) {
        FHalfDays = HasHalfDay(picture);
        FLastLetter = 0;
        for (std::size_t pos = 0; pos < picture.size();) pos += WriteToken(picture, pos);
    }

 private:
    /// Writes what stands at `pos` and tells its length.
    std::size_t WriteToken(std::string_view picture, std::size_t pos) {
        const TTextCursor at(picture, pos);
        if (IsQuote(at)) {
            const std::size_t end = QuotedEnd(picture, pos);
            FOut.append(picture.substr(pos + 1, end - pos - 1));
            return end - pos + 1;
        }
        if (const std::string_view mark = HalfDayMark(picture.substr(pos)); !mark.empty()) {
            WriteHalfDay(mark);
            return mark.size();
        }
        if (at.Is('/') || at.Is(':')) {
            FOut += at.Is('/') ? FLocale.DateSeparator : FLocale.TimeSeparator;
            return 1;
        }
        const char letter = at.Length() == 1 ? static_cast<char>(picture[pos] | 0x20) : '\0';
        const std::size_t count = RunLength(picture.substr(pos), letter);
        if (count == 0 || !WriteField(letter, count)) {
            FOut.append(at.Char());
            return at.Length();
        }
        FLastLetter = letter;
        return count;
    }

    static std::size_t RunLength(std::string_view text, char letter) {
        if (letter < 'a' || letter > 'z') return 0;
        const auto other = [letter](char c) { return (c | 0x20) != letter; };
        return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), other) - text.begin());
    }

    void WriteHalfDay(std::string_view mark) {
        const bool morning = FParts.Hour < 12;
        if (mark == "AMPM") {
            FOut.append(morning ? FLocale.AmText : FLocale.PmText);
        } else {
            FOut.append(morning ? "AM" : "PM", mark == "A/P" ? 1 : 2);
        }
    }

    /// False when `letter` pictures nothing.
    bool WriteField(char letter, std::size_t count) {
        const std::size_t upToTwo = std::min<std::size_t>(count, 2);
        switch (letter) {
            case 'y':
                count <= 2 ? AppendNumber(FOut, FParts.Year % 100, 2) : AppendNumber(FOut, FParts.Year, 4);
                return true;
            case 'm':
                // Directly behind the hour the letter means minutes.
                if (FLastLetter == 'h') {
                    AppendNumber(FOut, FParts.Minute, upToTwo);
                } else {
                    WriteNumberOrName(FParts.Month, FParts.Month, MonthNames, count);
                }
                return true;
            case 'd':
                WriteNumberOrName(FParts.Day, FParts.DayOfWeek, DayNames, count);
                return true;
            case 'h':
                AppendNumber(FOut, FHalfDays ? (FParts.Hour + 11) % 12 + 1 : FParts.Hour, upToTwo);
                return true;
            case 'n':
                AppendNumber(FOut, FParts.Minute, upToTwo);
                return true;
            case 's':
                AppendNumber(FOut, FParts.Second, upToTwo);
                return true;
            case 'z':
                AppendNumber(FOut, FParts.Millisecond, std::min<std::size_t>(count, 3));
                return true;
            default:
                return false;
        }
    }

    template <class Names>
    void WriteNumberOrName(int number, int place, const Names& names, std::size_t count) {
        if (count <= 2) return AppendNumber(FOut, number, count);
        FOut.append(NameAt(names, place).substr(0, count == 3 ? 3 : std::string_view::npos));
    }

    std::string& FOut;
    const TDateParts& FParts;
    const TLocaleFacts& FLocale;
    bool FHalfDays = false;
    char FLastLetter = 0;
};

enum class TDateOrder { YearFirst, MonthFirst, DayFirst };

TDateOrder DateOrder(std::string_view picture) {
    for (const char c : picture) {
        const char letter = static_cast<char>(c | 0x20);
        if (letter == 'y') return TDateOrder::YearFirst;
        if (letter == 'm') return TDateOrder::MonthFirst;
        if (letter == 'd') return TDateOrder::DayFirst;
    }
    return TDateOrder::MonthFirst;
}

/// A number of up to four digits, as written.
std::optional<std::string_view> TakeNumber(std::string_view& text) {
    constexpr std::size_t mostDigits = 4;
    DropLeadingBlanks(text);
    const std::string_view digits = TakeDigits(text);
    return digits.empty() || digits.size() > mostDigits ? std::nullopt : std::optional(digits);
}

bool TakeChar(std::string_view& text, char c) {
    DropLeadingBlanks(text);
    if (!text.starts_with(c)) return false;
    text.remove_prefix(1);
    return true;
}

int ToInt(std::string_view digits) {
    int value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

int FullYear(std::string_view digits, int currentYear) {
    const int year = ToInt(digits);
    if (digits.size() > 2) return year;
    const int earliest = currentYear - CenturyWindow;
    const int full = year + earliest / 100 * 100;
    return full < earliest ? full + 100 : full;
}

/// Year, month and day that `text` names; nothing when it is no date by its form.
std::optional<TDateParts> ScanDate(std::string_view text, int currentYear) {
    const TLocaleFacts& locale = LocaleFacts();
    const TDateOrder order = DateOrder(locale.ShortDateFormat);
    const auto first = TakeNumber(text);
    if (!first || !TakeChar(text, locale.DateSeparator)) return std::nullopt;
    const auto second = TakeNumber(text);
    if (!second) return std::nullopt;

    TDateParts date;
    const bool dayFirst = order == TDateOrder::DayFirst;
    date.Year = currentYear;
    date.Month = ToInt(dayFirst ? *second : *first);
    date.Day = ToInt(dayFirst ? *first : *second);
    if (TakeChar(text, locale.DateSeparator)) {
        const auto third = TakeNumber(text);
        if (!third) return std::nullopt;
        const bool yearFirst = order == TDateOrder::YearFirst;
        date.Year = FullYear(yearFirst ? *first : *third, currentYear);
        if (yearFirst) date.Month = ToInt(*second);
        if (yearFirst) date.Day = ToInt(*third);
        TakeChar(text, locale.DateSeparator);
    }
    DropLeadingBlanks(text);
    return text.empty() ? std::optional(date) : std::nullopt;
}

}  // namespace

std::string DateToStr(TDateTime value) {
    std::string out;
    const TDateParts parts = DecodeDateTime(value);
    TPictureWriter(out, parts).Write(LocaleFacts().ShortDateFormat);
    return out;
}

std::string TimeToStr(TDateTime value) {
    std::string out;
    const TDateParts parts = DecodeDateTime(value);
    TPictureWriter(out, parts).Write(LocaleFacts().LongTimeFormat);
    return out;
}

std::string DateTimeToStr(TDateTime value) {
    std::string out;
    const TDateParts parts = DecodeDateTime(value);
    TPictureWriter writer(out, parts);
    writer.Write(LocaleFacts().ShortDateFormat);
    if (parts.Hour == 0 && parts.Minute == 0 && parts.Second == 0 && parts.Millisecond == 0) return out;
    out += ' ';
    writer.Write(LocaleFacts().LongTimeFormat);
    return out;
}

TDateTime StrToDate(std::string_view text, TDateTime now) {
    if (const auto date = ScanDate(text, DecodeDateTime(now).Year)) {
        if (const auto moment = DateInMilliseconds(*date)) return FromMilliseconds(*moment);
    }
    throw EConvertError("'" + std::string(text) + "' is not a valid date");
}

}  // namespace rux
