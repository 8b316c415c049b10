// The window system's message box.
#pragma once

#include <string>

#include "platform/headless/native/HNativeDialog.h"

namespace rux {

/// Which buttons a box has (the low four bits), and which of them has the focus first. Other flags change
/// nothing.
enum TMessageBoxFlags : unsigned {
    MB_OK = 0,
    MB_OKCANCEL = 1,
    MB_ABORTRETRYIGNORE = 2,
    MB_YESNOCANCEL = 3,
    MB_YESNO = 4,
    MB_RETRYCANCEL = 5,
    MB_DEFBUTTON2 = 0x100,
    MB_DEFBUTTON3 = 0x200,
};

/// Shows a native dialog with the text and its buttons until somebody closes it, or the application ends.
/// Answers the button's number, 0 when the application ended first or there is no room. Closing answers
/// Cancel, with a single OK button OK; a box that has neither cannot be closed.
///
/// On the owner's thread it runs a loop of its own and disables `owner` meanwhile, 0 for none; where the
/// stack has no room for that it is journalled alone. On any other thread it disables nobody and waits: the
/// box stands on the owner's thread and is served by whatever loop runs there. ShowWindow is called on the
/// calling thread in either case.
unsigned RunMessageBox(HDesktop& desktop, const std::string& text, const std::string& caption, HWnd owner,
                       unsigned flags = MB_OK);

}  // namespace rux
