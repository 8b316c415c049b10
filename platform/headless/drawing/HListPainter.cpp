// List boxes, combo boxes, grids, headers, status bars.
#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/drawing/HControlPainter.h"
#include "platform/headless/drawing/HFramePainter.h"
#include "platform/headless/toolkit/HListBoxes.h"

namespace rux {

namespace {

constexpr int Row = HCanvas::LineHeight;

void PaintItem(HCustomListBox& list, HCanvas& canvas, int index, TRect place) {
    auto* checks = dynamic_cast<HCheckListBox*>(&list);
    if (checks) {
        const int top = (place.Top + place.Bottom - HMarkSize) / 2;
        PaintCheckMark(canvas, {place.Left + 1, top, place.Left + 1 + HMarkSize, top + HMarkSize},
                       checks->State(index), list.IsEnabled());
        place.Left += HCheckWidth;
    }
    const bool chosen = list.Selected(index);
    if (chosen) canvas.Fill(place, clHighlight);
    canvas.Text({place.Left + 2, place.Top, place.Right, place.Bottom}, list.Items().Get(index),
                chosen ? clHighlightText : LookInk(list));
    if (index == list.ItemIndex() && list.Focused()) canvas.Frame(place, clGrayText);
}

void PaintListBox(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookColor(control, clWindow));
    auto* list = dynamic_cast<HCustomListBox*>(&control);
    if (!list) return;
    for (int i = list->TopIndex(); i < list->Items().Count(); ++i) {
        const TRect place = list->ItemRect(i);
        if (place.Top >= room.Bottom || place.Left >= room.Right) return;
        PaintItem(*list, canvas, i, place);
    }
}

void PaintComboBox(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookColor(control, clWindow));
    canvas.Edge(room, HEdge::Sunken);
    const int edge = HClientEdge;
    const int arrow = room.Right - edge - HComboArrow;
    canvas.Text({edge + 2, 0, arrow, room.Bottom}, control.TextRef(), LookInk(control));
    PaintArrowButton(canvas, {arrow, edge, room.Right - edge, room.Bottom - edge}, HArrow::Down);
}

}  // namespace

void PaintSections(const HObject* part, std::string_view text, HCanvas& canvas, const TRect& bar, TColor ink,
                   HEdge edge) {
    canvas.Fill(bar, clBtnFace);
    const auto* sections = dynamic_cast<const HCollection*>(part);
    int left = bar.Left;
    if (!sections) return;
    for (const HObject* section : sections->Items()) {
        if (left >= bar.Right) return;
        const HObject* title = LookPart(*section, "Title");
        std::string caption = LookName(title ? *title : *section, title ? "Caption" : text);
        if (caption.empty()) caption = LookName(*section, "FieldName");
        const bool last = section == sections->Items().back() && edge == HEdge::Sunken;
        const int right = last ? bar.Right : left + std::max(LookInt(*section, "Width", 64), 1);
        canvas.Edge({left, bar.Top, right, bar.Bottom}, edge);
        canvas.Text({left + 4, bar.Top, right - 3, bar.Bottom}, caption, ink);
        left = right;
    }
}

namespace {

void PaintStatusBar(HControl& control, HCanvas& canvas, const TRect& room) {
    const TRect bar{0, 2, room.Right, room.Bottom};
    canvas.Fill(room, clBtnFace);
    const HObject* panels = LookPart(control, "Panels");
    if (LookInt(control, "SimplePanel") == 0 && panels) {
        PaintSections(panels, "Text", canvas, bar, clWindowText, HEdge::Sunken);
        return;
    }
    canvas.Edge(bar, HEdge::Sunken);
    canvas.Text({4, 2, room.Right, room.Bottom}, LookName(control, "SimpleText"), clWindowText);
}

void PaintHeader(HControl& control, HCanvas& canvas, const TRect& room) {
    PaintSections(LookPart(control, "Sections"), "Text", canvas, room, LookInk(control), HEdge::Raised);
}

void PaintDataGrid(HControl& control, HCanvas& canvas, const TRect& room) {
    constexpr int indicator = 12;
    canvas.Fill(room, LookColor(control, clWindow));
    canvas.Fill({0, 0, indicator, 2 * Row}, clBtnFace);
    PaintSections(LookPart(control, "Columns"), "FieldName", canvas, {indicator, 0, room.Right, Row + 2},
                  LookInk(control), HEdge::Raised);
}

void PaintGrid(HControl& control, HCanvas& canvas, const TRect& room) {
    // Whatever a form file says, products stay numbers.
    const auto size = [&](const char* name, int usual) {
        return std::clamp(LookInt(control, name, usual), 1, 4096) + 1;
    };
    const auto count = [&](const char* name, int usual) {
        return std::clamp(LookInt(control, name, usual), 0, 1 << 16);
    };
    const int width = size("DefaultColWidth", 64), height = size("DefaultRowHeight", 24);
    const TRect cells{0, 0, std::min(room.Right, count("ColCount", 5) * width),
                      std::min(room.Bottom, count("RowCount", 5) * height)};
    canvas.Fill(room, LookColor(control, clWindow));
    canvas.Fill({0, 0, cells.Right, count("FixedRows", 1) * height}, clBtnFace);
    canvas.Fill({0, 0, count("FixedCols", 1) * width, cells.Bottom}, clBtnFace);
    for (int x = width; x <= cells.Right; x += width) canvas.Fill({x - 1, 0, x, cells.Bottom}, clBtnShadow);
    for (int y = height; y <= cells.Bottom; y += height) canvas.Fill({0, y - 1, cells.Right, y}, clBtnShadow);
}

}  // namespace

std::span<const HPainter> ListPainters() {
    static constexpr HPainter rows[] = {
        {"TCustomListBox", PaintListBox},     {"TCustomCombo", PaintComboBox},
        {"TCustomStatusBar", PaintStatusBar}, {"TCustomHeaderControl", PaintHeader},
        {"TCustomDBGrid", PaintDataGrid},     {"TCustomGrid", PaintGrid},
        {"TDBLookupComboBox", PaintComboBox},
    };
    return rows;
}

}  // namespace rux
