#include "platform/headless/native/HNativeTree.h"

#include <algorithm>
#include <cstring>

#include "platform/headless/drawing/HCanvas.h"

namespace rux {

namespace {

constexpr int RowHeight = HCanvas::LineHeight;
/// Of each level; the box that expands a node stands in it.
constexpr int Indent = 19;
constexpr int BoxSize = 9;

int PageOf(const HWindow& window) {
    return std::max(1, window.ClientRect().Height() / RowHeight);
}

}  // namespace

LResult HNativeTree::WndProc(HWnd handle, unsigned message, WParam wParam, LParam lParam) {
    const HWindow* window = FDesktop.Find(handle);
    if (!window) return 0;
    const auto item = static_cast<HTreeItem>(lParam);
    switch (message) {
        case TVM_INSERTITEMA:
            return lParam ? Insert(*reinterpret_cast<const TTVInsert*>(lParam)) : 0;
        case TVM_GETCOUNT:
            return static_cast<LResult>(FNodes.Count());
        case TVM_GETNEXTITEM:
            return static_cast<LResult>(Relative(wParam, item));
        case TVM_GETITEMA:
            return lParam && GetItem(*reinterpret_cast<TTVItem*>(lParam));
        case TVM_SETITEMA:
            return lParam && SetItem(*reinterpret_cast<const TTVItem*>(lParam));
        case TVM_EXPAND:
            return Expand(*window, static_cast<unsigned>(wParam & 3), item);
        case TVM_SELECTITEM:
            return wParam == TVGN_CARET && Select(*window, item);
        case TVM_ENSUREVISIBLE:
            return EnsureVisible(*window, item);
        case TVM_GETITEMRECT:
            return lParam && GetItemRect(*window, wParam != 0, reinterpret_cast<void*>(lParam));
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_LBUTTONDBLCLK:
            return HandleMouse(*window, message, PointOfParam(lParam));
        case WM_SETFOCUS:
            // Who comes to a tree with the keyboard is to stand somewhere.
            if (FCaret == 0 && !FNodes.Rows().empty())
                Select(*window, FNodes.Rows()[static_cast<std::size_t>(TopRow(*window))]);
            return HNativeWindow::WndProc(handle, message, wParam, lParam);
        case WM_CANCELMODE:
        case WM_KILLFOCUS:
            FPressed = 0;
            [[fallthrough]];
        default:
            return HNativeWindow::WndProc(handle, message, wParam, lParam);
    }
}

LResult HNativeTree::HandleMouse(const HWindow& window, unsigned message, TPoint point) {
    const HTreeItem item = ItemAt(window, point);
    const bool onText = item && point.X >= TextRect(window, item).Left;
    if (message == WM_LBUTTONDOWN) {
        FDesktop.SetFocus(window.Handle);
        FPressed = item;
    } else if (message == WM_LBUTTONDBLCLK) {
        Expand(window, TVE_TOGGLE, item);
    } else if (std::exchange(FPressed, 0) == item && item) {
        const bool onBox = !onText && point.X >= TextRect(window, item).Left - Indent;
        if (!onBox || !Expand(window, TVE_TOGGLE, item)) Select(window, item);
    }
    return 0;
}

// ---------------------------------------------------------------------------------------------- nodes

LResult HNativeTree::Insert(const TTVInsert& insert) {
    const HTreeItem made = FNodes.Insert(insert.Parent, insert.After);
    if (made == 0) return 0;
    TTVItem item = insert.Item;
    item.Item = made;
    SetItem(item);
    return static_cast<LResult>(made);
}

HTreeItem HNativeTree::Relative(WParam relation, HTreeItem item) {
    if (relation == TVGN_ROOT) return FNodes.First();
    if (relation == TVGN_CARET) return FCaret;
    const HTreeNodes::TNode* node = FNodes.Find(item);
    if (!node) return 0;
    return relation == TVGN_NEXT     ? node->Next
           : relation == TVGN_CHILD  ? node->First
           : relation == TVGN_PARENT ? node->Parent
                                     : 0;
}

bool HNativeTree::GetItem(TTVItem& item) {
    const HTreeNodes::TNode* node = FNodes.Find(item.Item);
    if (!node) return false;
    if ((item.Mask & TVIF_TEXT) && item.Text && item.TextMax > 0) {
        const auto room = static_cast<std::size_t>(item.TextMax) - 1;
        item.Text[node->Text.copy(item.Text, room)] = 0;
    }
    if (item.Mask & TVIF_PARAM) item.Param = node->Param;
    if (item.Mask & TVIF_CHILDREN) item.Children = node->First ? 1 : 0;
    if (item.Mask & TVIF_STATE)
        item.State = (item.Item == FCaret ? TVIS_SELECTED : 0) | (node->Expanded ? TVIS_EXPANDED : 0);
    return true;
}

bool HNativeTree::SetItem(const TTVItem& item) {
    HTreeNodes::TNode* node = FNodes.Find(item.Item);
    if (!node) return false;
    if (item.Mask & TVIF_TEXT) node->Text = item.Text ? item.Text : "";
    if (item.Mask & TVIF_PARAM) node->Param = item.Param;
    return true;
}

bool HNativeTree::Expand(const HWindow& window, unsigned how, HTreeItem item) {
    const HTreeNodes::TNode* node = FNodes.Find(item);
    if (!node || how == 0) return false;
    const bool expanded = how == TVE_TOGGLE ? !node->Expanded : how == TVE_EXPAND;
    if (!FNodes.SetExpanded(item, expanded)) return false;
    if (expanded) return true;
    FTop = TopRow(window);
    // What is chosen is never hidden.
    if (FNodes.IsBelow(FCaret, item)) Select(window, item);
    return true;
}

bool HNativeTree::Select(const HWindow& window, HTreeItem item) {
    if (item != 0 && !EnsureVisible(window, item)) return false;
    TTreeNotice notice{window.Handle, Id(), TVN_SELCHANGEDA, FCaret, item};
    if (std::exchange(FCaret, item) != item)
        FDesktop.Notify(ParentOf(window.Handle), WM_NOTIFY, Id(), reinterpret_cast<LParam>(&notice));
    return true;
}

// ---------------------------------------------------------------------------------------------- places

int HNativeTree::TopRow(const HWindow& window) {
    const int last = static_cast<int>(FNodes.Rows().size()) - PageOf(window);
    return std::clamp(FTop, 0, std::max(0, last));
}

TRect HNativeTree::TextRect(const HWindow& window, HTreeItem item) {
    const HTreeNodes::TNode& node = *FNodes.Find(item);
    const int left = (node.Depth + 1) * Indent - FLeft;
    const int top = (FNodes.RowOf(item) - TopRow(window)) * RowHeight;
    return {left, top, left + HCanvas::TextWidth(node.Text) + 4, top + RowHeight};
}

HTreeItem HNativeTree::ItemAt(const HWindow& window, TPoint point) {
    if (!window.ClientRect().Contains(point)) return 0;
    const int down = point.Y / RowHeight;
    const auto row = static_cast<std::size_t>(TopRow(window)) + static_cast<std::size_t>(down);
    return row < FNodes.Rows().size() ? FNodes.Rows()[row] : 0;
}

bool HNativeTree::EnsureVisible(const HWindow& window, HTreeItem item) {
    if (!FNodes.Find(item)) return false;
    FNodes.Reveal(item);
    const int row = FNodes.RowOf(item), page = PageOf(window);
    FTop = std::clamp(TopRow(window), row - page + 1, row);
    const TRect text = TextRect(window, item).MovedBy({FLeft, 0});
    const int start = text.Left - Indent;
    const bool seen = start >= FLeft && text.Right <= FLeft + window.ClientRect().Width();
    if (!seen) FLeft = std::clamp(text.Right - window.ClientRect().Width(), 0, start);
    return true;
}

bool HNativeTree::GetItemRect(const HWindow& window, bool ofText, void* place) {
    HTreeItem item = 0;
    std::memcpy(&item, place, sizeof item);
    if (FNodes.RowOf(item) < 0) return false;
    const TRect client = window.ClientRect();
    TRect rect = TextRect(window, item);
    if (rect.Bottom <= 0 || rect.Top >= client.Bottom) return false;
    if (!ofText) rect = {0, rect.Top, client.Right, rect.Bottom};
    std::memcpy(place, &rect, sizeof rect);
    return true;
}

// ---------------------------------------------------------------------------------------------- drawing

void HNativeTree::Paint(HCanvas& canvas, const HWindow& window) {
    const TRect client = window.ClientRect();
    canvas.Fill(client, clWindow);
    const std::vector<HTreeItem>& rows = FNodes.Rows();
    const auto top = static_cast<std::size_t>(TopRow(window));
    const auto end = std::min(rows.size(), top + static_cast<std::size_t>(PageOf(window)) + 1);
    for (std::size_t row = top; row < end; ++row) PaintRow(canvas, window, rows[row]);
    canvas.Edge(client, HEdge::Sunken);
}

void HNativeTree::PaintRow(HCanvas& canvas, const HWindow& window, HTreeItem item) {
    const HTreeNodes::TNode& node = *FNodes.Find(item);
    const TRect place = TextRect(window, item);
    const bool chosen = item == FCaret;
    if (chosen) canvas.Fill(place, clHighlight);
    canvas.Text({place.Left + 2, place.Top, place.Right, place.Bottom}, node.Text,
                chosen ? clHighlightText : clWindowText);
    if (node.First == 0) return;
    const int x = place.Left - Indent + (Indent - BoxSize) / 2, y = place.Top + (RowHeight - BoxSize) / 2;
    canvas.Frame({x, y, x + BoxSize, y + BoxSize}, clBtnShadow);
    canvas.Fill({x + 2, y + 4, x + 7, y + 5}, clWindowText);
    if (!node.Expanded) canvas.Fill({x + 4, y + 2, x + 5, y + 7}, clWindowText);
}

}  // namespace rux
