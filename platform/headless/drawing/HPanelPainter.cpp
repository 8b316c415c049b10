// What holds other controls, lines and shapes between them, bars that show a value, and controls that nobody
// knows.
#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/drawing/HControlPainter.h"
#include "platform/headless/drawing/HFramePainter.h"
#include "platform/headless/toolkit/HFlatPages.h"
#include "platform/headless/toolkit/HPages.h"

namespace rux {

namespace {

constexpr int TextHeight = 12;

void PaintGround(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookGround(control));
}

void PaintPanel(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookColor(control, clBtnFace));
    TRect inner = room;
    for (const char* side : {"BevelOuter", "BevelInner"}) {
        const std::string bevel = LookName(control, side);
        if (bevel != "bvRaised" && bevel != "bvLowered") continue;
        canvas.Bevel(inner, bevel == "bvRaised");
        inner = {inner.Left + 1, inner.Top + 1, inner.Right - 1, inner.Bottom - 1};
    }
    canvas.Text({inner.Left + 2, inner.Top, inner.Right - 2, inner.Bottom}, LookCaption(control),
                LookInk(control), LookAlignment(control, "Alignment", HTextAlign::Center));
}

void PaintGroupBox(HControl& control, HCanvas& canvas, const TRect& room) {
    const TColor ground = LookGround(control);
    const std::string caption = LookCaption(control);
    canvas.Fill(room, ground);
    canvas.Edge({0, TextHeight / 2, room.Right, room.Bottom}, HEdge::Etched);
    if (caption.empty()) return;
    const TRect text{8, 0, std::min(12 + HCanvas::TextWidth(caption), room.Right - 8), TextHeight + 1};
    canvas.Fill(text, ground);
    canvas.Text({text.Left + 2, 0, text.Right, text.Bottom}, caption, LookInk(control));
}

/// The tabs of a row, the chosen one raised; `place` is the row's.
void PaintTabs(HCanvas& canvas, const TRect& place, const HTabRow& row, int chosen, TColor ink) {
    for (int i = 0; i < row.Count() && row.Rect(i).Left < place.Right; ++i) {
        const TRect rect = row.Rect(i);
        const bool front = i == chosen;
        const int raise = front ? HTabRaise : 0;
        const TRect tab{rect.Left - raise, rect.Top - raise, rect.Right + raise, place.Bottom};
        canvas.Clipped(place).Fill(tab, clBtnFace);
        // Its foot lies below the row, so that the tab and the page are one.
        canvas.Clipped({place.Left, place.Top, place.Right, place.Bottom + (front ? 0 : -HTabRaise)})
            .Edge({tab.Left, tab.Top, tab.Right, tab.Bottom + 4}, HEdge::Raised);
        canvas.Text({rect.Left, place.Top + 1, rect.Right, place.Bottom}, row.Caption(i), ink,
                    HTextAlign::Center);
    }
}

/// The page's edge, then the tabs over it.
void PaintTabbed(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookGround(control));
    auto* tabs = dynamic_cast<HCustomTabControl*>(&control);
    const auto* hidden = dynamic_cast<HPageControl*>(&control);
    if (!tabs || tabs->Row().Count() == 0 || (hidden && !hidden->HasTabs())) return;
    const int top = HTabHeight - HTabBorder;
    canvas.Edge({0, top, room.Right, room.Bottom}, HEdge::Raised);
    PaintTabs(canvas, {0, 0, room.Right, top + HTabRaise}, tabs->Row(), tabs->TabIndex(), LookInk(control));
}

void PaintTabSet(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, clBtnFace);
    if (auto* tabs = dynamic_cast<HTabSet*>(&control))
        PaintTabs(canvas, room, tabs->Row(), tabs->TabIndex(), LookInk(control));
    if (auto* tabs = dynamic_cast<HTBXImageTabSet*>(&control))
        PaintTabs(canvas, room, tabs->Row(), tabs->TabIndex(), LookInk(control));
}

void PaintPanels(HControl& control, HCanvas& canvas, const TRect& room) {
    PaintSections(LookPart(control, "Panels"), "Caption", canvas, room, clWindowText, HEdge::Sunken);
}

void PaintBevel(HControl& control, HCanvas& canvas, const TRect& room) {
    const std::string shape = LookName(control, "Shape");
    if (shape == "bsTopLine") canvas.Edge({0, 0, room.Right, 2}, HEdge::Etched);
    if (shape == "bsBottomLine") canvas.Edge({0, room.Bottom - 2, room.Right, room.Bottom}, HEdge::Etched);
    if (shape == "bsLeftLine") canvas.Edge({0, 0, 2, room.Bottom}, HEdge::Etched);
    if (shape == "bsRightLine") canvas.Edge({room.Right - 2, 0, room.Right, room.Bottom}, HEdge::Etched);
    if (shape == "bsBox") canvas.Bevel(room, LookName(control, "Style") == "bsRaised");
    if (shape == "bsFrame" || shape.empty()) canvas.Edge(room, HEdge::Etched);
}

