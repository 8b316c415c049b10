// How the toolkit's controls look.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/headless/drawing/HCanvas.h"
#include "platform/headless/toolkit/HWinControl.h"

namespace rux {

enum class HCheckBoxState;

/// Draws the client area of a control, by the class it is of, and the graphic controls on it.
void PaintControl(HWinControl& control, HCanvas& canvas, const HWindow& window);

/// Draws one control into its room, whose left upper corner is the canvas's origin.
using HPaintProc = void (*)(HControl& control, HCanvas& canvas, const TRect& room);
struct HPainter {
    /// The class and those of its descendants that have no painter of their own.
    std::string_view ClassName;
    HPaintProc Paint;
};
std::span<const HPainter> ButtonPainters();
std::span<const HPainter> TextPainters();
std::span<const HPainter> ListPainters();
std::span<const HPainter> PanelPainters();
std::span<const HPainter> TreePainters();
std::span<const HPainter> ViewPainters();

// What a control says about its looks. Properties that it does not know read as 0, empty or the fallback.

int LookInt(const HObject& object, std::string_view property, int fallback = 0);
/// An enumeration's element.
std::string LookName(const HObject& object, std::string_view property);
/// A part or another object; nil for none.
HObject* LookPart(const HObject& object, std::string_view property);
HTextAlign LookAlignment(const HObject& object, std::string_view property, HTextAlign fallback);
/// A colour of the object's own, else the fallback.
TColor LookColor(const HObject& object, TColor fallback);
/// A colour of its own, else that of what it stands on.
TColor LookGround(const HControl& control);
/// Colour of its text.
TColor LookInk(const HControl& control);
std::string LookCaption(const HControl& control);

/// Buttons with texts next to each other, as wide as the collection's items say.
void PaintSections(const HObject* part, std::string_view text, HCanvas& canvas, const TRect& bar, TColor ink,
                   HEdge edge);

/// The square of a check box, with its tick unless it is unchecked.
void PaintCheckMark(HCanvas& canvas, const TRect& box, HCheckBoxState state, bool enabled);
/// Side of that square.
inline constexpr int HMarkSize = 13;

void PaintImage(HCanvas& canvas, const TRect& place);

}  // namespace rux
