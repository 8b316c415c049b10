// What the tests of the run-time library share: a code page in the shape of 936 with a handful of characters,
// among them those whose second byte looks like a delimiter, and the way to look at what was raised.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "rtl/CodePage.h"
#include "rtl/Dates.h"
#include "rtl/Exceptions.h"

namespace rux::test {

inline TCodePageTables MakeTestCodePage() {
    TCodePageTables page;
    page.Number = 936;
    page.ToWide.resize(0x10000);
    page.FromWide.resize(0x10000);
    for (unsigned lead = 0x81; lead <= 0xFE; ++lead) page.Lead[lead] = true;
    constexpr std::pair<unsigned, char16_t> places[] = {
        {0x80, u'€'},    {0xA1A1, u'　'}, {0xD6D0, u'中'}, {0xB9FA, u'国'}, {0xD0B9, u'泄'}, {0xB7FE, u'服'},
        {0xD55C, u'誠'}, {0x837C, u'億'}, {0x855E, u'區'}, {0x855F, u'卂'}, {0x815B, u'乕'}, {0x815D, u'乚'},
        {0x817B, u'亄'}, {0x827D, u'倉'}, {0x8141, u'丄'}, {0x8161, u'乤'}, {0xA3C1, u'Ａ'}, {0xA3E1, u'ａ'},
        {0xA8A6, u'é'},  {0xA6A1, u'Α'},  {0xA6C1, u'α'},  {0xA7D7, u'ё'},  {0xA7A7, u'Ё'},  {0xA7D1, u'а'},
        {0xA7A1, u'А'},  {0xA2F1, u'Ⅰ'},  {0xA2A1, u'ⅰ'}};
    for (const auto& [bytes, unit] : places) {
        page.ToWide[bytes] = unit;
        page.FromWide[unit] = static_cast<std::uint16_t>(bytes);
    }
    return page;
}

/// Tests of texts run in the code page above and with the first locale's facts.
class TRtlTest : public testing::Test {
 protected:
    void SetUp() override {
        if (AnsiCodePage() != 936) SetAnsiCodePage(MakeTestCodePage());
        SetLocaleFacts({});
    }
};

/// Class and message of the failure that `action` raises.
template <class Action>
std::string Raised(Action action) {
    try {
        action();
    } catch (const Exception& e) {
        return std::string(e.ClassName()) + ": " + e.Message();
    }
    return "nothing";
}

}  // namespace rux::test
