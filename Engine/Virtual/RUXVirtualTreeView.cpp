#include "Engine/Virtual/RUXVirtualTreeView.h"

#include <cstring>
#include <vector>

#include "Engine/Core/RUXClasses.h"
#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXLimits.h"
#include "platform/WindowService.h"
#include "rtl/CodePage.h"
#include "rtl/StringList.h"
#include "rtl/Text.h"

namespace rux {

namespace {

constexpr std::size_t NodeTextSize = 255;

[[noreturn]] void RaiseNoNode(const std::string& path) {
    throw ERUXException(Ansi("没有找到要选择的节点：") + path);
}

}  // namespace

void TVirtualTreeView::Focus() const {
    Platform().Windows.SetFocus(Handle());
}

HTreeItem TVirtualTreeView::Next(TTreeRelation relation, HTreeItem node) const {
    return static_cast<HTreeItem>(Send(TVM_GETNEXTITEM, relation, static_cast<LParam>(node)));
}

std::string TVirtualTreeView::NodeText(HTreeItem node) const {
    char buffer[NodeTextSize] = {};
    TTVItem item;
    item.Mask = TVIF_TEXT;
    item.Item = node;
    item.Text = buffer;
    item.TextMax = NodeTextSize;
    Send(TVM_GETITEMA, 0, reinterpret_cast<LParam>(&item));
    buffer[NodeTextSize - 1] = 0;
    GetLogger().Info(buffer);
    return buffer;
}

HTreeItem TVirtualTreeView::SearchNode(HTreeItem start, std::string_view text, std::size_t& budget) const {
    // The way down to the node, kept here since a tree may be deeper than the stack.
    std::vector<HTreeItem> above;
    HTreeItem node = start;
    for (; node != 0 && budget > 0; --budget) {
        if (SameText(NodeText(node), text)) return node;
        if (const HTreeItem child = Next(TVGN_CHILD, node)) {
            above.push_back(node);
            node = child;
            continue;
        }
        HTreeItem sibling = Next(TVGN_NEXT, node);
        while (sibling == 0 && !above.empty()) {
            sibling = Next(TVGN_NEXT, above.back());
            above.pop_back();
        }
        node = sibling;
    }
    return 0;
}

HTreeItem TVirtualTreeView::FindNode(std::string_view path) const {
    HTreeItem node = Next(TVGN_ROOT, 0);
    const std::vector<std::string> elements = SplitDelimited(path, '/');
    // No element goes back behind the one before, so that a path looks at each node once, and at those found
    // once more.
    std::size_t budget = VirtualNodeLimit + elements.size();
    for (const std::string& element : elements) node = SearchNode(node, element, budget);
    return node;
}

HTreeItem TVirtualTreeView::ShowNode(const std::string& path) const {
    Focus();
    const HTreeItem node = FindNode(path);
    // Sent also for no node, before anybody complains.
    Send(TVM_ENSUREVISIBLE, 0, static_cast<LParam>(node));
    return node;
}

HTreeItem TVirtualTreeView::DemandNode(const std::string& path) const {
    const HTreeItem node = ShowNode(path);
    if (node == 0) RaiseNoNode(path);
    return node;
}

TRect TVirtualTreeView::PlaceOfNode(const std::string& path) const {
    const HTreeItem node = ShowNode(path);
    TRect rect;
    static_assert(sizeof node <= sizeof rect);
    std::memcpy(static_cast<void*>(&rect), &node, sizeof node);
    constexpr auto textOnly = static_cast<WParam>(-1);
    if (Send(TVM_GETITEMRECT, textOnly, reinterpret_cast<LParam>(&rect)) == 0) RaiseNoNode(path);
    return rect;
}

void TVirtualTreeView::SelectNode(const std::string& path) const {
    const HTreeItem node = DemandNode(path);
    Send(TVM_SELECTITEM, TVGN_CARET, static_cast<LParam>(node));
}

std::string TVirtualTreeView::SelectedText() const {
    Focus();
    const HTreeItem node = Next(TVGN_CARET, 0);
    return node == 0 ? std::string() : NodeText(node);
}

int TVirtualTreeView::GetCount() const {
    return static_cast<int>(Send(TVM_GETCOUNT, 0, 0));
}

void TVirtualTreeView::Expand(const std::string& path) const {
    const HTreeItem node = DemandNode(path);
    Send(TVM_EXPAND, TVE_EXPAND, static_cast<LParam>(node));
}

void TVirtualTreeView::SetNodeText(const std::string& path, const std::string& text) const {
    TTVItem item;
    item.Item = DemandNode(path);
    item.Mask = TVIF_TEXT;
    std::string buffer = text;
    item.Text = buffer.data();
    Send(TVM_SETITEMA, 0, reinterpret_cast<LParam>(&item));
}

}  // namespace rux
