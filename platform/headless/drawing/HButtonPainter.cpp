// Buttons of all kinds, check boxes, radio buttons.
#include <algorithm>

#include "platform/headless/drawing/HControlPainter.h"
#include "platform/headless/toolkit/HButtons.h"
#include "platform/headless/toolkit/HToolBars.h"

namespace rux {

void PaintCheckMark(HCanvas& canvas, const TRect& box, HCheckBoxState state, bool enabled) {
    const bool plain = enabled && state != HCheckBoxState::cbGrayed;
    canvas.Fill(box, plain ? clWindow : clBtnFace);
    canvas.Edge(box, HEdge::Sunken);
    if (state == HCheckBoxState::cbUnchecked) return;
    // Down for three pixels, up for five; three pixels thick.
    static constexpr int Tick[] = {5, 6, 7, 6, 5, 4, 3};
    for (int i = 0; i < 7; ++i)
        canvas.Fill({box.Left + 3 + i, box.Top + Tick[i], box.Left + 4 + i, box.Top + Tick[i] + 3},
                    plain ? clWindowText : clGrayText);
}

namespace {

constexpr int MarkSize = HMarkSize, IconSize = 16, Gap = 4;

void PaintButton(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, clBtnFace);
    TRect face = room;
    const auto* button = dynamic_cast<const HButton*>(&control);
    if (button && button->Default()) {
        canvas.Frame(room, clWindowText);
        face = {1, 1, room.Right - 1, room.Bottom - 1};
    }
    canvas.Edge(face, HEdge::Raised);
    canvas.Text({2, 0, room.Right - 2, room.Bottom}, LookCaption(control), LookInk(control),
                HTextAlign::Center);
}

/// Lets a flat face show what lies below it.
void PaintFace(HControl& control, HCanvas& canvas, const TRect& room, bool down, bool flat, bool image) {
    if (down || !flat) canvas.Fill(room, down ? clLightFace : clBtnFace);
    if (down || !flat) canvas.Edge(room, down ? HEdge::Sunken : HEdge::Raised);
    const std::string caption = LookCaption(control);
    TRect text = room;
    if (image) {
        const int width = caption.empty() ? IconSize : IconSize + Gap + HCanvas::TextWidth(caption);
        const int left = std::max(2, (room.Right - width) / 2), top = (room.Bottom - IconSize) / 2;
        PaintImage(canvas, {left, top, left + IconSize, top + IconSize});
        text.Left = left + IconSize + Gap;
    }
    canvas.Text(text, caption, LookInk(control), image ? HTextAlign::Left : HTextAlign::Center);
}

void PaintSpeedButton(HControl& control, HCanvas& canvas, const TRect& room) {
    const auto* button = dynamic_cast<const HSpeedButton*>(&control);
    const HObject* glyph = LookPart(control, "Glyph");
    const bool image = glyph && glyph->Blob(InternName("Data"));
    PaintFace(control, canvas, room, button && button->Down(), LookInt(control, "Flat") != 0, image);
}

void PaintToolButton(HControl& control, HCanvas& canvas, const TRect& room) {
    const auto* button = dynamic_cast<const HToolButton*>(&control);
    const HControl* bar = control.ParentControl();
    if (!button || !bar) return;
    if (button->Style() == HToolButtonStyle::tbsDivider ||
        button->Style() == HToolButtonStyle::tbsSeparator) {
        const int x = room.Right / 2;
        canvas.Edge({x - 1, 2, x + 1, room.Bottom - 2}, HEdge::Etched);
        return;
    }
    const bool image = LookInt(control, "ImageIndex", -1) >= 0;
    PaintFace(control, canvas, room, button->Down(), LookInt(*bar, "Flat", 1) != 0, image);
}

/// Where the mark stands; the caption stands beside it, on the side that Alignment says.
TRect PaintMarkedCaption(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookGround(control));
    const int top = (room.Bottom - MarkSize) / 2;
    const bool right = LookName(control, "Alignment") == "taLeftJustify";
    const int left = right ? room.Right - MarkSize : 0;
    const TRect text{right ? 0 : MarkSize + Gap, 0, right ? left - Gap : room.Right, room.Bottom};
    canvas.Text(text, LookCaption(control), LookInk(control));
    return {left, top, left + MarkSize, top + MarkSize};
}

void PaintCheckBox(HControl& control, HCanvas& canvas, const TRect& room) {
    const TRect box = PaintMarkedCaption(control, canvas, room);
    const auto* check = dynamic_cast<const HCustomCheckBox*>(&control);
    const HCheckBoxState state = check ? check->State() : HCheckBoxState::cbUnchecked;
    PaintCheckMark(canvas, box, state, control.IsEnabled());
}

void PaintRadioButton(HControl& control, HCanvas& canvas, const TRect& room) {
    const TRect box = PaintMarkedCaption(control, canvas, room);
    // Half the width of the disk, row by row.
    static constexpr int Half[] = {2, 4, 5, 5, 6, 6, 6, 6, 5, 5, 4, 2};
    const int x = box.Left + 6;
    for (int i = 0; i < 12; ++i) {
        const int y = box.Top + i, half = Half[i];
        canvas.Fill({x - half, y, x + half, y + 1}, i < 6 ? clBtnShadow : clBtnHighlight);
        if (i == 0 || i == 11) continue;
        canvas.Fill({x - half + 1, y, x + half - 1, y + 1}, control.IsEnabled() ? clWindow : clBtnFace);
        canvas.Pixel({x - half, y}, clDarkEdge);
    }
    const auto* radio = dynamic_cast<const HRadioButton*>(&control);
    if (!radio || !radio->IsChecked()) return;
    const TColor ink = control.IsEnabled() ? clWindowText : clGrayText;
    canvas.Fill({x - 1, box.Top + 4, x + 1, box.Top + 8}, ink);
    canvas.Fill({x - 2, box.Top + 5, x + 2, box.Top + 7}, ink);
}

}  // namespace

std::span<const HPainter> ButtonPainters() {
    static constexpr HPainter rows[] = {
        {"TButtonControl", PaintButton},    {"TSpeedButton", PaintSpeedButton},
        {"TToolButton", PaintToolButton},   {"TCustomCheckBox", PaintCheckBox},
        {"TRadioButton", PaintRadioButton},
    };
    return rows;
}

}  // namespace rux
