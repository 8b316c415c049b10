#include "platform/headless/toolkit/HApplication.h"

#include "platform/headless/native/HMessageBox.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

HApplication::HApplication(HToolkit& kit, const HClassDef& def) : With(kit, def) {
    // Visible, enabled, of no size, with the application's title: so it is among the top-level windows.
    HCreateParams params;
    params.ClassName = "TApplication";
    params.Style = WS_POPUP | WS_VISIBLE;
    params.Rect = {640, 512, 640, 512};
    params.Target = this;
    FHandle = kit.Desktop().CreateWindowA(params);
}

HApplication::~HApplication() {
    Kit().Desktop().DestroyWindow(FHandle);
}

TObject* HApplication::MainForm() {
    return FMainForm;
}

bool HApplication::Terminated() {
    return Kit().Desktop().Quitting();
}

// ------------------------------------------------------------------------------------------------ the loop

bool HApplication::UsedAsDialogKey(const TMessage& message) {
    if (message.Number != WM_KEYDOWN && message.Number != WM_SYSKEYDOWN) return false;
    // A native window's keys are its nearest control's.
    HWinControl* control = nullptr;
    for (const HWindow* w = Kit().Desktop().Find(message.Window); w && !control; w = w->Parent)
        control = Kit().ControlOf(w->Handle);
    HCustomForm* form = control ? control->ParentForm() : nullptr;
    if (!form) return false;
    bool used = false;
    const bool told =
        Guarded([&] { used = form->DialogKey(static_cast<unsigned>(message.WParameter), *control); });
    return used || !told;
}

bool HApplication::ProcessMessage() {
    HDesktop& desktop = Kit().Desktop();
    TMessage message;
    if (!desktop.PeekAny(message)) return false;
    const HDesktop::THandling handling(desktop);
    if (!UsedAsDialogKey(message)) desktop.DispatchMessage(message);
    return true;
}

void HApplication::ProcessMessages() {
    while (ProcessMessage()) {
    }
}

void HApplication::HandleMessage() {
    if (ProcessMessage()) return;
    Idle();
    Kit().Desktop().WaitMessage();
}

void HApplication::Idle() {
    const HDesktop::THandling handling(Kit().Desktop());
    const std::vector<HCustomForm*> forms = Kit().Forms();
    for (HCustomForm* form : forms)
        if (!form->Dead()) Guarded([&] { form->UpdateActions(); });
}

void HApplication::Run() {
    if (FMainForm) FMainForm->Show();
    while (!Terminated()) HandleMessage();
}

void HApplication::Terminate() {
    Kit().Desktop().Quit();
}

// ------------------------------------------------------------------------------------------------ errors

void HApplication::HandleException(const std::exception& error) {
    Kit().Desktop().CancelMode();
    if (dynamic_cast<const EAbort*>(&error)) return;
    if (!FOnException) {
        ShowException(error);
        return;
    }
    try {
        // A copy: it may set another one.
        const TExceptionHandler handler = FOnException;
        const HDesktop::THandling handling(Kit().Desktop());
        handler(error);
    } catch (const std::exception& again) {
        if (!dynamic_cast<const EAbort*>(&again)) ShowException(again);
    } catch (...) {
        ShowException(Exception("Unknown exception"));
    }
}

void HApplication::HandleUnknown() {
    HandleException(Exception("Unknown exception"));
}

void HApplication::ShowException(const std::exception& error) {
    std::string text = error.what();
    // A period behind anything that does not end a sentence by itself.
    if (!text.empty() && static_cast<unsigned char>(text.back()) > '.') text += '.';
    MessageBox(text, FTitle);
}

void HApplication::MessageBox(const std::string& text, const std::string& caption) {
    HDesktop& desktop = Kit().Desktop();
    const HWnd activeBefore = desktop.GetActiveWindow();
    {
        const HTaskWindowsDisabled disabled(desktop);
        RunMessageBox(desktop, text, caption, FHandle);
    }
    desktop.SetActiveWindow(activeBefore);
}

LResult HApplication::WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    switch (message) {
        case WM_GETTEXT: {
            if (wParam == 0) return 0;
            const std::size_t count = FTitle.copy(reinterpret_cast<char*>(lParam), wParam - 1);
            reinterpret_cast<char*>(lParam)[count] = 0;
            return static_cast<LResult>(count);
        }
        case WM_GETTEXTLENGTH:
            return static_cast<LResult>(FTitle.size());
        case WM_CLOSE:
            Guarded([this] {
                if (FMainForm) FMainForm->Close();
            });
            return 0;
        default:
            return Kit().Desktop().DefWindowProc(window, message, wParam, lParam);
    }
}

}  // namespace rux
