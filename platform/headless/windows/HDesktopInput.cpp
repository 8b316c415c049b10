// Focus, activation, capture, cursor and keyboard of the desktop.
#include <algorithm>
#include <string_view>

#include "platform/headless/HLimits.h"
#include "platform/headless/windows/HDesktop.h"

namespace rux {

namespace {

/// The character of a key on the usual keyboard; 0 for a key that has none.
char CharacterOf(unsigned key, bool shift) {
    // The keys 186 to 192 and 219 to 222, and the row of digits.
    static constexpr std::string_view plain = ";=,-./`[\\]'", shifted = ":+<_>?~{|}\"";
    static constexpr std::string_view digits = ")!@#$%^&*(";
    if (key >= 'A' && key <= 'Z') return static_cast<char>(shift ? key : key + ('a' - 'A'));
    if (key >= '0' && key <= '9') return shift ? digits[key - '0'] : static_cast<char>(key);
    const std::size_t place = key >= 186 && key <= 192   ? key - 186
                              : key >= 219 && key <= 222 ? key - 219 + 7
                                                         : plain.size();
    if (place < plain.size()) return (shift ? shifted : plain)[place];
    const bool itself = key == VK_SPACE || key == VK_RETURN || key == VK_TAB || key == VK_ESCAPE || key == 8;
    return itself ? static_cast<char>(key) : '\0';
}

bool CanTakeFocus(const HWindow* window) {
    if (!window) return false;
    for (; window; window = window->Parent)
        if (!window->Enabled()) return false;
    return true;
}

}  // namespace

bool HDesktop::SetFocus(HWnd handle) {
    if (handle != 0) {
        if (!CanTakeFocus(FTable.Find(handle))) return false;
        if (const HWnd top = FTable.Find(handle)->Top().Handle; top != FActive) {
            SetActiveWindow(top);
            if (!CanTakeFocus(FTable.Find(handle))) return false;
        }
    }
    const HWnd old = std::exchange(FFocus, handle);
    if (old == handle) return true;
    if (old) Notify(old, WM_KILLFOCUS, handle, 0);
    if (handle && FFocus == handle) Notify(handle, WM_SETFOCUS, old, 0);
    return FFocus == handle;
}

HWnd HDesktop::SetActiveWindow(HWnd handle) {
    const HWindow* window = FTable.Find(handle);
    if (!window) return 0;
    if (window->IsChild()) return FActive;
    const HWnd old = std::exchange(FActive, handle);
    if (old == handle) return old;
    BringWindowToTop(handle);
    if (old) Notify(old, WM_ACTIVATE, 0, static_cast<LParam>(handle));
    if (FActive != handle) return old;
    Notify(handle, WM_ACTIVATE, 1, static_cast<LParam>(old));
    // A window whose procedure gave the focus to none of its children takes it itself.
    window = FTable.Find(handle);
    if (window && FActive == handle && !IsWithin(FFocus, window)) SetFocus(handle);
    return old;
}

void HDesktop::ActivateNext(HWnd leaving) {
    // A window without size, such as the application's own, is no place for a person to go on.
    const auto fits = [&](const HWindow* w) {
        return w && w->Handle != leaving && w->Visible() && w->Enabled() && w->Rect.Width() > 0;
    };
    const HWindow* gone = FTable.Find(leaving);
    const HWindow* next = gone ? FTable.Find(gone->Owner) : nullptr;
    if (!fits(next)) {
        const auto found = std::find_if(FTopLevel.rbegin(), FTopLevel.rend(), fits);
        next = found == FTopLevel.rend() ? nullptr : *found;
    }
    if (next) {
        SetActiveWindow(next->Handle);
        return;
    }
    FActive = 0;
    Notify(leaving, WM_ACTIVATE, 0, 0);
}

void HDesktop::DropInput(HWnd handle) {
    const HWindow* window = FTable.Find(handle);
    if (!window) return;
    if (IsWithin(FCapture, window)) SetCapture(0);
    if (IsWithin(FFocus, FTable.Find(handle))) SetFocus(0);
}

void HDesktop::SetCapture(HWnd window) {
    const HWnd old = std::exchange(FCapture, FTable.Find(window) ? window : 0);
    if (old && old != FCapture) Notify(old, WM_CAPTURECHANGED, 0, static_cast<LParam>(FCapture));
}

void HDesktop::CancelMode() {
    if (FCapture) Notify(FCapture, WM_CANCELMODE, 0, 0);
    ReleaseCapture();
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
    FQueue.PutInput({0, up ? WM_KEYUP : WM_KEYDOWN, key, 0});
}

bool HDesktop::ResolveKey(TMessage& message) {
    // Keys go to whoever has the focus when they are taken out, and count as pressed from then on.
    const bool up = message.Number == WM_KEYUP;
    FKeys[message.WParameter & 0xFF] = !up;
    if (FKeys[VK_MENU] && !FKeys[VK_CONTROL]) message.Number = up ? WM_SYSKEYUP : WM_SYSKEYDOWN;
    message.Window = FFocus ? FFocus : FActive;
    return FTable.Find(message.Window) != nullptr;
}

void HDesktop::TranslateKey(const TMessage& message) {
    if (message.Number != WM_KEYDOWN || FKeys[VK_CONTROL]) return;
    if (const char character = CharacterOf(static_cast<unsigned>(message.WParameter), FKeys[VK_SHIFT]))
        FQueue.Put({message.Window, WM_CHAR, static_cast<WParam>(character), 0});
}

}  // namespace rux
