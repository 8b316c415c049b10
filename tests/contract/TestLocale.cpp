#include "contract/BoundaryContract.h"

namespace rux::test {

TEST_P(BoundaryContract, EveryUnitOfTheCodePageReadsBackAsItself) {
    const TCodePageTables& page = CurrentCodePage();
    int characters = 0;
    for (unsigned place = 1; place < 0x10000; ++place) {
        if (!page.ToWide[place]) continue;
        ++characters;
        EXPECT_EQ(place > 0xFF, page.Lead[place > 0xFF ? place >> 8 : place]) << place;
        EXPECT_NE(page.FromWide[page.ToWide[place]], 0) << place;
    }
    for (unsigned unit = 1; unit < 0x10000; ++unit)
        EXPECT_TRUE(page.FromWide[unit] == 0 || page.ToWide[page.FromWide[unit]] == unit) << unit;
    EXPECT_EQ(characters, AnsiCodePage() == 936 ? 0x80 + 126 * 190 : 0xFF);
    EXPECT_EQ(AnsiToUtf8(Ansi("A\x7F")), "A\x7F");
    EXPECT_EQ(WideToAnsi(u"\xD800\xFFFF\x1"), "??\x1");
}

TEST_P(BoundaryContract, Page936HasItsPlaces) {
    if (AnsiCodePage() != 936) GTEST_SKIP() << "the system's code page is " << AnsiCodePage();
    const TCodePageTables& page = CurrentCodePage();
    constexpr std::pair<unsigned, char16_t> places[] = {
        {0xC6B7, u'品'},  {0xB7FE, u'服'},  {0xD6D0, u'中'},  {0xD55C, u'誠'},
        {0xE55C, u'錦'},  {0x80, 0x20AC},   {0xAAA1, 0xE000}, {0xAFFE, 0xE233},
        {0xF8A1, 0xE234}, {0xFEFE, 0xE4C5}, {0xA140, 0xE4C6}, {0xA180, 0xE505},
        {0xA7A0, 0xE765}, {0xA2AB, 0xE766}, {0xFEA0, 0xE864}, {0x8140, u'丂'}};
    for (const auto& [place, unit] : places) {
        EXPECT_EQ(page.ToWide[place], unit) << std::hex << place;
        EXPECT_EQ(page.FromWide[unit], place) << std::hex << place;
    }
    EXPECT_FALSE(IsLeadByte(0x80) || IsLeadByte(0xFF));
    EXPECT_TRUE(IsLeadByte(0x81) && IsLeadByte(0xFE));
    EXPECT_EQ(Ansi("服务器"), "\xB7\xFE\xCE\xF1\xC6\xF7");
    const std::string name = Platform->Folder() + "\\" + Ansi("品质服务.txt");
    EXPECT_TRUE(Files.WriteFile(name, "x"));
    EXPECT_EQ(Files.ReadFile(name), "x");
}

TEST_P(BoundaryContract, DatesWrittenByTheUsersSettingsReadBack) {
    SetLocaleFacts(Platform->Locale());
    for (const TDateTime day : {36526.0, 39512.0, 45657.0}) {
        EXPECT_EQ(StrToDate(DateToStr(day), day), day) << DateToStr(day);
        EXPECT_EQ(DateTimeToStr(day), DateToStr(day));
    }
    const std::string morning = TimeToStr(0.25), evening = TimeToStr(0.75 + 1.0 / 86400);
    EXPECT_NE(morning, evening);
    EXPECT_NE(morning.find("6:00:00"), morning.npos) << morning;
    EXPECT_NE(evening.find(":00:01"), evening.npos) << evening;
    SetLocaleFacts({});
}

}  // namespace rux::test
