#include "platform/headless/native/HNativeDialog.h"

#include "platform/headless/HLimits.h"
#include "rtl/Stack.h"

namespace rux {

namespace {

bool IsPushButton(const HWindow& window) {
    return dynamic_cast<HNativeButton*>(window.Target) &&
           (window.Style & 15) <= HNativeButton::BS_DEFPUSHBUTTON;
}

unsigned IdOf(const HWindow* window) {
    const auto* native = window ? dynamic_cast<const HNativeWindow*>(window->Target) : nullptr;
    return native ? native->Id() : 0;
}

std::shared_ptr<HNativeDialog> DialogOf(const HDesktop& desktop, HWnd window) {
    const HWindow* found = desktop.Find(window);
    return found ? std::dynamic_pointer_cast<HNativeDialog>(found->OwnedTarget) : nullptr;
}

/// However the loop ends, the owner can be used again before the dialog goes.
class TModalState {
 public:
    TModalState(HDesktop& desktop, HWnd dialog)
        : FDesktop(desktop),
          FDialog(dialog),
          FOwner(desktop.Find(dialog)->Owner),
          FWasDisabled(desktop.EnableWindow(FOwner, false)) {}
    ~TModalState() {
        if (!FWasDisabled) FDesktop.EnableWindow(FOwner, true);
        FDesktop.DestroyWindow(FDialog);
    }
    TModalState(const TModalState&) = delete;
    TModalState& operator=(const TModalState&) = delete;

 private:
    HDesktop& FDesktop;
    const HWnd FDialog, FOwner;
    const bool FWasDisabled;
};

/// What the procedure around the application's code answers; an error gives 0.
enum TProcAnswer : LResult { Raised = 0, Declined = 1, Handled = 2 };

}  // namespace

HNativeDialog::HNativeDialog(HDesktop& desktop, HDialogTraits traits)
    : HNativeWindow(desktop, "#32770"), FTraits(std::move(traits)) {
    if (!FTraits.Proc) return;
    // As a window procedure its errors are reported like those of all the others.
    FProc = FDesktop.MakeObjectInstance(
        [proc = FTraits.Proc](auto... message) -> LResult { return proc(message...) ? Handled : Declined; });
}

HNativeDialog::~HNativeDialog() {
    FDesktop.FreeObjectInstance(FProc);
}

bool HNativeDialog::HandledByProc(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    return FProc && FDesktop.CallWindowProcA(FProc, window, message, wParam, lParam) != Declined;
}

LResult HNativeDialog::WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    const bool told = message == WM_COMMAND || message == WM_NOTIFY || message == WM_CLOSE;
    if (told && HandledByProc(window, message, wParam, lParam)) return 0;
    switch (message) {
        case WM_COMMAND:
            // The code in the high word is 0 for a click.
            if ((FHasLoop || Awaited()) && wParam <= 0xFFFF && PushButton(window, wParam & 0xFFFF))
                End(window, wParam & 0xFFFF);
            return 0;
        case WM_CLOSE:
            if (FTraits.CloseResult) End(window, FTraits.CloseResult);
            return 0;
        case WM_SETFOCUS:
            GiveFocus(window);
            return 0;
        case WM_ACTIVATE:
            if (wParam == 0) FFocusChild = FDesktop.GetFocus();
            return 0;
        default:
            return HNativeWindow::WndProc(window, message, wParam, lParam);
    }
}

void HNativeDialog::WindowGone(HWnd) {
    if (FResult == 0 && !FDesktop.Quitting()) FResult = IDCANCEL;
    if (!FTraits.Wait) return;
    FTraits.Wait->Result = FResult;
    FTraits.Wait->Done->SetEvent();
}

void HNativeDialog::End(HWnd window, unsigned result) {
    if (FResult == 0) FResult = result;
    if (!FHasLoop) FDesktop.DestroyWindow(window);
}

// ---------------------------------------------------------------------------------------------- children

HWnd HNativeDialog::ChildThat(HWnd window, const std::function<bool(const HWindow&)>& fits) const {
    const HWindow* dialog = FDesktop.Find(window);
    if (!dialog) return 0;
    for (auto step = dialog->Children.rbegin(); step != dialog->Children.rend(); ++step)
        if (fits(**step)) return (*step)->Handle;
    return 0;
}

