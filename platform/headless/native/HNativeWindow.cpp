#include "platform/headless/native/HNativeWindow.h"

namespace rux {

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
        const HWindow* button = FDesktop.Find(window);
        if (button && button->Parent)
            FDesktop.Notify(button->Parent->Handle, WM_COMMAND, FId, static_cast<LParam>(window));
        return 0;
    }
    return HNativeWindow::WndProc(window, message, wParam, lParam);
}

LResult HNativeDialog::WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    switch (message) {
        case WM_COMMAND:
            FResult = static_cast<unsigned>(wParam & 0xFFFF);
            return 0;
        case WM_CLOSE:
            FResult = IDCANCEL;
            return 0;
        case WM_DESTROY:
            if (FResult == 0) FResult = IDCANCEL;
            return 0;
        default:
            return HNativeWindow::WndProc(window, message, wParam, lParam);
    }
}

}  // namespace rux
