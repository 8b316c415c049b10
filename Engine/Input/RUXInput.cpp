#include "Engine/Input/RUXInput.h"

#include "Engine/Core/RUXEngineState.h"
#include "platform/KernelService.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Forms.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// Flag of keybd_event.
constexpr std::uint32_t KeyUp = 2;
/// Milliseconds between the two halves of a real key stroke.
constexpr std::uint32_t RealKeyPause = 20;

std::int32_t Middle(std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>((std::int64_t{a} + b) / 2);
}

/// Moves the cursor and answers where it came to stand, as mouse messages carry it.
LParam MoveAndReadBack(HWnd window, const TRect& rect) {
    MoveMouseToRect(window, rect);
    return MakePointParam(Platform().Windows.ScreenToClient(window, Platform().Toolkit.Mouse().CursorPos()));
}

void PostClick(HWnd window, unsigned down, unsigned up, LParam point) {
    TWindowService& windows = Platform().Windows;
    windows.PostMessageA(window, down, 0, point);
    windows.PostMessageA(window, up, 0, point);
    Cast<TApplication>(&Platform().Toolkit.Application()).ProcessMessages();
}

void PressRealKey(std::uint8_t key) {
    TWindowService& windows = Platform().Windows;
    windows.keybd_event(key, 0, 0, 0);
    Platform().Kernel.Sleep(RealKeyPause);
    windows.keybd_event(key, 0, KeyUp, 0);
}

void SendNamedKey(HWnd window, std::string_view key) {
    if (SameText(key, "F2")) SendVirtualKey(window, VK_F2);
    if (SameText(key, "RETURN")) PressRealKey(VK_RETURN);
    if (SameText(key, "Down")) SendVirtualKey(window, VK_DOWN);
}

}  // namespace

TPoint CenterOf(const TRect& rect) {
    return {Middle(rect.Left, rect.Right), Middle(rect.Top, rect.Bottom)};
}

TRect OffsetRectBy(const TRect& rect, TPoint by) {
    return rect.MovedBy(by);
}

void MoveMouseToRect(HWnd window, const TRect& rect) {
    Platform().Toolkit.Mouse().SetCursorPos(Platform().Windows.ClientToScreen(window, CenterOf(rect)));
}

void ClickRect(HWnd window, const TRect& rect, bool rightButton) {
    const LParam point = MoveAndReadBack(window, rect);
    if (rightButton) {
        PostClick(window, WM_RBUTTONDOWN, WM_RBUTTONUP, point);
        return;
    }
    Platform().Windows.SendMessageA(window, WM_LBUTTONDOWN, 0, point);
    Platform().Windows.SendMessageA(window, WM_LBUTTONUP, 0, point);
}

void DblClickRect(HWnd window, const TRect& rect) {
    const LParam point = MoveAndReadBack(window, rect);
    Platform().Windows.SendMessageA(window, WM_LBUTTONDBLCLK, 0, point);
}

void PostClickRect(HWnd window, const TRect& rect) {
    PostClick(window, WM_LBUTTONDOWN, WM_LBUTTONUP, MoveAndReadBack(window, rect));
}

void SendModifierKeys(HWnd window, std::string_view acaKey, bool down) {
    const unsigned message = down ? WM_SYSKEYDOWN : WM_SYSKEYUP;
    const auto send = [&](std::string_view lower, std::string_view upper, unsigned key) {
        if (AnsiPos(lower, acaKey) > 0 || AnsiPos(upper, acaKey) > 0)
            Platform().Windows.SendMessageA(window, message, key, 0);
    };
    send("a", "A", VK_CONTROL);
    send("c", "C", VK_MENU);
}

void SendVirtualKey(HWnd window, unsigned key) {
    Platform().Windows.SendMessageA(window, WM_SYSKEYDOWN, key, 0);
    Platform().Windows.SendMessageA(window, WM_SYSKEYUP, key, 0);
}

void SendKey(HWnd window, std::string_view key, std::string_view acaKey) {
    SendModifierKeys(window, acaKey, true);
    try {
        SendNamedKey(window, key);
    } catch (...) {
        SendModifierKeys(window, acaKey, false);
        throw;
    }
    SendModifierKeys(window, acaKey, false);
}

}  // namespace rux
