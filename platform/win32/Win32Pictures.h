// Pictures of windows and of the screen, by way of the graphics system. Any thread.
#pragma once

#include "platform/Bitmap.h"
#include "platform/Types.h"

struct HWND__;

namespace rux {

/// See TWindowService::PrintWindow.
bool PictureOfWindow(HWND__* window, TBitmap& picture);
/// See TWindowService::CopyScreen.
bool PictureOfScreen(const TRect& place, TBitmap& picture);

}  // namespace rux
