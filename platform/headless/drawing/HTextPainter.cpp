// Labels, static texts, edits, memos, date pickers.
#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/drawing/HControlPainter.h"
#include "platform/headless/drawing/HFramePainter.h"
#include "platform/headless/toolkit/HEdits.h"
#include "rtl/CodePage.h"
#include "rtl/Dates.h"

namespace rux {

namespace {

constexpr int ArrowWidth = 16, LabelLine = 13;

void PaintCaption(HControl& control, HCanvas& canvas, const TRect& room) {
    const std::string caption = LookCaption(control);
    const bool centred = LookName(control, "Layout") == "tlCenter";
    const bool wrap = LookInt(control, "WordWrap") != 0 || caption.find('\n') != caption.npos;
    if (wrap) {
        canvas.Lines(room, caption, LookInk(control), LookInt(control, "WordWrap") != 0);
        return;
    }
    const TRect line{0, 0, room.Right, centred ? room.Bottom : std::min(room.Bottom, LabelLine)};
    canvas.Text(line, caption, LookInk(control), LookAlignment(control, "Alignment", HTextAlign::Left));
}

void PaintLabel(HControl& control, HCanvas& canvas, const TRect& room) {
    const HControl* parent = control.ParentControl();
    // The ground of its parent is there already.
    if (LookInt(control, "Transparent") == 0 && parent && LookGround(control) != LookGround(*parent))
        canvas.Fill(room, LookGround(control));
    PaintCaption(control, canvas, room);
}

void PaintStaticText(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookGround(control));
    const std::string border = LookName(control, "BorderStyle");
    if (border == "sbsSunken") canvas.Bevel(room, false);
    if (border == "sbsSingle") canvas.Frame(room, clWindowText);
    const int edge = border.empty() || border == "sbsNone" ? 0 : 1;
    HCanvas inside = canvas.Part({edge, edge, room.Right - edge, room.Bottom - edge});
    PaintCaption(control, inside, {0, 0, room.Right - 2 * edge, room.Bottom - 2 * edge});
}

std::string ShownText(const HControl& control) {
    if (LookInt(control, "PasswordChar") == 0) return control.TextRef();
    std::string stars;
    for (TTextCursor cursor(control.TextRef()); !cursor.AtEnd(); cursor.Next()) stars += '*';
    return stars;
}

void PaintEdit(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookColor(control, clWindow));
    canvas.Text({2, 0, room.Right - 1, room.Bottom}, ShownText(control), LookInk(control),
                LookAlignment(control, "Alignment", HTextAlign::Left));
}

void PaintSpinEdit(HControl& control, HCanvas& canvas, const TRect& room) {
    const TRect text{0, 0, std::max(room.Right - ArrowWidth, 0), room.Bottom};
    canvas.Fill(room, clWindow);
    PaintEdit(control, canvas, text);
    PaintArrowButton(canvas, {text.Right, 0, room.Right, room.Bottom / 2}, HArrow::Up);
    PaintArrowButton(canvas, {text.Right, room.Bottom / 2, room.Right, room.Bottom}, HArrow::Down);
}

void PaintMemo(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookColor(control, clWindow));
    TRect text{2, 1, room.Right - 1, room.Bottom};
    const std::string bars = LookName(control, "ScrollBars");
    if (bars == "ssVertical" || bars == "ssBoth") {
        text.Right -= ArrowWidth;
        const int left = room.Right - ArrowWidth;
        canvas.Fill({left, 0, room.Right, room.Bottom}, clLightFace);
        PaintArrowButton(canvas, {left, 0, room.Right, ArrowWidth}, HArrow::Up);
        PaintArrowButton(canvas, {left, room.Bottom - ArrowWidth, room.Right, room.Bottom}, HArrow::Down);
    }
    canvas.Lines(text, control.TextRef(), LookInk(control), LookInt(control, "WordWrap", 1) != 0);
}

void PaintDatePicker(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, clWindow);
    canvas.Edge(room, HEdge::Sunken);
    auto* picker = dynamic_cast<HDateTimePicker*>(&control);
    const std::string date = picker ? DateToStr(picker->Date()) : control.TextRef();
    canvas.Text({HClientEdge + 2, 0, room.Right - ArrowWidth, room.Bottom}, date, LookInk(control));
    PaintArrowButton(canvas,
                     {room.Right - HClientEdge - ArrowWidth, HClientEdge, room.Right - HClientEdge,
                      room.Bottom - HClientEdge},
                     HArrow::Down);
}

}  // namespace

std::span<const HPainter> TextPainters() {
    static constexpr HPainter rows[] = {
        {"TCustomLabel", PaintLabel}, {"TCustomStaticText", PaintStaticText},
        {"TCustomEdit", PaintEdit},   {"TSpinEdit", PaintSpinEdit},
        {"TCustomMemo", PaintMemo},   {"TDateTimePicker", PaintDatePicker},
        {"THotKey", PaintEdit},
    };
    return rows;
}

}  // namespace rux
