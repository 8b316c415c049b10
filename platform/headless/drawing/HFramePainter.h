// What surrounds a window's client area, and the looks of the window system's own classes.
#pragma once

#include <string>

#include "platform/headless/drawing/HCanvas.h"
#include "platform/headless/windows/HWindow.h"

namespace rux {

/// Border, caption and menu bar, as far as the window's insets leave room for them. The canvas has its origin
/// at the window's corner.
void PaintFrame(HCanvas& canvas, const HWindow& window, bool active);
/// The client area as the window's class alone says it looks; what the target draws comes over it.
void PaintClassBackground(HCanvas& canvas, const HWindow& window);

/// A triangle that points up or down, or left or right, in the middle of the place.
enum class HArrow { Up, Down, Left, Right };
void PaintArrow(HCanvas& canvas, const TRect& place, HArrow arrow, TColor color);
/// A small button with an arrow on it.
void PaintArrowButton(HCanvas& canvas, const TRect& place, HArrow arrow);

/// A caption as it is read: without the mark of the key that stands for it.
std::string WithoutAccelerator(std::string_view caption);

}  // namespace rux
