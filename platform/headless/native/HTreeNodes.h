// The nodes of a tree view: their order, which of them are expanded, and the rows that shows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/Types.h"

namespace rux {

/// Where TVM_INSERTITEMA puts a node, besides numbers of nodes.
inline constexpr HTreeItem TVI_ROOT = ~HTreeItem{0xFFFF}, TVI_FIRST = TVI_ROOT + 1, TVI_LAST = TVI_ROOT + 2;

/// A node's number is its place in the table, from 1. Nothing recurses: trees may be deep as they are large.
class HTreeNodes {
 public:
    static constexpr std::size_t Limit = 1'000'000;

    struct TNode {
        std::string Text;
        LParam Param = 0;
        std::uint32_t Parent = 0, First = 0, Last = 0, Next = 0;
        /// -1: it is not shown, as one of those above it is collapsed.
        int Row = -1;
        /// Of the nodes above it; those at the root have 0.
        int Depth = -1;
        bool Expanded = false;
    };

    HTreeNodes() : FNodes(1) { FNodes[0].Expanded = true; }
    /// 0 when the parent is no node or there are too many. `after`: one of the parent's nodes or TVI_FIRST;
    /// else the new one is the last.
    HTreeItem Insert(HTreeItem parent, HTreeItem after);
    /// nil for a number that is none.
    TNode* Find(HTreeItem item) { return item > 0 && item < FNodes.size() ? &FNodes[item] : nullptr; }
    std::size_t Count() const { return FNodes.size() - 1; }
    HTreeItem First() const { return FNodes[0].First; }
    /// False for a node without others below it.
    bool SetExpanded(HTreeItem item, bool expanded);
    /// Expands all that stand above it.
    void Reveal(HTreeItem item);
    bool IsBelow(HTreeItem item, HTreeItem above) const;
    /// The nodes that are shown, from the top.
    const std::vector<HTreeItem>& Rows();
    /// -1 for one that is not shown.
    int RowOf(HTreeItem item);

 private:
    void ListRows();

    /// The first stands for the root above all nodes.
    std::vector<TNode> FNodes;
    std::vector<HTreeItem> FRows;
    bool FRowsKnown = true;
};

}  // namespace rux
