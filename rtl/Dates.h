// Dates and times: days since 1899-12-30 as a double, local time.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace rux {

using TDateTime = double;

/// The user's regional settings, as far as texts depend on them.
struct TLocaleFacts {
    std::string ShortDateFormat = "yyyy-M-d";
    std::string LongTimeFormat = "h:mm:ss";
    char DateSeparator = '-';
    char TimeSeparator = ':';
    char DecimalSeparator = '.';
    std::string AmText = "AM";
    std::string PmText = "PM";
};

/// Set once by the platform before any other thread runs, like the code page.
void SetLocaleFacts(TLocaleFacts facts);
const TLocaleFacts& LocaleFacts();

struct TDateParts {
    int Year = 0, Month = 0, Day = 0;
    int Hour = 0, Minute = 0, Second = 0, Millisecond = 0;
    /// 1 is Sunday.
    int DayOfWeek = 0;
};
/// To the nearest millisecond. All parts are 0 outside the years 1 to 9999.
TDateParts DecodeDateTime(TDateTime value);
/// Raises EConvertError "Invalid argument to date encode" / "time encode" outside the calendar.
TDateTime EncodeDateTime(const TDateParts& parts);

std::string DateToStr(TDateTime value);
std::string TimeToStr(TDateTime value);
/// Short date, blank, long time; at exactly midnight the date alone.
std::string DateTimeToStr(TDateTime value);
/// Two or three numbers with the locale's date separator between; two mean month and day of `now`'s year.
/// Raises EConvertError "'<text>' is not a valid date".
TDateTime StrToDate(std::string_view text, TDateTime now);

/// `Wed, 5 Mar 2008 09:05:07 +0800`: English names, day unpadded. `bias` is minutes east of Greenwich.
std::string Rfc822DateTime(TDateTime localTime, int biasMinutes);
/// `2008-03-05T09:05:07.000+08:00`, with `Z` for no bias.
std::string DateTimeToXml(TDateTime localTime, int biasMinutes);
/// The same form, fraction and zone optional; a zone is turned into local time. Nothing for anything else.
std::optional<TDateTime> XmlToDateTime(std::string_view text, int biasMinutes);

}  // namespace rux