HWnd HNativeDialog::PushButton(HWnd window, unsigned id) const {
    return ChildThat(window, [&](const HWindow& w) { return IsPushButton(w) && IdOf(&w) == id; });
}

HWnd HNativeDialog::EnterButton(HWnd window) const {
    const HWindow* focus = FDesktop.Find(FDesktop.GetFocus());
    if (focus && IsPushButton(*focus) && focus->Top().Handle == window) return focus->Handle;
    const HWnd standard = ChildThat(window, [](const HWindow& w) {
        return IsPushButton(w) && (w.Style & 15) == HNativeButton::BS_DEFPUSHBUTTON;
    });
    return standard ? standard : PushButton(window, IDOK);
}

void HNativeDialog::GiveFocus(HWnd window) {
    const HWindow* child = FDesktop.Find(FFocusChild);
    if (!child || !child->Parent || child->Top().Handle != window)
        FFocusChild = ChildThat(
            window, [](const HWindow& w) { return w.Visible() && w.Enabled() && w.ClassName != "Static"; });
    if (FFocusChild) FDesktop.SetFocus(FFocusChild);
}

bool HNativeDialog::Key(HWnd window, const TMessage& message) {
    if (message.Number != WM_KEYDOWN) return false;
    const bool enter = message.WParameter == VK_RETURN;
    if (!enter && message.WParameter != VK_ESCAPE) return false;
    const HWindow* at = FDesktop.Find(message.Window);
    if (!at || at->Top().Handle != window) return false;
    const HWnd button = enter ? EnterButton(window) : PushButton(window, IDCANCEL);
    const HWindow* pressed = FDesktop.Find(button);
    if (pressed && pressed->Enabled())
        FDesktop.Notify(window, WM_COMMAND, IdOf(pressed), static_cast<LParam>(button));
    else if (!pressed && !enter)
        FDesktop.Notify(window, WM_CLOSE, 0, 0);
    return true;
}

bool KeyOfForeignDialog(HDesktop& desktop, HWnd child, WParam key) {
    const HWindow* window = desktop.Find(child);
    const HWnd top = window ? window->Top().Handle : 0;
    const auto dialog = DialogOf(desktop, top);
    return dialog && dialog->Awaited() && dialog->Key(top, {child, WM_KEYDOWN, key, 0});
}

// ---------------------------------------------------------------------------------------------- dialogs

HWnd CreateNativeDialog(HDesktop& desktop, const std::string& caption, const TRect& rect, HWnd owner,
                        HDialogTraits traits) {
    HCreateParams params;
    params.ClassName = "#32770";
    params.Text = caption;
    params.Style = WS_POPUP;
    params.Parent = owner;
    params.Rect = rect;
    params.Insets = {HFixedFrame, HFixedFrame + HCaptionHeight, HFixedFrame, HFixedFrame};
    params.OwnedTarget = std::make_shared<HNativeDialog>(desktop, std::move(traits));
    return desktop.CreateWindowA(params);
}

unsigned RunNativeDialog(HDesktop& desktop, HWnd window) {
    const std::shared_ptr<HNativeDialog> dialog = DialogOf(desktop, window);
    if (!dialog) return 0;
    const HDesktop::THandling handling(desktop);
    dialog->SetHasLoop();
    desktop.CancelMode();
    // The way there may have ended it.
    if (!desktop.Find(window)) return dialog->Result();
    const TModalState modal(desktop, window);
    if (StackRoom() < StackOfDialog) return 0;
    desktop.ShowWindow(window, SW_SHOWNORMAL);
    desktop.SetActiveWindow(window);
    while (dialog->Result() == 0 && !desktop.Quitting()) {
        TMessage message;
        if (!desktop.PeekAny(message))
            desktop.WaitMessage();
        else if (!dialog->Key(window, message))
            desktop.DispatchMessage(message);
    }
    return dialog->Result();
}

bool EndNativeDialog(HDesktop& desktop, HWnd window, unsigned result) {
    const std::shared_ptr<HNativeDialog> dialog = DialogOf(desktop, window);
    if (dialog) dialog->End(window, result);
    return dialog != nullptr;
}

}  // namespace rux
