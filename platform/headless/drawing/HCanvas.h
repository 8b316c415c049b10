// Drawing into a picture: rectangles, edges, text, within an origin and a clipping rectangle.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/Bitmap.h"
#include "platform/Types.h"

namespace rux {

/// Two pixels of light and shadow, as the classic look has them.
enum class HEdge { Raised, Sunken, Etched };
enum class HTextAlign { Left, Center, Right };

/// Refers to the picture, which outlives it. Nothing is drawn outside the clipping rectangle. Coordinates are
/// relative to the origin. User-interface thread.
class HCanvas {
 public:
    /// Every pixel that is drawn, in this canvas and its parts, is taken off `budget`; what it does not pay
    /// for any more is left out. It outlives the canvas; nil for none.
    explicit HCanvas(TBitmap& picture, std::int64_t* budget = nullptr);
    /// The same picture with the origin at the place's left upper corner, clipped to the place as well.
    HCanvas Part(const TRect& place) const;
    /// One of the two alone.
    HCanvas WithOrigin(TPoint origin) const;
    HCanvas Clipped(const TRect& place) const;

    /// False when nothing drawn in that place would be seen.
    bool Shows(const TRect& place) const;
    /// Everything that can be drawn to lies in that place.
    bool CoveredBy(const TRect& place) const;

    void Fill(const TRect& place, TColor color);
    /// One pixel along the inside of the rectangle.
    void Frame(const TRect& place, TColor color);
    void Edge(const TRect& place, HEdge edge);
    /// One pixel of light and shadow.
    void Bevel(const TRect& place, bool raised);
    void Pixel(TPoint point, TColor color);
    /// Text of the code page, one line, in the middle between the place's top and bottom, cut off at its
    /// sides.
    void Text(const TRect& place, std::string_view text, TColor color, HTextAlign align = HTextAlign::Left);
    /// The same from the top down, broken at line breaks and, with `wrap`, between words too.
    void Lines(const TRect& place, std::string_view text, TColor color, bool wrap);
    static int TextWidth(std::string_view text);
    /// Of a row in a list or a tree.
    static constexpr int LineHeight = 16;

 private:
    TColor* Row(int y) const;
    bool Spend(std::int64_t pixels) const;
    void Corner(const TRect& r, TColor topLeft, TColor bottomRight);
    void Line(TPoint corner, std::string_view text, TColor color);
    void Latin(TPoint corner, unsigned char character, TColor color);
    void Wide(TPoint corner, std::string_view character, TColor color);
    void Blend(TPoint point, TColor color, int share);

    TBitmap* FPicture;
    std::int64_t* FBudget;
    TPoint FOrigin;
    /// In the picture's coordinates.
    TRect FClip;
};

/// Colours of the classic look.
inline constexpr TColor clBtnFace{212, 208, 200}, clBtnShadow{128, 128, 128}, clBtnHighlight{255, 255, 255},
    clWindow{255, 255, 255}, clWindowText{0, 0, 0}, clGrayText{128, 128, 128}, clHighlight{10, 36, 106},
    clHighlightText{255, 255, 255}, clLightEdge{212, 208, 200}, clDarkEdge{64, 64, 64},
    clLightFace{234, 231, 227}, clActiveCaption{10, 36, 106}, clInactiveCaption{128, 128, 128},
    clBackground{58, 110, 165};

}  // namespace rux
