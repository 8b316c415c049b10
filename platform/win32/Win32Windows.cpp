#include "platform/win32/Win32Windows.h"

#include <exception>

#include "platform/win32/Headers.h"
#include "platform/win32/Win32Pictures.h"

namespace rux {

namespace {

HWND Handle(HWnd window) {
    return reinterpret_cast<HWND>(window);
}

HWnd NumberOf(HWND window) {
    return reinterpret_cast<HWnd>(window);
}

WNDPROC Procedure(TWndProc procedure) {
    return reinterpret_cast<WNDPROC>(procedure);
}

/// An enumeration on its way through the system's frames, which no exception may cross.
struct TEnumeration {
    const TEnumWindowsProc& Proc;
    std::exception_ptr Raised;

    static BOOL CALLBACK Step(HWND window, LPARAM param) noexcept {
        auto& self = *reinterpret_cast<TEnumeration*>(param);
        try {
            return self.Proc(NumberOf(window)) ? TRUE : FALSE;
        } catch (...) {
            self.Raised = std::current_exception();
            return FALSE;
        }
    }
    LPARAM Param() { return reinterpret_cast<LPARAM>(this); }
    void RaiseAgain() const {
        if (Raised) std::rethrow_exception(Raised);
    }
};

bool WholeChainEnabled(HWND window) {
    const HWND desktop = ::GetDesktopWindow();
    for (; window && window != desktop; window = ::GetAncestor(window, GA_PARENT))
        if (!::IsWindowEnabled(window)) return false;
    return true;
}

}  // namespace

// ------------------------------------------------------------------------------------------ messages

LResult TWin32Windows::SendMessageA(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    return ::SendMessageA(Handle(window), message, wParam, lParam);
}

bool TWin32Windows::PostMessageA(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    // Without a window it would go to the calling thread.
    return window != 0 && ::PostMessageA(Handle(window), message, wParam, lParam);
}

bool TWin32Windows::PeekMessageA(TMessage& message, HWnd window, unsigned first, unsigned last) {
    // For the system no window is any window, and a range from 0 to 0 all messages.
    if (window == 0 || first > last || last == 0) return false;
    MSG found;
    if (!::PeekMessageA(&found, Handle(window), first, last, PM_REMOVE)) return false;
    if (found.message == WM_QUIT) {
        // It comes whatever was asked for, and is for the thread's own loop.
        ::PostQuitMessage(static_cast<int>(found.wParam));
        return false;
    }
    message = {NumberOf(found.hwnd), found.message, found.wParam, found.lParam};
    return true;
}

unsigned TWin32Windows::RegisterWindowMessageA(const std::string& name) {
    return ::RegisterWindowMessageA(name.c_str());
}

// ------------------------------------------------------------------------------------------ procedures

TWndProc TWin32Windows::MakeObjectInstance(TWindowProcedure procedure) {
    return FThunks.MakeWindowProc(std::move(procedure));
}

void TWin32Windows::FreeObjectInstance(TWndProc instance) {
    FThunks.FreeWindowProc(instance);
}

TWndProc TWin32Windows::GetWindowProc(HWnd window) {
    const HWND handle = Handle(window);
    return static_cast<TWndProc>(::IsWindowUnicode(handle) ? ::GetWindowLongW(handle, GWL_WNDPROC)
                                                           : ::GetWindowLongA(handle, GWL_WNDPROC));
}

TWndProc TWin32Windows::SetWindowProc(HWnd window, TWndProc procedure) {
    const TWndProc previous = GetWindowProc(window);
    if (previous == 0 || procedure == 0) return 0;
    // Before the first message can come.
    FThunks.SetPrevious(procedure, previous);
    // A window keeps its kind: one of wide texts would otherwise see its own messages in the code page.
    const HWND handle = Handle(window);
    const auto value = static_cast<LONG>(procedure);
    return static_cast<TWndProc>(::IsWindowUnicode(handle) ? ::SetWindowLongW(handle, GWL_WNDPROC, value)
                                                           : ::SetWindowLongA(handle, GWL_WNDPROC, value));
}

LResult TWin32Windows::CallWindowProcA(TWndProc procedure, HWnd window, unsigned message, WParam wParam,
                                       LParam lParam) {
    if (procedure == 0) return 0;
    return ::CallWindowProcA(Procedure(procedure), Handle(window), message, wParam, lParam);
}

// ------------------------------------------------------------------------------------------ facts

bool TWin32Windows::IsWindow(HWnd window) {
    return ::IsWindow(Handle(window));
}

bool TWin32Windows::GetWindowInfo(HWnd window, TWindowInfo& info) {
    WINDOWINFO found{};
    found.cbSize = sizeof found;
    if (!::GetWindowInfo(Handle(window), &found)) return false;
    info = {static_cast<std::uint32_t>(found.dwStyle), static_cast<std::uint32_t>(found.dwExStyle)};
    return true;
}

bool TWin32Windows::IsWindowVisible(HWnd window) {
    return ::IsWindowVisible(Handle(window));
}

bool TWin32Windows::IsWindowEnabled(HWnd window) {
    return ::IsWindowEnabled(Handle(window));
}

bool TWin32Windows::GetWindowRect(HWnd window, TRect& rect) {
    RECT found;
    if (!::GetWindowRect(Handle(window), &found)) return false;
    rect = {found.left, found.top, found.right, found.bottom};
    return true;
}

std::string TWin32Windows::GetWindowTextA(HWnd window) {
    // What the window's own code answers may be no text, and its length a lie.
    char text[255] = {};
    if (!::IsWindow(Handle(window))) return {};
    ::GetWindowTextA(Handle(window), text, sizeof text);
    text[sizeof text - 1] = 0;
    return text;
}

std::string TWin32Windows::GetClassNameA(HWnd window) {
    // A class has at most 256 characters, in the code page of two bytes each.
    char name[513];
    const int length = ::GetClassNameA(Handle(window), name, sizeof name);
    return length > 0 ? std::string(name, static_cast<std::size_t>(length)) : std::string();
}

std::uint32_t TWin32Windows::GetWindowProcessId(HWnd window) {
    DWORD process = 0;
    ::GetWindowThreadProcessId(Handle(window), &process);
    return process;
}

void TWin32Windows::EnumWindows(const TEnumWindowsProc& proc) {
    TEnumeration enumeration{proc, nullptr};
    ::EnumWindows(&TEnumeration::Step, enumeration.Param());
    enumeration.RaiseAgain();
}

void TWin32Windows::EnumChildWindows(HWnd parent, const TEnumWindowsProc& proc) {
    // Below no window the system would list all that there are.
    if (!::IsWindow(Handle(parent))) return;
    TEnumeration enumeration{proc, nullptr};
    ::EnumChildWindows(Handle(parent), &TEnumeration::Step, enumeration.Param());
    enumeration.RaiseAgain();
}

TAtom TWin32Windows::GlobalFindAtomA(const std::string& name) {
    return ::GlobalFindAtomA(name.c_str());
}

std::uintptr_t TWin32Windows::GetPropA(HWnd window, TAtom atom) {
    if (atom == 0) return 0;
    return reinterpret_cast<std::uintptr_t>(
        ::GetPropA(Handle(window), reinterpret_cast<const char*>(std::uintptr_t{atom})));
}

TPoint TWin32Windows::ClientToScreen(HWnd window, TPoint point) {
    POINT moved{point.X, point.Y};
    return ::ClientToScreen(Handle(window), &moved) ? TPoint{moved.x, moved.y} : point;
}

TPoint TWin32Windows::ScreenToClient(HWnd window, TPoint point) {
    POINT moved{point.X, point.Y};
    return ::ScreenToClient(Handle(window), &moved) ? TPoint{moved.x, moved.y} : point;
}

// ------------------------------------------------------------------------------------------ focus and input

HWnd TWin32Windows::SetActiveWindow(HWnd window) {
    // No window would take the activation from all of them.
    return ::IsWindow(Handle(window)) ? NumberOf(::SetActiveWindow(Handle(window))) : 0;
}

bool TWin32Windows::SetFocus(HWnd window) {
    if (window != 0 && (!::IsWindow(Handle(window)) || !WholeChainEnabled(Handle(window)))) return false;
    ::SetFocus(Handle(window));
    // A window of another thread does not get it, and one's own code may give it on.
    return NumberOf(::GetFocus()) == window;
}

bool TWin32Windows::PrintWindow(HWnd window, TBitmap& picture) {
    return PictureOfWindow(Handle(window), picture);
}

bool TWin32Windows::CopyScreen(const TRect& place, TBitmap& picture) {
    return PictureOfScreen(place, picture);
}

void TWin32Windows::keybd_event(std::uint8_t key, std::uint8_t scan, std::uint32_t flags,
                                std::uintptr_t extra) {
    ::keybd_event(key, scan, flags, extra);
}

}  // namespace rux
