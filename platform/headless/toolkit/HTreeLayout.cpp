#include "platform/headless/toolkit/HTreeLayout.h"

#include <algorithm>

#include "platform/headless/drawing/HControlPainter.h"
#include "platform/headless/toolkit/HTreeView.h"

namespace rux {

namespace {

constexpr int RowHeight = HCanvas::LineHeight, CheckWidth = 16, TextMargin = 4;
/// Of one level; a form file may ask for more.
constexpr int IndentLimit = 256;

}  // namespace

int HTreeLayout::PageRows() {
    return std::max(1, FTree.ClientRect().Height() / RowHeight);
}

int HTreeLayout::TopRow() {
    const int last = static_cast<int>(FTree.Nodes().Rows().size()) - PageRows();
    return std::clamp(FTop, 0, std::max(0, last));
}

HTreePlaces HTreeLayout::PlacesOf(HTreeNode& node) {
    const int indent = std::clamp(LookInt(FTree, "Indent", 19), 0, IndentLimit);
    const int top = (FTree.Nodes().RowOf(node) - TopRow()) * RowHeight, bottom = top + RowHeight;
    const bool atRoot = LookInt(FTree, "ShowRoot", 1) != 0;
    const int end = (node.Level() + (atRoot ? 1 : 0)) * indent - FLeft;
    const int left = end + (FTree.HasCheckBoxes() ? CheckWidth : 0);
    HTreePlaces places;
    places.Row = {0, top, FTree.ClientRect().Right, bottom};
    places.Button = {end - indent, top, end, bottom};
    places.Check = {end, top, left, bottom};
    places.Text = {left, top, left + HCanvas::TextWidth(node.TextRef()) + TextMargin, bottom};
    return places;
}

HTreeNode* HTreeLayout::NodeAt(TPoint point) {
    if (point.Y < 0 || point.Y >= FTree.ClientRect().Bottom) return nullptr;
    const auto& rows = FTree.Nodes().Rows();
    const auto row = static_cast<std::size_t>(TopRow() + point.Y / RowHeight);
    return row < rows.size() ? rows[row] : nullptr;
}

void HTreeLayout::ScrollTo(HTreeNode& node) {
    const int row = FTree.Nodes().RowOf(node), width = FTree.ClientRect().Width();
    if (row < 0) return;
    FTop = std::clamp(TopRow(), row - PageRows() + 1, row);
    const HTreePlaces places = PlacesOf(node);
    const int start = places.Button.Left + FLeft, end = places.Text.Right + FLeft;
    const bool seen = start >= FLeft && end <= FLeft + width;
    if (!seen) FLeft = std::clamp(end - width, 0, std::max(start, 0));
}

}  // namespace rux
