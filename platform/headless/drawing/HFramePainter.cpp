#include "platform/headless/drawing/HFramePainter.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HMenus.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {

namespace {

constexpr int MenuGap = 12;

/// The text that the target keeps, else the window's own. No message is sent: drawing runs no foreign code.
const std::string& TextOf(const HWindow& window) {
    const auto* control = dynamic_cast<const HControl*>(window.Target);
    return control ? control->TextRef() : window.Text;
}

/// Four strips around what the insets leave.
void PaintBorder(HCanvas& canvas, const TRect& all, const HInsets& insets) {
    const TRect inner{insets.Left, insets.Top, all.Right - insets.Right, all.Bottom - insets.Bottom};
    canvas.Fill({0, 0, all.Right, inner.Top}, clBtnFace);
    canvas.Fill({0, inner.Bottom, all.Right, all.Bottom}, clBtnFace);
    canvas.Fill({0, inner.Top, inner.Left, inner.Bottom}, clBtnFace);
    canvas.Fill({inner.Right, inner.Top, all.Right, inner.Bottom}, clBtnFace);
}

void PaintCloseBox(HCanvas& canvas, const TRect& place) {
    canvas.Fill(place, clBtnFace);
    canvas.Edge(place, HEdge::Raised);
    const int side = std::min(place.Width(), place.Height()) - 8;
    for (int i = 0; i < side; ++i) {
        const int x = place.Left + (place.Width() - side) / 2 + i;
        canvas.Fill({x, place.Top + 3 + i, x + 2, place.Top + 4 + i}, clWindowText);
        canvas.Fill({x, place.Top + 2 + side - i, x + 2, place.Top + 3 + side - i}, clWindowText);
    }
}

void PaintCaption(HCanvas& canvas, const TRect& bar, const HWindow& window, bool active) {
    canvas.Fill(bar, active ? clActiveCaption : clInactiveCaption);
    int left = bar.Left + 3;
    if (bar.Height() >= HCaptionHeight - 1) {
        const TRect icon{left, bar.Top + 2, left + 14, bar.Top + 16};
        canvas.Fill(icon, clWindow);
        canvas.Fill({icon.Left, icon.Top, icon.Right, icon.Top + 4}, clBackground);
        canvas.Frame(icon, clBtnShadow);
        left = icon.Right + 4;
    }
    const TRect box{bar.Right - 18, bar.Top + 2, bar.Right - 2, bar.Bottom - 2};
    const TColor color = active ? clHighlightText : clBtnFace;
    canvas.Text({left, bar.Top, box.Left - 2, bar.Bottom}, TextOf(window), color);
    PaintCloseBox(canvas, box);
}

void PaintMenuBar(HCanvas& canvas, const TRect& bar, const HWindow& window) {
    canvas.Fill(bar, clBtnFace);
    const auto* form = dynamic_cast<const HCustomForm*>(window.Target);
    auto* menu = form ? dynamic_cast<HMenu*>(form->Menu()) : nullptr;
    if (!menu) return;
    int left = bar.Left;
    for (HMenuItem* item : menu->Root().ItemList()) {
        if (!item->Visible()) continue;
        if (left >= bar.Right) return;
        const std::string caption = WithoutAccelerator(item->Caption());
        const int width = HCanvas::TextWidth(caption) + MenuGap;
        canvas.Text({left, bar.Top, left + width, bar.Bottom}, caption,
                    item->Enabled() ? clWindowText : clGrayText, HTextAlign::Center);
        left += width;
    }
}

bool IsActive(const HWindow& window, bool active) {
    if (!window.IsChild()) return active;
    auto* form = dynamic_cast<HCustomForm*>(window.Target);
    return form && form->Active();
}

}  // namespace

void PaintFrame(HCanvas& canvas, const HWindow& window, bool active) {
    const HInsets& insets = window.Insets;
    const TRect all{0, 0, window.Rect.Width(), window.Rect.Height()};
    if (insets.Left <= 0 && insets.Top <= 0 && insets.Right <= 0 && insets.Bottom <= 0) return;
    PaintBorder(canvas, all, insets);
    if (insets.Top < HToolCaptionHeight) {
        const bool whole = insets.Left >= HClientEdge && insets.Bottom >= HClientEdge;
        if (whole)
            canvas.Edge(all, HEdge::Sunken);
        else if (insets.Top >= HClientEdge)
            canvas.Edge({0, 0, all.Right, HClientEdge}, HEdge::Etched);
        return;
    }
    const int border = std::max(insets.Left, 0);
    if (border > 0) canvas.Edge(all, HEdge::Raised);
    int menuTop = border;
    if (border > 0) {
        const int height = insets.Top - border >= HCaptionHeight ? HCaptionHeight : HToolCaptionHeight;
        const TRect bar{border, border, all.Right - border, border + height - 1};
        PaintCaption(canvas, bar, window, IsActive(window, active));
        menuTop += height;
    }
    if (insets.Top > menuTop) PaintMenuBar(canvas, {border, menuTop, all.Right - border, insets.Top}, window);
}

void PaintClassBackground(HCanvas& canvas, const HWindow& window) {
    const TRect room = window.ClientRect();
    const TColor ink = window.Enabled() ? clWindowText : clGrayText;
    const bool edit = SameText(window.ClassName, "Edit");
    canvas.Fill(room, edit ? clWindow : clBtnFace);
    if (SameText(window.ClassName, "Button")) {
        canvas.Edge(room, HEdge::Raised);
        canvas.Text(room, WithoutAccelerator(TextOf(window)), ink, HTextAlign::Center);
    }
    if (SameText(window.ClassName, "Static"))
        canvas.Lines(room, WithoutAccelerator(TextOf(window)), ink, true);
    if (edit) {
        canvas.Edge(room, HEdge::Sunken);
        canvas.Text({4, 2, room.Right - 4, room.Bottom - 2}, TextOf(window), ink);
    }
}

void PaintArrow(HCanvas& canvas, const TRect& place, HArrow arrow, TColor color) {
    const int x = (place.Left + place.Right) / 2, y = (place.Top + place.Bottom) / 2;
    for (int i = 0; i < 4; ++i) {
        // From the tip to the foot.
        const int at = arrow == HArrow::Up || arrow == HArrow::Left ? i - 2 : 1 - i;
        if (arrow == HArrow::Up || arrow == HArrow::Down)
            canvas.Fill({x - i, y + at, x + i + 1, y + at + 1}, color);
        else
            canvas.Fill({x + at, y - i, x + at + 1, y + i + 1}, color);
    }
}

void PaintArrowButton(HCanvas& canvas, const TRect& place, HArrow arrow) {
    canvas.Fill(place, clBtnFace);
    canvas.Edge(place, HEdge::Raised);
    PaintArrow(canvas, place, arrow, clWindowText);
}

std::string WithoutAccelerator(std::string_view caption) {
    std::string plain;
    for (TTextCursor cursor(caption); !cursor.AtEnd(); cursor.Next()) {
        if (cursor.Is('&')) {
            cursor.Next();
            if (cursor.AtEnd()) break;
        }
        plain += cursor.Char();
    }
    return plain;
}

}  // namespace rux
