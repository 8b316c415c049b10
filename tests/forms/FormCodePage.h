// A code page in the shape of 936 for the tests of form files: its lead and trail bytes, the true place of a
// few characters, and each of the others at a place of its own.
#pragma once

#include <cstdint>
#include <utility>

#include "rtl/CodePage.h"

namespace rux::test {

inline TCodePageTables MakeFormCodePage() {
    TCodePageTables page;
    page.Number = 936;
    page.ToWide.resize(0x10000);
    page.FromWide.resize(0x10000);
    auto set = [&page](unsigned bytes, unsigned unit) {
        page.ToWide[bytes] = static_cast<char16_t>(unit);
        page.FromWide[unit] = static_cast<std::uint16_t>(bytes);
    };
    for (unsigned byte = 1; byte < 0x80; ++byte) set(byte, byte);
    constexpr std::pair<unsigned, char16_t> places[] = {
        {0xD6D0, u'中'}, {0xCEC4, u'文'}, {0xB0B4, u'按'}, {0xC5A5, u'钮'}, {0xCBCE, u'宋'}, {0xCCE5, u'体'},
        {0x8140, u'丂'}, {0x815C, u'乗'}, {0x817B, u'亄'}, {0x817D, u'亇'}, {0x815D, u'乚'}, {0xA8A6, u'é'}};
    for (auto [bytes, unit] : places) set(bytes, unit);
    unsigned next = 0x4E00;
    for (unsigned lead = 0x81; lead < 0xFF; ++lead) {
        page.Lead[lead] = true;
        for (unsigned trail = 0x40; trail < 0xFF; ++trail) {
            if (trail == 0x7F || page.ToWide[lead * 256 + trail]) continue;
            while (page.FromWide[next]) ++next;
            set(lead * 256 + trail, next);
        }
    }
    // No page has halves of pairs; here those of U+1F600 become letters, so that tests can tell them.
    page.FromWide[0xD83D] = 'H';
    page.FromWide[0xDE00] = 'L';
    return page;
}

/// Makes it the code page of this process, once.
inline void UseFormCodePage() {
    static const bool done = [] {
        SetAnsiCodePage(MakeFormCodePage());
        return true;
    }();
    (void)done;
}

}  // namespace rux::test
