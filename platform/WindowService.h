// Windows, messages and input, under the names of the window system's own operations.
//
// Unless told otherwise every operation is for the user-interface thread, and an invalid handle gives 0,
// False or an empty text, never an error.
#pragma once

#include <functional>
#include <string>

#include "platform/Types.h"

namespace rux {

struct TBitmap;

struct TMessage {
    HWnd Window = 0;
    unsigned Number = 0;
    WParam WParameter = 0;
    LParam LParameter = 0;
};

struct TWindowInfo {
    std::uint32_t Style = 0;
    std::uint32_t ExStyle = 0;
};

using TWindowProcedure = std::function<LResult(HWnd, unsigned, WParam, LParam)>;
/// Return False to end the enumeration.
using TEnumWindowsProc = std::function<bool(HWnd)>;

class TWindowService {
 public:
    virtual ~TWindowService() = default;

    /// Runs the window procedure at once; from another thread it waits until the owner's loop has run it.
    virtual LResult SendMessageA(HWnd window, unsigned message, WParam wParam, LParam lParam) = 0;
    /// Queues the message; any thread. False when the window does not exist or the queue is full or closed.
    virtual bool PostMessageA(HWnd window, unsigned message, WParam wParam, LParam lParam) = 0;
    /// Takes the first queued message of `window`, or of a window below it, with first <= number <= last out
    /// of the queue. `last` is not 0.
    virtual bool PeekMessageA(TMessage& message, HWnd window, unsigned first, unsigned last) = 0;
    virtual unsigned RegisterWindowMessageA(const std::string& name) = 0;

    /// Turns a function into a window procedure that can be set into a window. No exception leaves it: what
    /// `procedure` raises goes to the application's own report, and the message answers 0. 0 when there is no
    /// room.
    virtual TWndProc MakeObjectInstance(TWindowProcedure procedure) = 0;
    virtual void FreeObjectInstance(TWndProc instance) = 0;
    virtual TWndProc GetWindowProc(HWnd window) = 0;
    /// Answers the previous procedure, 0 on failure.
    virtual TWndProc SetWindowProc(HWnd window, TWndProc procedure) = 0;
    virtual LResult CallWindowProcA(TWndProc procedure, HWnd window, unsigned message, WParam wParam,
                                    LParam lParam) = 0;

    /// Any thread.
    virtual bool IsWindow(HWnd window) = 0;
    /// Any thread.
    virtual bool GetWindowInfo(HWnd window, TWindowInfo& info) = 0;
    /// The whole parent chain counts.
    virtual bool IsWindowVisible(HWnd window) = 0;
    /// The window's own state alone.
    virtual bool IsWindowEnabled(HWnd window) = 0;
    virtual bool GetWindowRect(HWnd window, TRect& rect) = 0;
    /// At most 254 bytes, as a buffer of 255 gives it.
    virtual std::string GetWindowTextA(HWnd window) = 0;
    virtual std::string GetClassNameA(HWnd window) = 0;
    /// Process of the window's thread; 0 for no window. Any thread.
    virtual std::uint32_t GetWindowProcessId(HWnd window) = 0;
    /// Top-level windows from the top of the stacking order down.
    virtual void EnumWindows(const TEnumWindowsProc& proc) = 0;
    /// All windows below `parent`, each directly followed by its own children.
    virtual void EnumChildWindows(HWnd parent, const TEnumWindowsProc& proc) = 0;

    /// 0 when no such atom exists. Any thread.
    virtual TAtom GlobalFindAtomA(const std::string& name) = 0;
    /// Any thread.
    virtual std::uintptr_t GetPropA(HWnd window, TAtom atom) = 0;

    virtual TPoint ClientToScreen(HWnd window, TPoint point) = 0;
    virtual TPoint ScreenToClient(HWnd window, TPoint point) = 0;
    virtual HWnd SetActiveWindow(HWnd window) = 0;
    /// False when the window or one of its parents is disabled.
    virtual bool SetFocus(HWnd window) = 0;

    /// Has the window draw itself, with all on it and nothing that lies over it. False, and the picture as it
    /// was, for no window, for one without pixels and for one of more than BitmapPixelLimit.
    virtual bool PrintWindow(HWnd window, TBitmap& picture) = 0;
    /// What stands on the screen in that place; black beyond its edges. False as above.
    virtual bool CopyScreen(const TRect& place, TBitmap& picture) = 0;

    /// Real keyboard input: goes to whatever window has the focus. Flag 2 is key-up.
    virtual void keybd_event(std::uint8_t key, std::uint8_t scan, std::uint32_t flags,
                             std::uintptr_t extra) = 0;
};

}  // namespace rux
