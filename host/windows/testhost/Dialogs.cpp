#include "host/windows/testhost/Dialogs.h"

#include <memory>

#include "host/windows/common/AnsiText.h"

namespace rux {

namespace {

struct TDialog {
    TDialogPlan Plan;
    bool Modal;
};

/// Behind it stand no menu, the usual class and no title.
struct TTemplate {
    DLGTEMPLATE Dialog{WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 0, 0, 0, 0, 10, 10};
    WORD Nothing[3] = {};
};

void Begin(HWND window, TDialog& dialog) {
    SetWindowLongA(window, DWL_USER, reinterpret_cast<LONG>(&dialog));
    const RECT& place = dialog.Plan.Place;
    SetWindowTextA(window, Ansi(dialog.Plan.Title).c_str());
    SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if (dialog.Plan.Build) dialog.Plan.Build(window);
}

INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        Begin(window, *reinterpret_cast<TDialog*>(lParam));
        return TRUE;
    }
    auto* dialog = reinterpret_cast<TDialog*>(GetWindowLongA(window, DWL_USER));
    if (!dialog) return FALSE;
    if (message == WM_COMMAND && dialog->Plan.Command) {
        dialog->Plan.Command(window, wParam);
        return TRUE;
    }
    if (message == WM_CLOSE) {
        if (dialog->Modal)
            EndDialog(window, 0);
        else
            DestroyWindow(window);
        return TRUE;
    }
    if (message == WM_NCDESTROY && !dialog->Modal) {
        SetWindowLongA(window, DWL_USER, 0);
        delete dialog;
    }
    return FALSE;
}

struct TSearch {
    std::string Title;
    HWND Found = nullptr;
};

BOOL CALLBACK LookAt(HWND window, LPARAM param) noexcept {
    auto& search = *reinterpret_cast<TSearch*>(param);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != GetCurrentProcessId() || !IsWindowVisible(window)) return TRUE;
    char type[16] = "", text[256] = "";
    GetClassNameA(window, type, sizeof type);
    // Only a dialog is asked for its text: the thread of any other window may be held up.
    if (std::string(type) != "#32770") return TRUE;
    GetWindowTextA(window, text, sizeof text);
    if (search.Title == text) search.Found = window;
    return search.Found == nullptr;
}

}  // namespace

HWND OpenDialog(const TDialogPlan& plan, HWND owner) {
    auto dialog = std::make_unique<TDialog>(TDialog{plan, false});
    const TTemplate shape;
    // The window frees it.
    return CreateDialogIndirectParamA(GetModuleHandleA(nullptr), &shape.Dialog, owner, &DialogProc,
                                      reinterpret_cast<LPARAM>(dialog.release()));
}

void RunDialog(const TDialogPlan& plan, HWND owner) {
    TDialog dialog{plan, true};
    const TTemplate shape;
    DialogBoxIndirectParamA(GetModuleHandleA(nullptr), &shape.Dialog, owner, &DialogProc,
                            reinterpret_cast<LPARAM>(&dialog));
}

HWND AddControl(HWND parent, const char* className, const std::string& text, RECT place, int id,
                DWORD style) {
    return CreateWindowExA(0, className, Ansi(text).c_str(), WS_CHILD | WS_VISIBLE | style, place.left,
                           place.top, place.right - place.left, place.bottom - place.top, parent,
                           reinterpret_cast<HMENU>(id), GetModuleHandleA(nullptr), nullptr);
}

HWND FindDialog(const std::string& title) {
    TSearch search{Ansi(title)};
    EnumWindows(&LookAt, reinterpret_cast<LPARAM>(&search));
    return search.Found;
}

}  // namespace rux
