#include "platform/headless/toolkit/HApplication.h"

#include "platform/headless/native/HMessageBox.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

namespace {

/// Control procedures stand between the queue and a dialog's own keys.
bool UsedAsDialogKey(HToolkit& kit, const TMessage& message) {
    if (message.Number != WM_KEYDOWN) return false;
    HWinControl* control = kit.ControlOf(message.Window);
    HCustomForm* form = control ? control->ParentForm() : nullptr;
    if (!form) return false;
    try {
        return form->DialogKey(static_cast<unsigned>(message.WParameter), *control);
    } catch (const std::exception& error) {
        kit.App().HandleException(error);
        return true;
    }
}

}  // namespace

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

void HApplication::Dispatch(const TMessage& message) {
    if (!UsedAsDialogKey(Kit(), message)) Kit().Desktop().DispatchMessage(message);
}

void HApplication::ProcessMessages() {
    TMessage message;
    while (Kit().Desktop().PeekAny(message)) Dispatch(message);
    Kit().Desktop().EmptyGraveyard();
}

void HApplication::HandleMessage() {
    TMessage message;
    if (!Kit().Desktop().PeekAny(message)) {
        Idle();
        if (!Kit().Desktop().GetMessage(message)) return;
    }
    Dispatch(message);
}

void HApplication::Idle() {
    const std::vector<HCustomForm*> forms = Kit().Forms();
    for (HCustomForm* form : forms) {
        if (form->Dead() || !form->IsVisible()) continue;
        try {
            form->UpdateActions();
        } catch (const std::exception& error) {
            HandleException(error);
        }
    }
}

void HApplication::Run() {
    if (FMainForm) FMainForm->Show();
    while (!FTerminated) HandleMessage();
}

void HApplication::Terminate() {
    FTerminated = true;
    Kit().Desktop().Quit();
}

void HApplication::HandleException(const std::exception& error) {
    if (dynamic_cast<const EAbort*>(&error)) return;
    if (FOnException) {
        FOnException(error);
        return;
    }
    std::string text = error.what();
    // A period behind anything that does not end a sentence by itself.
    if (!text.empty() && static_cast<unsigned char>(text.back()) > '.') text += '.';
    MessageBox(text, FTitle);
}

void HApplication::MessageBox(const std::string& text, const std::string& caption) {
    const std::vector<HWnd> disabled = Kit().DisableTaskWindows(0);
    const HWnd activeBefore = Kit().Desktop().GetActiveWindow();
    RunMessageBox(Kit().Desktop(), text, caption, FHandle);
    Kit().EnableTaskWindows(disabled);
    if (Kit().Desktop().Find(activeBefore)) Kit().Desktop().SetActiveWindow(activeBefore);
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
            if (FMainForm) FMainForm->Close();
            return 0;
        case WM_DESTROY:
            return 0;
        default:
            return Kit().Desktop().DefWindowProc(window, message, wParam, lParam);
    }
}

}  // namespace rux
