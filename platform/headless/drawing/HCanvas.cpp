#include "platform/headless/drawing/HCanvas.h"

#include <algorithm>

#include "platform/headless/drawing/HBitmapFont.h"
#include "platform/headless/drawing/HLatinFace.h"
#include "rtl/CodePage.h"

namespace rux {

namespace {

/// Beyond Latin a character takes this width for each of its bytes. Forms are designed with letters of about
/// these measures, so their texts fit where they stand.
constexpr int CellWidth = 6, CellHeight = 12, LinePitch = 13;
constexpr int LatinTop = 3;

std::int32_t Bounded(std::int64_t value) {
    // The width between two bounds is a number, too.
    constexpr std::int64_t limit = (std::int64_t{1} << 30) - 1;
    return static_cast<std::int32_t>(std::clamp(value, -limit, limit));
}

TRect Moved(const TRect& r, TPoint by) {
    return {Bounded(std::int64_t{r.Left} + by.X), Bounded(std::int64_t{r.Top} + by.Y),
            Bounded(std::int64_t{r.Right} + by.X), Bounded(std::int64_t{r.Bottom} + by.Y)};
}

TRect Common(const TRect& a, const TRect& b) {
    return {std::max(a.Left, b.Left), std::max(a.Top, b.Top), std::min(a.Right, b.Right),
            std::min(a.Bottom, b.Bottom)};
}

bool IsEmpty(const TRect& r) {
    return r.Left >= r.Right || r.Top >= r.Bottom;
}

/// Pixels to the next character; 0 for a control character.
int Advance(std::string_view character) {
    const auto byte = static_cast<unsigned char>(character.front());
    if (byte >= 0x80) return static_cast<int>(character.size()) * CellWidth;
    const HLatinGlyph* glyph = LatinGlyph(byte);
    return glyph ? glyph->Advance : 0;
}

std::int64_t WidthOf(std::string_view text) {
    std::int64_t width = 0;
    for (TTextCursor cursor(text); !cursor.AtEnd(); cursor.Next()) width += Advance(cursor.Char());
    return width;
}

std::uint8_t Mixed(std::uint8_t under, std::uint8_t over, int share, int whole) {
    return static_cast<std::uint8_t>((under * (whole - share) + over * share) / whole);
}

/// How many of the four thirds of a pixel's side that a pixel of the cell takes up lie in a pixel of the
/// glyph, which is four thirds as large.
int Overlap(int cell, int glyph) {
    return std::max(0, std::min(cell * 4 + 4, glyph * 3 + 3) - std::max(cell * 4, glyph * 3));
}

/// Share of a pixel of the cell that the glyph covers, of 16.
int Coverage(const HBitmapGlyph& glyph, int x, int y) {
    int covered = 0;
    for (int row = y * 4 / 3; row < 16 && row * 3 < y * 4 + 4; ++row)
        for (int column = x * 4 / 3; column < 16 && column * 3 < x * 4 + 4; ++column)
            if (glyph.Rows[static_cast<std::size_t>(row)] >> (15 - column) & 1)
                covered += Overlap(x, column) * Overlap(y, row);
    return covered;
}

}  // namespace

HCanvas::HCanvas(TBitmap& picture, std::int64_t* budget)
    : FPicture(&picture), FBudget(budget), FClip{0, 0, picture.Width, picture.Height} {}

HCanvas HCanvas::WithOrigin(TPoint origin) const {
    HCanvas moved = *this;
    moved.FOrigin = {Bounded(std::int64_t{FOrigin.X} + origin.X),
                     Bounded(std::int64_t{FOrigin.Y} + origin.Y)};
    return moved;
}

HCanvas HCanvas::Part(const TRect& place) const {
    return Clipped(place).WithOrigin({place.Left, place.Top});
}

HCanvas HCanvas::Clipped(const TRect& place) const {
    HCanvas clipped = *this;
    clipped.FClip = Common(FClip, Moved(place, FOrigin));
    return clipped;
}

bool HCanvas::Shows(const TRect& place) const {
    return !IsEmpty(Common(FClip, Moved(place, FOrigin)));
}

bool HCanvas::CoveredBy(const TRect& place) const {
    const TRect inside = Moved(place, FOrigin);
    return inside.Left <= FClip.Left && inside.Top <= FClip.Top && inside.Right >= FClip.Right &&
           inside.Bottom >= FClip.Bottom;
}

TColor* HCanvas::Row(int y) const {
    return FPicture->Pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(FPicture->Width);
}

bool HCanvas::Spend(std::int64_t pixels) const {
    if (!FBudget) return true;
    if (*FBudget < pixels) return false;
    *FBudget -= pixels;
    return true;
}

void HCanvas::Fill(const TRect& place, TColor color) {
    const TRect inside = Common(FClip, Moved(place, FOrigin));
    if (IsEmpty(inside) || !Spend(std::int64_t{inside.Width()} * inside.Height())) return;
    for (int y = inside.Top; y < inside.Bottom; ++y)
        std::fill(Row(y) + inside.Left, Row(y) + inside.Right, color);
}

void HCanvas::Corner(const TRect& r, TColor topLeft, TColor bottomRight) {
    Fill({r.Left, r.Top, r.Right, r.Top + 1}, topLeft);
    Fill({r.Left, r.Top, r.Left + 1, r.Bottom}, topLeft);
    Fill({r.Left, r.Bottom - 1, r.Right, r.Bottom}, bottomRight);
    Fill({r.Right - 1, r.Top, r.Right, r.Bottom}, bottomRight);
}

void HCanvas::Frame(const TRect& place, TColor color) {
    Corner(Moved(place, {}), color, color);
}

void HCanvas::Edge(const TRect& place, HEdge edge) {
    const TRect r = Moved(place, {});
    const TRect inner{r.Left + 1, r.Top + 1, r.Right - 1, r.Bottom - 1};
    switch (edge) {
        case HEdge::Raised:
            Corner(r, clBtnHighlight, clDarkEdge);
            Corner(inner, clLightEdge, clBtnShadow);
            return;
        case HEdge::Sunken:
            Corner(r, clBtnShadow, clBtnHighlight);
            Corner(inner, clDarkEdge, clLightEdge);
            return;
        case HEdge::Etched:
            Corner(r, clBtnShadow, clBtnHighlight);
            Corner(inner, clBtnHighlight, clBtnShadow);
            return;
    }
}

void HCanvas::Bevel(const TRect& place, bool raised) {
    Corner(Moved(place, {}), raised ? clBtnHighlight : clBtnShadow, raised ? clBtnShadow : clBtnHighlight);
}

void HCanvas::Pixel(TPoint point, TColor color) {
    Fill({point.X, point.Y, point.X + 1, point.Y + 1}, color);
}

int HCanvas::TextWidth(std::string_view text) {
    return Bounded(WidthOf(text));
}

void HCanvas::Latin(TPoint corner, unsigned char character, TColor color) {
    const HLatinGlyph* glyph = LatinGlyph(character);
    if (!glyph) return;
    for (int row = 0; row < HLatinRows; ++row)
        for (int column = 0; column < HLatinColumns; ++column)
            if (glyph->Rows[static_cast<std::size_t>(row)] >> (HLatinColumns - 1 - column) & 1)
                Pixel({corner.X + column, corner.Y + LatinTop + row}, color);
}

void HCanvas::Blend(TPoint point, TColor color, int share) {
    const TPoint at{point.X + FOrigin.X, point.Y + FOrigin.Y};
    if (share == 0 || !FClip.Contains(at) || !Spend(1)) return;
    // Thin strokes would fade away: from three quarters on they count as whole.
    const int whole = 12;
    share = std::min(share, whole);
    TColor& under = Row(at.Y)[at.X];
    under = {Mixed(under.Red, color.Red, share, whole), Mixed(under.Green, color.Green, share, whole),
             Mixed(under.Blue, color.Blue, share, whole)};
}

void HCanvas::Wide(TPoint corner, std::string_view character, TColor color) {
    const int width = static_cast<int>(character.size()) * CellWidth;
    const std::u16string wide = AnsiToWide(character);
    const std::shared_ptr<const HBitmapFont> font = HBitmapFont::Current();
    const HBitmapGlyph* glyph = wide.size() == 1 ? font->Find(wide[0]) : nullptr;
    if (!glyph) {
        Frame({corner.X + 1, corner.Y + 1, corner.X + width - 1, corner.Y + CellHeight - 1}, color);
        return;
    }
    const int left = !glyph->Wide && width > CellWidth ? (width - CellWidth) / 2 : 0;
    for (int y = 0; y < CellHeight; ++y)
        for (int x = 0; x < width - left; ++x)
            Blend({corner.X + left + x, corner.Y + y}, color, Coverage(*glyph, x, y));
}

void HCanvas::Line(TPoint corner, std::string_view text, TColor color) {
    std::int64_t x = corner.X;
    const std::int64_t end = std::int64_t{FClip.Right} - FOrigin.X,
                       start = std::int64_t{FClip.Left} - FOrigin.X;
    for (TTextCursor cursor(text); !cursor.AtEnd() && x < end; cursor.Next()) {
        const std::string_view character = cursor.Char();
        const std::int64_t next = x + Advance(character);
        if (next > start) {
            const TPoint at{Bounded(x), corner.Y};
            const auto byte = static_cast<unsigned char>(character.front());
            if (byte < 0x80)
                Latin(at, byte, color);
            else
                Wide(at, character, color);
        }
        x = next;
    }
}

void HCanvas::Text(const TRect& place, std::string_view text, TColor color, HTextAlign align) {
    HCanvas inside = Part(place);
    if (IsEmpty(inside.FClip)) return;
    const TRect room = Moved(place, {});
    std::int64_t x = 0;
    if (align != HTextAlign::Left) x = room.Width() - WidthOf(text);
    if (align == HTextAlign::Center) x /= 2;
    const int y = (room.Height() - CellHeight) / 2;
    inside.Line({Bounded(x), y}, text, color);
}

namespace {

/// Bytes of the text's first line that fit into `width`, and of the space or line break behind them.
struct TLine {
    std::size_t Shown = 0, Taken = 0;
};

TLine FirstLine(std::string_view text, std::int64_t width) {
    TLine best;
    std::int64_t end = 0;
    TTextCursor cursor(text);
    for (; !cursor.AtEnd(); cursor.Next()) {
        const std::size_t at = cursor.Pos();
        if (cursor.Is('\r') || cursor.Is('\n')) {
            const bool both = text.substr(at, 2) == "\r\n";
            return {at, at + (both ? 2 : 1)};
        }
        // A line breaks at spaces and beside characters of two bytes, which have none between them.
        if (cursor.Is(' '))
            best = {at, at + 1};
        else if (cursor.Length() == 2 && at > 0)
            best = {at, at};
        end += Advance(cursor.Char());
        if (end > width && at > 0) return best.Taken > 0 ? best : TLine{at, at};
    }
    return {text.size(), text.size()};
}

}  // namespace

void HCanvas::Lines(const TRect& place, std::string_view text, TColor color, bool wrap) {
    HCanvas inside = Part(place);
    const std::int64_t width = wrap ? Moved(place, {}).Width() : std::int64_t{1} << 40;
    for (int y = 0; !text.empty() && y + inside.FOrigin.Y < inside.FClip.Bottom; y += LinePitch) {
        const TLine line = FirstLine(text, width);
        inside.Line({0, y}, text.substr(0, line.Shown), color);
        text.remove_prefix(line.Taken);
    }
}

}  // namespace rux
