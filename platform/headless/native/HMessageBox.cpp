#include "platform/headless/native/HMessageBox.h"

#include "platform/headless/HLimits.h"
#include "platform/headless/native/HNativeWindow.h"
#include "rtl/CodePage.h"
#include "rtl/Stack.h"

namespace rux {

namespace {

/// What a box's loop may need; less than the reserve that is left for reports.
constexpr std::size_t StackOfBox = std::size_t{64} << 10;

HWnd AddChild(HDesktop& desktop, HWnd parent, const char* className, const std::string& text,
              const TRect& rect, std::shared_ptr<HWindowTarget> target) {
    HCreateParams params;
    params.ClassName = className;
    params.Text = text;
    params.Style = WS_CHILD | WS_VISIBLE;
    params.Parent = parent;
    params.Rect = rect;
    params.OwnedTarget = std::move(target);
    return desktop.CreateWindowA(params);
}

struct TBox {
    HWnd Window, Button;
};

TBox CreateBox(HDesktop& desktop, const std::shared_ptr<HNativeDialog>& dialog, const std::string& text,
               const std::string& caption, HWnd owner) {
    constexpr int width = 320, height = 140;
    const int left = (HScreenRect.Width() - width) / 2, top = (HScreenRect.Height() - height) / 2;
    HCreateParams params;
    params.ClassName = "#32770";
    params.Text = caption;
    params.Style = WS_POPUP;
    params.Parent = owner;
    params.Rect = {left, top, left + width, top + height};
    params.Insets = {HFixedFrame, HFixedFrame + HCaptionHeight, HFixedFrame, HFixedFrame};
    params.OwnedTarget = dialog;
    const HWnd box = desktop.CreateWindowA(params);
    AddChild(desktop, box, "Static", text, {60, 16, 300, 60},
             std::make_shared<HNativeWindow>(desktop, "Static"));
    AddChild(desktop, box, "Static", "", {12, 16, 44, 48},
             std::make_shared<HNativeWindow>(desktop, "Static"));
    const HWnd button = AddChild(desktop, box, "Button", Ansi("确定"), {120, 76, 195, 101},
                                 std::make_shared<HNativeButton>(desktop, IDOK));
    return {box, button};
}

/// Keys that a dialog treats itself; with one button Escape means the same as Enter.
bool EndsBox(HDesktop& desktop, HWnd box, const TMessage& message) {
    if (message.Number != WM_KEYDOWN) return false;
    if (message.WParameter != VK_RETURN && message.WParameter != VK_ESCAPE) return false;
    const HWindow* window = desktop.Find(message.Window);
    return window && window->Top().Handle == box;
}

}  // namespace

void RunMessageBox(HDesktop& desktop, const std::string& text, const std::string& caption, HWnd owner) {
    desktop.Journal().Add(HEntry::Box, "box " + caption + ": " + text);
    // Errors of timers that fire under the boxes of earlier ones.
    if (StackRoom() < StackOfBox) return;
    const HDesktop::THandling handling(desktop);
    desktop.CancelMode();
    const auto dialog = std::make_shared<HNativeDialog>(desktop);
    const TBox box = CreateBox(desktop, dialog, text, caption, owner);
    if (box.Window == 0) return;  // no room for a further window
    const bool ownerWasDisabled = desktop.EnableWindow(owner, false);
    desktop.ShowWindow(box.Window, SW_SHOWNORMAL);
    desktop.SetActiveWindow(box.Window);
    desktop.SetFocus(box.Button);
    while (dialog->Result() == 0 && !desktop.Quitting()) {
        TMessage message;
        if (!desktop.PeekAny(message))
            desktop.WaitMessage();
        else if (EndsBox(desktop, box.Window, message))
            desktop.Notify(box.Window, WM_COMMAND, IDOK, 0);
        else
            desktop.DispatchMessage(message);
    }
    if (!ownerWasDisabled) desktop.EnableWindow(owner, true);
    desktop.DestroyWindow(box.Window);
}

}  // namespace rux
