// Trees.
#include "platform/headless/drawing/HControlPainter.h"
#include "platform/headless/drawing/HFramePainter.h"

namespace rux {

namespace {

void PaintTree(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookColor(control, clWindow));
}

}  // namespace

std::span<const HPainter> TreePainters() {
    static constexpr HPainter rows[] = {
        {"TCustomTreeView", PaintTree},
    };
    return rows;
}

}  // namespace rux
