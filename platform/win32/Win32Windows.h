// Windows, messages and input of the system.
#pragma once

#include "platform/WindowService.h"
#include "platform/win32/Win32Thunks.h"

namespace rux {

class TWin32Windows final : public TWindowService {
 public:
    explicit TWin32Windows(TWin32Thunks& thunks) : FThunks(thunks) {}

    LResult SendMessageA(HWnd window, unsigned message, WParam wParam, LParam lParam) override;
    bool PostMessageA(HWnd window, unsigned message, WParam wParam, LParam lParam) override;
    bool PeekMessageA(TMessage& message, HWnd window, unsigned first, unsigned last) override;
    unsigned RegisterWindowMessageA(const std::string& name) override;

    TWndProc MakeObjectInstance(TWindowProcedure procedure) override;
    void FreeObjectInstance(TWndProc instance) override;
    TWndProc GetWindowProc(HWnd window) override;
    TWndProc SetWindowProc(HWnd window, TWndProc procedure) override;
    LResult CallWindowProcA(TWndProc procedure, HWnd window, unsigned message, WParam wParam,
                            LParam lParam) override;

    bool IsWindow(HWnd window) override;
    bool GetWindowInfo(HWnd window, TWindowInfo& info) override;
    bool IsWindowVisible(HWnd window) override;
    bool IsWindowEnabled(HWnd window) override;
    bool GetWindowRect(HWnd window, TRect& rect) override;
    std::string GetWindowTextA(HWnd window) override;
    std::string GetClassNameA(HWnd window) override;
    std::uint32_t GetWindowProcessId(HWnd window) override;
    void EnumWindows(const TEnumWindowsProc& proc) override;
    void EnumChildWindows(HWnd parent, const TEnumWindowsProc& proc) override;

    TAtom GlobalFindAtomA(const std::string& name) override;
    std::uintptr_t GetPropA(HWnd window, TAtom atom) override;

    TPoint ClientToScreen(HWnd window, TPoint point) override;
    TPoint ScreenToClient(HWnd window, TPoint point) override;
    HWnd SetActiveWindow(HWnd window) override;
    bool SetFocus(HWnd window) override;

    bool PrintWindow(HWnd window, TBitmap& picture) override;
    bool CopyScreen(const TRect& place, TBitmap& picture) override;

    void keybd_event(std::uint8_t key, std::uint8_t scan, std::uint32_t flags, std::uintptr_t extra) override;

 private:
    TWin32Thunks& FThunks;
};

}  // namespace rux
