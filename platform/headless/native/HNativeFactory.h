// Makes windows of the window system's own classes by name.
#pragma once

#include <string_view>

#include "platform/headless/windows/HDesktop.h"

namespace rux {

/// #32770 (without code: see CreateNativeDialog), Button, ComboBox, Edit, Static or SysTreeView32, in any
/// case; 0 for another class, an invalid parent and when there is no room. `style` is the window's as it
/// stands: WS_CHILD and WS_VISIBLE are the caller's to add. `rect` lies in the parent's client area for child
/// windows, else on the screen. A new child stands below its siblings, so that they are listed in the order
/// in which they were made.
HWnd CreateNativeWindow(HDesktop& desktop, std::string_view className, const std::string& text,
                        std::uint32_t style, HWnd parent, const TRect& rect, unsigned id = 0);

}  // namespace rux
