#include "platform/win32/toolkit/WApplication.h"

#include <cstring>
#include <vector>

#include "platform/win32/Headers.h"
#include "rtl/Exceptions.h"

namespace rux {

namespace {

constexpr const char* HiddenWindowClass = "TApplication";
constexpr const char* DialogClass = "#32770";

HWND Native(HWnd window) {
    return reinterpret_cast<HWND>(window);
}

bool IsOfClass(HWND window, const char* name) {
    char own[64];
    return ::GetClassNameA(window, own, sizeof own) > 0 && std::strcmp(own, name) == 0;
}

struct TFound {
    HWND Hidden = nullptr;
    HWND Uppermost = nullptr;
};

BOOL CALLBACK Look(HWND window, LPARAM param) {
    auto& found = *reinterpret_cast<TFound*>(param);
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process != ::GetCurrentProcessId()) return TRUE;
    if (IsOfClass(window, HiddenWindowClass)) found.Hidden = window;
    const bool stands = ::IsWindowVisible(window) && !::GetWindow(window, GW_OWNER);
    if (!found.Uppermost && stands) found.Uppermost = window;
    return found.Hidden == nullptr;
}

HWnd FindWindowOfApplication() {
    TFound found;
    ::EnumWindows(&Look, reinterpret_cast<LPARAM>(&found));
    return reinterpret_cast<HWnd>(found.Hidden ? found.Hidden : found.Uppermost);
}

/// Windows of this thread that take no input while a box is up.
class TDisabledWindows {
 public:
    TDisabledWindows() {
        ::EnumThreadWindows(::GetCurrentThreadId(), &Disable, reinterpret_cast<LPARAM>(this));
    }
    TDisabledWindows(const TDisabledWindows&) = delete;
    TDisabledWindows& operator=(const TDisabledWindows&) = delete;
    ~TDisabledWindows() {
        for (const HWND window : FWindows) ::EnableWindow(window, TRUE);
    }

 private:
    static BOOL CALLBACK Disable(HWND window, LPARAM param) {
        if (!::IsWindowVisible(window) || !::IsWindowEnabled(window)) return TRUE;
        try {
            reinterpret_cast<TDisabledWindows*>(param)->FWindows.push_back(window);
        } catch (...) {
            return FALSE;
        }
        ::EnableWindow(window, FALSE);
        return TRUE;
    }
    std::vector<HWND> FWindows;
};

/// As each window's own loop would take it, whether it lives with wide texts or not.
bool TakeMessage(MSG& message) {
    if (!::PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) return false;
    return message.hwnd && ::IsWindowUnicode(message.hwnd)
               ? ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0
               : ::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0;
}

bool IsDialogKey(MSG& message) {
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
    const HWND root = ::GetAncestor(message.hwnd, GA_ROOT);
    return root && IsOfClass(root, DialogClass) && ::IsDialogMessageA(root, &message);
}

void Dispatch(MSG& message) {
    if (IsDialogKey(message)) return;
    ::TranslateMessage(&message);
    if (message.hwnd && ::IsWindowUnicode(message.hwnd))
        ::DispatchMessageW(&message);
    else
        ::DispatchMessageA(&message);
}

}  // namespace

WApplication::WApplication(const TClass& aClass, std::uint64_t refNumber)
    : FClass(aClass),
      FRefNumber(refNumber),
      FHandle(FindWindowOfApplication()),
      FThread(::GetWindowThreadProcessId(Native(FHandle), nullptr)) {}

void* WApplication::Facet(TFacetId id) {
    return id == TFacetId::Application ? static_cast<TApplication*>(this) : nullptr;
}

bool WApplication::GetProp(TName, TPropValue&) {
    return false;
}

void WApplication::ProcessMessages() {
    for (MSG message; TakeMessage(message);) {
        if (message.message == WM_QUIT) {
            FQuitSeen = true;
            // It belongs to the application's own loop, which must hear of it too.
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Dispatch(message);
    }
}

bool WApplication::Terminated() {
    return FQuitSeen || !::IsWindow(Native(FHandle));
}

void WApplication::ReportError(const std::exception& error) {
    if (::GetCurrentThreadId() != FThread) {
        ::OutputDebugStringA(error.what());
        return;
    }
    if (dynamic_cast<const EAbort*>(&error)) return;
    std::string text = error.what();
    // A period behind anything that does not end a sentence by itself.
    if (!text.empty() && static_cast<unsigned char>(text.back()) > '.') text += '.';
    char title[255] = {};
    ::GetWindowTextA(Native(FHandle), title, sizeof title);
    if (const HWND capture = ::GetCapture()) ::SendMessageA(capture, WM_CANCELMODE, 0, 0);
    const HWND activeBefore = ::GetActiveWindow();
    {
        const TDisabledWindows disabled;
        ::MessageBoxA(Native(FHandle), text.c_str(), title, MB_OK | MB_ICONERROR);
    }
    ::SetActiveWindow(activeBefore);
}

}  // namespace rux
