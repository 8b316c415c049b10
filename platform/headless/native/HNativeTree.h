// The window class SysTreeView32.
#pragma once

#include "platform/headless/native/HNativeWindow.h"
#include "platform/headless/native/HTreeNodes.h"

namespace rux {

/// What lParam of TVM_INSERTITEMA points to.
struct TTVInsert {
    /// TVI_ROOT or 0 for the root.
    HTreeItem Parent = TVI_ROOT;
    HTreeItem After = TVI_LAST;
    TTVItem Item;
};

/// What lParam of WM_NOTIFY points to when a tree view tells its parent of a new selection.
struct TTreeNotice {
    HWnd From = 0;
    std::uintptr_t Id = 0;
    int Code = 0;
    HTreeItem Old = 0, New = 0;
};

/// A tree of texts. Rows are 16 pixels high; it scrolls by whole rows, and sideways only as far as the node
/// needs that is to be seen. A number that is no node answers 0.
///
/// A click takes button-down and button-up. The window system's tree view waits for the second inside the
/// first, so that there both must be posted; here the click waits in between, and a sent button-down does not
/// hang.
class HNativeTree final : public HNativeWindow {
 public:
    static constexpr int TVN_SELCHANGEDA = -402;
    static constexpr WParam TVGN_PARENT = 3;
    static constexpr unsigned TVE_COLLAPSE = 1, TVE_TOGGLE = 3;
    static constexpr unsigned TVIF_PARAM = 4, TVIF_STATE = 8, TVIF_CHILDREN = 64;
    static constexpr std::uint32_t TVIS_SELECTED = 2, TVIS_EXPANDED = 32;

    HNativeTree(HDesktop& desktop, unsigned id) : HNativeWindow(desktop, "SysTreeView32", id) {}
    LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) override;
    void Paint(HCanvas& canvas, const HWindow& window) override;

 private:
    LResult HandleMouse(const HWindow& window, unsigned message, TPoint point);
    LResult Insert(const TTVInsert& insert);
    HTreeItem Relative(WParam relation, HTreeItem item);
    bool GetItem(TTVItem& item);
    bool SetItem(const TTVItem& item);
    bool Expand(const HWindow& window, unsigned how, HTreeItem item);
    bool Select(const HWindow& window, HTreeItem item);
    bool EnsureVisible(const HWindow& window, HTreeItem item);
    bool GetItemRect(const HWindow& window, bool ofText, void* place);
    /// Of a row that is shown; it may lie outside the client area.
    TRect TextRect(const HWindow& window, HTreeItem item);
    int TopRow(const HWindow& window);
    HTreeItem ItemAt(const HWindow& window, TPoint point);
    void PaintRow(HCanvas& canvas, const HWindow& window, HTreeItem item);

    HTreeNodes FNodes;
    HTreeItem FCaret = 0, FPressed = 0;
    int FTop = 0, FLeft = 0;
};

}  // namespace rux
