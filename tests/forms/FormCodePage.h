// The code page that form files are read in here.
#pragma once

#include "platform/posix/CodePages.h"
#include "rtl/CodePage.h"

namespace rux::test {

/// Makes it the code page of this process, once.
inline void UseFormCodePage() {
    static const bool done = [] {
        TCodePageTables page = LoadCodePage(936);
        // No page has halves of pairs; here those of U+1F600 become letters, so that tests can tell them.
        page.FromWide[0xD83D] = 'H';
        page.FromWide[0xDE00] = 'L';
        SetAnsiCodePage(page);
        return true;
    }();
    (void)done;
}

}  // namespace rux::test
