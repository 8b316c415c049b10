// Trees.
#include <algorithm>

#include "platform/headless/drawing/HControlPainter.h"
#include "platform/headless/drawing/HFramePainter.h"
#include "platform/headless/toolkit/HTreeView.h"

namespace rux {

namespace {

constexpr int BoxSize = 9, CheckSize = 13;

/// A square in the middle of a place.
TRect BoxIn(const TRect& place, int size) {
    const int left = place.Left + (place.Width() - size) / 2, top = place.Top + (place.Height() - size) / 2;
    return {left, top, left + size, top + size};
}

void PaintButton(HCanvas& canvas, const TRect& place, bool expanded) {
    const TRect box = BoxIn(place, BoxSize);
    const int x = box.Left, y = box.Top;
    canvas.Frame(box, clBtnShadow);
    canvas.Fill({x + 2, y + 4, x + 7, y + 5}, clWindowText);
    if (!expanded) canvas.Fill({x + 4, y + 2, x + 5, y + 7}, clWindowText);
}

void PaintCheck(HCanvas& canvas, const TRect& place, int state) {
    const TRect box = BoxIn(place, CheckSize);
    canvas.Frame(box, clBtnShadow);
    if (state == 0) return;
    canvas.Fill({box.Left + 3, box.Top + 3, box.Right - 3, box.Bottom - 3},
                state == 1 ? clWindowText : clBtnShadow);
}

void PaintNode(HCustomTreeView& tree, HTreeNode& node, HCanvas& canvas) {
    const HTreePlaces places = tree.Layout().PlacesOf(node);
    const bool chosen = &node == tree.SelectedNode();
    if (chosen) canvas.Fill(places.Text, clHighlight);
    TRect text = places.Text;
    text.Left += 2;
    canvas.Text(text, node.TextRef(), chosen ? clHighlightText : LookInk(tree));
    if (node.HasChildren() && LookInt(tree, "ShowButtons", 1) != 0)
        PaintButton(canvas, places.Button, node.Expanded());
    auto* rich = dynamic_cast<HRichTreeNode*>(&node);
    if (rich && tree.HasCheckBoxes()) PaintCheck(canvas, places.Check, rich->CheckState());
}

void PaintTree(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookColor(control, clWindow));
    auto* tree = dynamic_cast<HCustomTreeView*>(&control);
    if (!tree) return;
    const std::vector<HTreeNode*>& rows = tree->Nodes().Rows();
    const auto top = static_cast<std::size_t>(tree->Layout().TopRow());
    const auto end = std::min(rows.size(), top + static_cast<std::size_t>(tree->Layout().PageRows()) + 1);
    for (std::size_t row = top; row < end; ++row) PaintNode(*tree, *rows[row], canvas);
}

}  // namespace

std::span<const HPainter> TreePainters() {
    static constexpr HPainter rows[] = {
        {"TCustomTreeView", PaintTree},
    };
    return rows;
}

}  // namespace rux
