// Where the nodes of a tree stand in its client area.
#pragma once

#include "platform/Types.h"

namespace rux {

class HCustomTreeView;
class HTreeNode;

/// In client coordinates; Check is empty in a tree without check boxes.
struct HTreePlaces {
    TRect Row, Button, Check, Text;
};

/// Rows of one height from the top row down. The tree scrolls by whole rows, and sideways only as far as the
/// node needs that is to be seen.
class HTreeLayout {
 public:
    explicit HTreeLayout(HCustomTreeView& tree) : FTree(tree) {}
    /// Of a node that is shown; it may lie outside the client area.
    HTreePlaces PlacesOf(HTreeNode& node);
    /// The node in whose row the point is; nil for none.
    HTreeNode* NodeAt(TPoint point);
    /// Nothing for a hidden node.
    void ScrollTo(HTreeNode& node);
    int TopRow();
    /// Whole rows that there is room for, at least one.
    int PageRows();

 private:
    HCustomTreeView& FTree;
    int FTop = 0, FLeft = 0;
};

}  // namespace rux
