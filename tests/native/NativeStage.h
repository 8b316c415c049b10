// What tests of native windows share.
#pragma once

#include "platform/headless/native/HNativeDialog.h"
#include "platform/headless/native/HNativeFactory.h"
#include "platform/headless/native/HNativeTree.h"
#include "rtl/CodePage.h"

namespace rux::test {

constexpr std::uint32_t Child = WS_CHILD | WS_VISIBLE;

/// What happened, in order. A fixture's first base, so that it outlives the windows that write it.
class TNotes {
 protected:
    void Note(const std::string& text, const char* separator = "; ") {
        FNotes += (FNotes.empty() ? "" : separator) + text;
    }
    std::string Notes() { return std::exchange(FNotes, {}); }

 private:
    std::string FNotes;
};

inline HTreeItem InsertNode(HDesktop& desktop, HWnd tree, HTreeItem parent, std::string text,
                            HTreeItem after = TVI_LAST) {
    TTVInsert insert{parent, after, {}};
    insert.Item.Mask = TVIF_TEXT;
    insert.Item.Text = text.data();
    return static_cast<HTreeItem>(
        desktop.SendMessageA(tree, TVM_INSERTITEMA, 0, reinterpret_cast<LParam>(&insert)));
}

}  // namespace rux::test
