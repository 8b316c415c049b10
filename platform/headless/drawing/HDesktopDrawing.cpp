// Pictures of windows and of the screen.
#include "platform/Bitmap.h"
#include "platform/headless/windows/HDesktop.h"

namespace rux {

bool HDesktop::PrintWindow(HWnd, TBitmap&) {
    return false;
}

bool HDesktop::CopyScreen(const TRect&, TBitmap&) {
    return false;
}

}  // namespace rux
