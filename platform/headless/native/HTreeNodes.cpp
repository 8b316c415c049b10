#include "platform/headless/native/HTreeNodes.h"

namespace rux {

HTreeItem HTreeNodes::Insert(HTreeItem parent, HTreeItem after) {
    if (parent == TVI_ROOT) parent = 0;
    if (parent >= FNodes.size() || Count() >= Limit) return 0;
    const auto item = static_cast<std::uint32_t>(FNodes.size());
    FNodes.emplace_back();
    TNode &node = FNodes.back(), &above = FNodes[parent];
    node.Parent = static_cast<std::uint32_t>(parent);
    node.Depth = above.Depth + 1;
    const TNode* before = Find(after);
    if (after == TVI_FIRST) {
        node.Next = above.First;
        above.First = item;
    } else {
        const bool known = before && before->Parent == node.Parent;
        std::uint32_t& link = known ? FNodes[after].Next : above.Last ? FNodes[above.Last].Next : above.First;
        node.Next = link;
        link = item;
    }
    if (node.Next == 0) above.Last = item;
    FRowsKnown = false;
    return item;
}

bool HTreeNodes::SetExpanded(HTreeItem item, bool expanded) {
    TNode* node = Find(item);
    if (!node || node->First == 0) return false;
    if (node->Expanded != expanded) FRowsKnown = false;
    node->Expanded = expanded;
    return true;
}

void HTreeNodes::Reveal(HTreeItem item) {
    for (const TNode* node = Find(item); node && node->Parent; node = Find(node->Parent))
        SetExpanded(node->Parent, true);
}

bool HTreeNodes::IsBelow(HTreeItem item, HTreeItem above) const {
    while (item != 0 && item < FNodes.size()) {
        item = FNodes[item].Parent;
        if (item == above) return true;
    }
    return false;
}

const std::vector<HTreeItem>& HTreeNodes::Rows() {
    if (!FRowsKnown) ListRows();
    return FRows;
}

int HTreeNodes::RowOf(HTreeItem item) {
    if (!FRowsKnown) ListRows();
    const TNode* node = Find(item);
    return node ? node->Row : -1;
}

void HTreeNodes::ListRows() {
    for (const HTreeItem item : FRows) FNodes[item].Row = -1;
    FRows.clear();
    for (std::uint32_t at = FNodes[0].First; at != 0;) {
        TNode& node = FNodes[at];
        node.Row = static_cast<int>(FRows.size());
        FRows.push_back(at);
        if (node.Expanded && node.First) {
            at = node.First;
            continue;
        }
        while (at != 0 && FNodes[at].Next == 0) at = FNodes[at].Parent;
        at = FNodes[at].Next;
    }
    FRowsKnown = true;
}

}  // namespace rux