void PaintShape(HControl& control, HCanvas& canvas, const TRect& room) {
    const auto* brush = LookPart(control, "Brush");
    const auto* pen = LookPart(control, "Pen");
    canvas.Fill(room, brush ? LookColor(*brush, clWindow) : clWindow);
    canvas.Frame(room, pen ? LookColor(*pen, clWindowText) : clWindowText);
}

void PaintPicture(HControl&, HCanvas& canvas, const TRect& room) {
    PaintImage(canvas, room);
}

void PaintSplitter(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookGround(control));
    canvas.Bevel(room, true);
}

/// Where a position stands between its bounds, in pixels of `length`.
int Share(const HControl& control, const char* low, const char* high, int fallback, const char* position,
          int length) {
    const int first = LookInt(control, low), last = std::max(LookInt(control, high, fallback), first + 1);
    const int at = std::clamp(LookInt(control, position), first, last);
    return static_cast<int>(std::int64_t{length} * (at - first) / (last - first));
}

void PaintBar(HCanvas& canvas, const TRect& room, TColor ground, int share) {
    canvas.Fill(room, ground);
    canvas.Fill({2, 2, 2 + share, room.Bottom - 2}, clHighlight);
    canvas.Edge(room, HEdge::Sunken);
}

void PaintProgress(HControl& control, HCanvas& canvas, const TRect& room) {
    PaintBar(canvas, room, clBtnFace, Share(control, "Min", "Max", 100, "Position", room.Right - 4));
}

void PaintGauge(HControl& control, HCanvas& canvas, const TRect& room) {
    PaintBar(canvas, room, clWindow, Share(control, "MinValue", "MaxValue", 100, "Progress", room.Right - 4));
}

void PaintTrackBar(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookGround(control));
    const int y = room.Bottom / 2, x = 8 + Share(control, "Min", "Max", 10, "Position", room.Right - 16);
    canvas.Edge({8, y - 2, room.Right - 8, y + 2}, HEdge::Sunken);
    const TRect thumb{x - 5, y - 10, x + 6, y + 10};
    canvas.Fill(thumb, clBtnFace);
    canvas.Edge(thumb, HEdge::Raised);
}

/// Two arrows at the ends of the longer side.
void PaintArrows(HControl&, HCanvas& canvas, const TRect& room) {
    const bool wide = room.Right > room.Bottom;
    const int length = std::min({wide ? room.Bottom : room.Right, (wide ? room.Right : room.Bottom) / 2, 20});
    canvas.Fill(room, clLightFace);
    PaintArrowButton(canvas, wide ? TRect{0, 0, length, room.Bottom} : TRect{0, 0, room.Right, length},
                     wide ? HArrow::Left : HArrow::Up);
    PaintArrowButton(canvas,
                     wide ? TRect{room.Right - length, 0, room.Right, room.Bottom}
                          : TRect{0, room.Bottom - length, room.Right, room.Bottom},
                     wide ? HArrow::Right : HArrow::Down);
}

void PaintUnknown(HControl& control, HCanvas& canvas, const TRect& room) {
    if (control.IsWindowed()) canvas.Fill(room, LookGround(control));
    canvas.Frame(room, clBtnShadow);
    canvas.Text({4, 1, room.Right - 2, std::min(room.Bottom, 24)}, LookCaption(control), LookInk(control));
}

void PaintNothing(HControl&, HCanvas&, const TRect&) {}

}  // namespace

std::span<const HPainter> PanelPainters() {
    static constexpr HPainter rows[] = {
        {"TControl", PaintUnknown},
        {"TScrollingWinControl", PaintGround},
        {"TTabSheet", PaintGround},
        {"TFlatTabSheet", PaintGround},
        {"TPage", PaintGround},
        {"TTabPage", PaintGround},
        {"TNotebook", PaintGround},
        {"TToolWindow", PaintGround},
        {"TCustomControlBar", PaintGround},
        {"TPageScroller", PaintGround},
        {"TCustomPanel", PaintPanel},
        {"TCustomGroupBox", PaintGroupBox},
        {"TCustomTabControl", PaintTabbed},
        {"TFlatPageControl", PaintTabbed},
        {"TTabSet", PaintTabSet},
        {"TTBXImageTabSet", PaintTabSet},
        {"TTBXStatusBar", PaintPanels},
        {"TBevel", PaintBevel},
        {"TShape", PaintShape},
        {"TImage", PaintPicture},
        {"TSplitter", PaintSplitter},
        {"TPaintBox", PaintNothing},
        {"TProgressBar", PaintProgress},
        {"TGauge", PaintGauge},
        {"TTrackBar", PaintTrackBar},
        {"TScrollBar", PaintArrows},
        {"TCustomUpDown", PaintArrows},
        {"TSpinButton", PaintArrows},
    };
    return rows;
}

}  // namespace rux
