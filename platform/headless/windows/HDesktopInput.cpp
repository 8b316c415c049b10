// Focus, activation, capture, cursor and keyboard of the desktop.
#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/windows/HDesktop.h"

namespace rux {

namespace {

bool IsWithin(const HWindow* window, const HWindow* ancestor) {
    for (; window; window = window->Parent)
        if (window == ancestor) return true;
    return false;
}

const HWindow& TopOf(const HWindow& window) {
    const HWindow* top = &window;
    while (top->Parent) top = top->Parent;
    return *top;
}

}  // namespace

bool HDesktop::SetFocus(HWnd handle) {
    if (handle == 0) {
        if (const HWnd old = std::exchange(FFocus, 0)) Notify(old, WM_KILLFOCUS, 0, 0);
        return true;
    }
    const HWindow* window = FTable.Find(handle);
    if (!window) return false;
    for (const HWindow* step = window; step; step = step->Parent)
        if (!step->Enabled()) return false;
    if (FFocus == handle) return true;
    if (const HWnd top = TopOf(*window).Handle; top != FActive) {
        SetActiveWindow(top);
        if (FFocus == handle) return true;
    }
    const HWnd old = std::exchange(FFocus, handle);
    if (old) Notify(old, WM_KILLFOCUS, handle, 0);
    if (FFocus == handle) Notify(handle, WM_SETFOCUS, old, 0);
    return FFocus == handle;
}

HWnd HDesktop::SetActiveWindow(HWnd handle) {
    const HWindow* window = FTable.Find(handle);
    if (!window || window->IsChild() || !window->Enabled() || !window->Visible()) return 0;
    const HWnd old = FActive;
    if (old == handle) return old;
    FActive = handle;
    BringWindowToTop(handle);
    if (old) Notify(old, WM_ACTIVATE, 0, static_cast<LParam>(handle));
    if (FActive != handle) return old;
    Notify(handle, WM_ACTIVATE, 1, static_cast<LParam>(old));
    // A window whose procedure gave the focus to none of its children takes it itself.
    window = FTable.Find(handle);
    if (window && FActive == handle && !IsWithin(FTable.Find(FFocus), window)) SetFocus(handle);
    return old;
}

void HDesktop::ActivateNext(HWnd leaving) {
    const HWindow* gone = FTable.Find(leaving);
    FActive = 0;
    // A window without size, such as the application's own, is no place for a person to go on.
    const auto fits = [&](const HWindow& w) {
        return w.Handle != leaving && w.Visible() && w.Enabled() && w.Rect.Width() > 0;
    };
    if (gone && gone->Owner && fits(*gone->Owner)) {
        SetActiveWindow(gone->Owner->Handle);
        return;
    }
    const auto next =
        std::find_if(FTopLevel.rbegin(), FTopLevel.rend(), [&](HWindow* w) { return fits(*w); });
    if (next != FTopLevel.rend()) SetActiveWindow((*next)->Handle);
}

void HDesktop::DropInput(HWnd handle) {
    const HWindow* window = FTable.Find(handle);
    if (!window) return;
    if (IsWithin(FTable.Find(FCapture), window)) SetCapture(0);
    if (!IsWithin(FTable.Find(FFocus), window)) return;
    const HWnd old = std::exchange(FFocus, 0);
    Notify(old, WM_KILLFOCUS, 0, 0);
}

void HDesktop::SetCapture(HWnd window) {
    const HWnd old = std::exchange(FCapture, FTable.Find(window) ? window : 0);
    if (old && old != FCapture) Notify(old, WM_CAPTURECHANGED, 0, static_cast<LParam>(FCapture));
}

void HDesktop::SetCursorPos(TPoint point) {
    FCursor = {std::clamp(point.X, HScreenRect.Left, HScreenRect.Right - 1),
               std::clamp(point.Y, HScreenRect.Top, HScreenRect.Bottom - 1)};
    if (FJournal.Wants(HEntry::Cursor))
        FJournal.Add(HEntry::Cursor, "cursor " + std::to_string(FCursor.X) + "," + std::to_string(FCursor.Y));
}

void HDesktop::keybd_event(std::uint8_t key, std::uint8_t, std::uint32_t flags, std::uintptr_t) {
    const bool up = (flags & 2) != 0;
    if (FJournal.Wants(HEntry::Key))
        FJournal.Add(HEntry::Key, std::string(up ? "key up " : "key down ") + std::to_string(key));
    FKeys[key] = !up;
    const bool system = FKeys[VK_MENU] && !FKeys[VK_CONTROL];
    const unsigned number = up ? (system ? WM_SYSKEYUP : WM_KEYUP) : (system ? WM_SYSKEYDOWN : WM_KEYDOWN);
    // The window is found when the message is taken out: the focus may move until then.
    FQueue.Put({0, number, key, 0});
}

bool HDesktop::ResolveKey(TMessage& message) {
    message.Window = FFocus ? FFocus : FActive;
    return FTable.Find(message.Window) != nullptr;
}

void HDesktop::TranslateKey(const TMessage& message) {
    if (message.Number != WM_KEYDOWN || FKeys[VK_CONTROL]) return;
    const auto key = static_cast<unsigned>(message.WParameter);
    const bool letter = key >= 'A' && key <= 'Z';
    const bool plain = (key >= '0' && key <= '9') || key == VK_SPACE || key == VK_RETURN || key == VK_TAB ||
                       key == VK_ESCAPE || key == 8;
    if (!letter && !plain) return;
    const unsigned character = letter && !FKeys[VK_SHIFT] ? key + ('a' - 'A') : key;
    FQueue.Put({message.Window, WM_CHAR, character, 0});
}

}  // namespace rux
