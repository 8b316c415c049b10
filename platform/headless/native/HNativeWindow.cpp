#include "platform/headless/native/HNativeWindow.h"

#include "platform/headless/native/HNativeDialog.h"
#include "rtl/CodePage.h"

namespace rux {

HWnd HNativeWindow::ParentOf(HWnd window) const {
    const HWindow* found = FDesktop.Find(window);
    return found && found->Parent ? found->Parent->Handle : 0;
}

void HNativeWindow::TellParent(HWnd window, unsigned code) const {
    const WParam parameter = FId | static_cast<WParam>(code) << 16;
    FDesktop.Notify(ParentOf(window), WM_COMMAND, parameter, static_cast<LParam>(window));
}

// ---------------------------------------------------------------------------------------------- Button

void HButtonClass::Release(HWnd window) {
    FPushed = false;
    if (FDesktop.GetCapture() == window) FDesktop.ReleaseCapture();
}

bool HButtonClass::Handle(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            FDesktop.SetFocus(window);
            FDesktop.SetCapture(window);
            FPushed = FDesktop.GetCapture() == window;
            return false;
        case WM_CAPTURECHANGED:
            FPushed = false;
            return false;
        case WM_CANCELMODE:
        case WM_KILLFOCUS:
            Release(window);
            return false;
        case WM_KEYDOWN:
            if (wParam == VK_SPACE) FPushed = true;
            return false;
        case WM_KEYUP:
            return wParam == VK_SPACE && std::exchange(FPushed, false);
        case WM_LBUTTONUP: {
            if (!FPushed) return false;
            Release(window);
            const HWindow* button = FDesktop.Find(window);
            return button && button->ClientRect().Contains(PointOfParam(lParam));
        }
        default:
            return false;
    }
}

LResult HNativeButton::WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    if (FClass.Handle(window, message, wParam, lParam)) {
        TellParent(window, BN_CLICKED);
        return 0;
    }
    if (message == WM_KEYDOWN && KeyOfForeignDialog(FDesktop, window, wParam)) return 0;
    return HNativeWindow::WndProc(window, message, wParam, lParam);
}

// ---------------------------------------------------------------------------------------------- Edit

bool HNativeEdit::Type(std::string& text, char character) {
    if (character == 8) {
        std::size_t last = text.size();
        for (TTextCursor step(text); !step.AtEnd(); step.Next()) last = step.Pos();
        if (last == text.size()) return false;
        text.resize(last);
        return true;
    }
    if (static_cast<unsigned char>(character) < 32 || text.size() >= TypedLimit) return false;
    text += character;
    return true;
}

LResult HNativeEdit::WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    HWindow* edit = FDesktop.Find(window);
    if (!edit) return 0;
    switch (message) {
        case WM_SETTEXT: {
            const LResult result = HNativeWindow::WndProc(window, message, wParam, lParam);
            TellParent(window, EN_CHANGE);
            return result;
        }
        case WM_CHAR:
            if (!(edit->Style & ES_READONLY) && Type(edit->Text, static_cast<char>(wParam)))
                TellParent(window, EN_CHANGE);
            return 0;
        case WM_LBUTTONDOWN:
            FDesktop.SetFocus(window);
            return 0;
        default:
            return HNativeWindow::WndProc(window, message, wParam, lParam);
    }
}

}  // namespace rux
