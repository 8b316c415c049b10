// The window class #32770: dialogs, with a loop of their own or without.
#pragma once

#include <atomic>
#include <functional>

#include "platform/headless/native/HNativeWindow.h"

namespace rux {

/// The application's code behind a dialog: hears WM_COMMAND, WM_NOTIFY and WM_CLOSE before the dialog does,
/// and answers True when that is all that is to happen. What it raises goes to the application's report, and
/// the dialog does nothing either.
using HDialogProc = std::function<bool(HWnd dialog, unsigned message, WParam wParam, LParam lParam)>;

/// What a thread waits on for a dialog of the owner's thread.
struct HDialogWait {
    std::unique_ptr<TEvent> Done;
    /// Set before Done is; 0 when the application ended first.
    std::atomic<unsigned> Result{0};
};

/// How a dialog behaves.
struct HDialogTraits {
    HDialogProc Proc;
    /// What closing it answers; 0: it cannot be closed.
    unsigned CloseResult = IDCANCEL;
    /// Set for a dialog that a thread without windows waits for.
    std::shared_ptr<HDialogWait> Wait;
};

/// A push button ends the dialog with its number if somebody waits for it; one that nobody waits for leaves
/// that to its code. Closing ends either kind. A dialog without a loop of its own is destroyed by its end.
class HNativeDialog final : public HNativeWindow {
 public:
    HNativeDialog(HDesktop& desktop, HDialogTraits traits);
    ~HNativeDialog() override;
    LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) override;
    void WindowGone(HWnd window) override;

    /// 0 while it is open, and when the application ended first.
    unsigned Result() const { return FResult; }
    bool HasLoop() const { return FHasLoop; }
    void SetHasLoop() { FHasLoop = true; }
    bool Awaited() const { return FTraits.Wait != nullptr; }
    /// The child that has the focus whenever the dialog is activated; else it is the first that can.
    void SetFocusChild(HWnd child) { FFocusChild = child; }
    void End(HWnd window, unsigned result);
    /// Enter presses the button that has the focus, else the default one, else OK; Escape presses Cancel, or
    /// closes a dialog without such a button. True for keys that were meant for the dialog.
    bool Key(HWnd window, const TMessage& message);

 private:
    bool HandledByProc(HWnd window, unsigned message, WParam wParam, LParam lParam);
    HWnd ChildThat(HWnd window, const std::function<bool(const HWindow&)>& fits) const;
    HWnd PushButton(HWnd window, unsigned id) const;
    HWnd EnterButton(HWnd window) const;
    void GiveFocus(HWnd window);

    HDialogTraits FTraits;
    TWndProc FProc = 0;
    unsigned FResult = 0;
    bool FHasLoop = false;
    HWnd FFocusChild = 0;
};

/// Bytes of stack that a dialog's loop may need; less than the reserve that is left for reports.
inline constexpr std::size_t StackOfDialog = std::size_t{64} << 10;

/// A dialog that is not visible yet: fill it with CreateNativeWindow, then run it or have the desktop show
/// it. `rect` is its place on the screen with its frame. `owner`: 0 for none. 0 when there is no room.
HWnd CreateNativeDialog(HDesktop& desktop, const std::string& caption, const TRect& rect, HWnd owner,
                        HDialogTraits traits = {});

/// Disables the owner, shows the dialog and runs a loop of its own until it ends; then it is destroyed.
/// Answers what it ended with: 0 when the application ended first, the window is no dialog or the stack has
/// no room. The owner's thread.
unsigned RunNativeDialog(HDesktop& desktop, HWnd dialog);

/// Closes a dialog for the application. False when the window is no dialog.
bool EndNativeDialog(HDesktop& desktop, HWnd dialog, unsigned result);

/// Keys of a dialog that somebody else's loop serves for another thread come by way of its children.
bool KeyOfForeignDialog(HDesktop& desktop, HWnd child, WParam key);

}  // namespace rux
