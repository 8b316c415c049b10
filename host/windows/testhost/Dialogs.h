// Dialogs of the system, made without resources, their controls placed by pixels.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace rux {

struct TDialogPlan {
    /// UTF-8.
    std::string Title;
    RECT Place;
    /// Adds the controls; before the dialog is shown.
    std::function<void(HWND dialog)> Build;
    /// With the message's wParam, for every WM_COMMAND.
    std::function<void(HWND dialog, WPARAM command)> Command;
};

/// Shown at once. A close destroys it.
HWND OpenDialog(const TDialogPlan& plan, HWND owner = nullptr);
/// Returns when it has been closed.
void RunDialog(const TDialogPlan& plan, HWND owner);
/// A visible child, with a text in UTF-8.
HWND AddControl(HWND parent, const char* className, const std::string& text, RECT place, int id = 0,
                DWORD style = 0);

/// A visible dialog or message box of this process with that title (UTF-8); nullptr for none.
HWND FindDialog(const std::string& title);

}  // namespace rux
