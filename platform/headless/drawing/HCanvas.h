// Drawing into a picture: rectangles, edges, text, within an origin and a clipping rectangle.
#pragma once

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
    explicit HCanvas(TBitmap& picture);
    /// The same picture with the origin at the place's left upper corner, clipped to the place as well.
    HCanvas Part(const TRect& place) const;

    void Fill(const TRect& place, TColor color);
    /// One pixel along the inside of the rectangle.
    void Frame(const TRect& place, TColor color);
    void Edge(const TRect& place, HEdge edge);
    void Pixel(TPoint point, TColor color);
    /// Text of the code page, one line, in the middle between the place's top and bottom, cut off at its
    /// sides.
    void Text(const TRect& place, std::string_view text, TColor color, HTextAlign align = HTextAlign::Left);
    /// The same from the top down, broken at line breaks and, with `wrap`, between words too.
    void Lines(const TRect& place, std::string_view text, TColor color, bool wrap);
    static int TextWidth(std::string_view text);
    static constexpr int LineHeight = 16;

 private:
    TBitmap* FPicture;
    TPoint FOrigin;
    /// In the picture's coordinates.
    TRect FClip;
};

/// Colours of the classic look.
inline constexpr TColor clBtnFace{212, 208, 200}, clBtnShadow{128, 128, 128}, clBtnHighlight{255, 255, 255},
    clWindow{255, 255, 255}, clWindowText{0, 0, 0}, clGrayText{128, 128, 128}, clHighlight{10, 36, 106},
    clHighlightText{255, 255, 255}, clActiveCaption{10, 36, 106}, clInactiveCaption{128, 128, 128},
    clBackground{58, 110, 165};

}  // namespace rux
