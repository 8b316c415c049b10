// The window system's message box.
#pragma once

#include <string>

#include "platform/headless/windows/HDesktop.h"

namespace rux {

/// Shows a native dialog with the text and an OK button and runs a loop of its own until somebody closes it,
/// or the application ends; where the thread's stack has no room for that it is journalled alone. `owner` is
/// disabled meanwhile; 0 for none.
void RunMessageBox(HDesktop& desktop, const std::string& text, const std::string& caption, HWnd owner);

}  // namespace rux
