#include <cmath>
#include <tuple>

#include "rtl/Dates.h"
#include "tests/rtl/TestCodePage.h"

namespace rux::test {
namespace {

using std::string;

TLocaleFacts Locale(string shortDate, char separator, string longTime = "h:mm:ss") {
    TLocaleFacts facts;
    facts.ShortDateFormat = std::move(shortDate);
    facts.DateSeparator = separator;
    facts.LongTimeFormat = std::move(longTime);
    return facts;
}

class TDateTest : public TRtlTest {
 protected:
    /// A Wednesday.
    const TDateTime Morning = EncodeDateTime({2008, 3, 5, 9, 5, 7, 0, 0});
    const TDateTime Evening = EncodeDateTime({2008, 12, 31, 23, 59, 59, 40, 0});
    const TDateTime Midnight = std::floor(Morning);
};

TEST_F(TDateTest, DaysAreCountedFrom1899) {
    EXPECT_EQ(EncodeDateTime({1899, 12, 30, 0, 0, 0, 0, 0}), 0.0);
    EXPECT_EQ(EncodeDateTime({1899, 12, 29, 6, 0, 0, 0, 0}), -1.25);
    EXPECT_EQ(Midnight, 39512.0);
    for (const double value : {Morning, Evening, -1.25, -693593.0, 2958465.75}) {
        EXPECT_EQ(EncodeDateTime(DecodeDateTime(value)), value);
    }
    EXPECT_EQ(DecodeDateTime(Midnight).DayOfWeek, 4);
    EXPECT_EQ(DecodeDateTime(Midnight - 1E-10).Day, 5);
    for (const double value : {-693594.0, 2958466.0, 1E300, double{-INFINITY}, double{NAN}}) {
        EXPECT_EQ(DecodeDateTime(value).Year, 0) << value;
    }
}

TEST_F(TDateTest, EncodingRefusesWhatNoCalendarHas) {
    const TDateParts dates[] = {{2007, 2, 29}, {2008, 0, 1},    {2008, 13, 1}, {0, 1, 1},
                                {10000, 1, 1}, {2008, -255, 1}, {2008, 1, 257}};
    for (const TDateParts& date : dates) {
        EXPECT_EQ(Raised([&] { EncodeDateTime(date); }), "EConvertError: Invalid argument to date encode");
    }
    const TDateParts times[] = {{2008, 1, 1, 24}, {2008, 1, 1, 0, 60}, {2008, 1, 1, 0, 0, -1}};
    for (const TDateParts& time : times) {
        EXPECT_EQ(Raised([&] { EncodeDateTime(time); }), "EConvertError: Invalid argument to time encode");
    }
}

TEST_F(TDateTest, PicturesOfLocales) {
    const std::tuple<TLocaleFacts, TDateTime, string> rows[] = {
        {Locale("yyyy-M-d", '-'), Morning, "2008-3-5 9:05:07"},
        {Locale("yyyy-M-d", '-'), Midnight, "2008-3-5"},
        {Locale("yyyy/M/d", '/'), Evening, "2008/12/31 23:59:59"},
        {Locale("M/d/yyyy", '/', "h:mm:ss AMPM"), Morning, "3/5/2008 9:05:07 AM"},
        {Locale("M/d/yyyy", '/', "h:mm:ss AMPM"), Evening, "12/31/2008 11:59:59 PM"},
        {Locale("M/d/yyyy", '/', "hh:nn AM/PM 'h'"), Midnight + 1.0 / 48, "3/5/2008 12:30 AM h"},
        {Locale("dd/MM/yy", '.', "hh:mm:ss.zzz"), Evening, "31.12.08 23:59:59.040"},
        {Locale("ddd d mmm, dddd mmmm", '-', "'AMPM' h'"), Morning, "Wed 5 Mar, Wednesday March AMPM 9"},
        {Locale(Ansi("yyyy中M誠"), '-'), Midnight, Ansi("2008中3誠")}};
    for (const auto& [facts, value, text] : rows) {
        SetLocaleFacts(facts);
        EXPECT_EQ(DateTimeToStr(value), text);
    }
    SetLocaleFacts({});
    EXPECT_EQ(DateToStr(Evening) + TimeToStr(Evening) + TimeToStr(Midnight), "2008-12-3123:59:590:00:00");
}

TEST_F(TDateTest, StrToDate) {
    const std::tuple<string, string, TDateParts> rows[] = {
        {"yyyy-M-d", "2008-3-5", {2008, 3, 5}},   {"yyyy-M-d", " 2008 - 03 - 05 ", {2008, 3, 5}},
        {"yyyy-M-d", "57-3-5", {2057, 3, 5}},     {"yyyy-M-d", "58-3-5-", {1958, 3, 5}},
        {"yyyy-M-d", "3-5", {2008, 3, 5}},        {"M/d/yyyy", "3-5-1999", {1999, 3, 5}},
        {"dd.MM.yyyy", "5-3-1999", {1999, 3, 5}}, {"dd.MM.yyyy", "5-3", {2008, 3, 5}}};
    for (const auto& [picture, text, date] : rows) {
        SetLocaleFacts(Locale(picture, '-'));
        EXPECT_EQ(StrToDate(text, Morning), EncodeDateTime(date)) << text;
    }
    SetLocaleFacts({});
    const string refused[] = {"abc",       "",     "2008/3/5",  "2008-3-5 1", "2008-3-",
                              "2008-2-30", "-3-5", "12345-1-1", "0-0"};
    for (const string& text : refused) {
        EXPECT_EQ(Raised([&] { StrToDate(text, Morning); }),
                  "EConvertError: '" + text + "' is not a valid date");
    }
}

TEST_F(TDateTest, DatesForMachines) {
    EXPECT_EQ(Rfc822DateTime(Morning, 480), "Wed, 5 Mar 2008 09:05:07 +0800");
    EXPECT_EQ(Rfc822DateTime(Evening, -210), "Wed, 31 Dec 2008 23:59:59 -0330");
    EXPECT_EQ(DateTimeToXml(Morning, 480), "2008-03-05T09:05:07.000+08:00");
    EXPECT_EQ(DateTimeToXml(Evening, 0), "2008-12-31T23:59:59.040Z");
}

TEST_F(TDateTest, XmlToDateTime) {
    const std::pair<string, TDateTime> rows[] = {{"2008-03-05T09:05:07", Morning},
                                                 {"2008-03-05T09:05:07.0009999+08:00", Morning},
                                                 {"2008-03-05T01:05:07Z", Morning},
                                                 {"2008-03-04T21:35:07-03:30", Morning},
                                                 {"2008-12-31T15:59:59.04Z", Evening}};
    for (const auto& [text, value] : rows) EXPECT_EQ(XmlToDateTime(text, 480), value) << text;
    // clang-format off
    const string refused[] = {
        "", "2008-03-05", "2008-3-5T09:05:07", "2008-03-05 09:05:07", "2008-03-05T24:00:00",
        "2008-02-30T00:00:00", "2008-03-05T09:05:07.", "2008-03-05T09:05:07+8", "2008-03-05T09:05:07+24:00",
        "2008-03-05T09:05:07Zx"};
    // clang-format on
    for (const string& text : refused) EXPECT_EQ(XmlToDateTime(text, 480), std::nullopt) << text;
}

}  // namespace
}  // namespace rux::test
