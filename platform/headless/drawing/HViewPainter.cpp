// List views.
#include "platform/headless/drawing/HControlPainter.h"
#include "platform/headless/drawing/HFramePainter.h"

namespace rux {

namespace {

constexpr int Row = HCanvas::LineHeight;

void PaintListView(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookColor(control, clWindow));
    if (LookName(control, "ViewStyle") == "vsReport" && LookInt(control, "ShowColumnHeaders", 1) != 0)
        PaintSections(LookPart(control, "Columns"), "Caption", canvas, {0, 0, room.Right, Row + 2},
                      LookInk(control), HEdge::Raised);
}

}  // namespace

std::span<const HPainter> ViewPainters() {
    static constexpr HPainter rows[] = {
        {"TCustomListView", PaintListView},
    };
    return rows;
}

}  // namespace rux
