#include "platform/headless/toolkit/HControl.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HMenus.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

namespace {

std::int32_t Bound(std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, -HCoordLimit, HCoordLimit));
}

}  // namespace

template <>
const HEnumInfo& HEnumOf<HAlign>() {
    static const HEnumInfo info{"TAlign",
                                {"alNone", "alTop", "alBottom", "alLeft", "alRight", "alClient", "alCustom"}};
    return info;
}

TPoint HControl::ClientOrigin() {
    TPoint origin = FParent ? FParent->ClientOrigin() : TPoint{};
    return {origin.X + FBounds.Left, origin.Y + FBounds.Top};
}

TObject* HControl::Parent() {
    return FParent;
}

TRect HControl::ScreenRect() {
    const TPoint origin = HControl::ClientOrigin();
    return {origin.X, origin.Y, origin.X + Width(), origin.Y + Height()};
}

void HControl::SetPlace(int left, int top, int width, int height) {
    SetBounds({Bound(left), Bound(top), Bound(left) + Bound(width), Bound(top) + Bound(height)});
}

void HControl::SetBounds(const TRect& bounds) {
    const std::int32_t left = Bound(bounds.Left), top = Bound(bounds.Top);
    FBounds = {left, top, left + Bound(std::int64_t{bounds.Right} - bounds.Left),
               top + Bound(std::int64_t{bounds.Bottom} - bounds.Top)};
}

void HControl::SetParent(HWinControl* parent) {
    if (FParent == parent) return;
    if (FParent) FParent->RemoveControl(*this);
    FParent = parent;
    if (FParent) FParent->AddControl(*this);
}

HCustomForm* HControl::ParentForm() {
    HControl* step = this;
    while (step->FParent) step = step->FParent;
    return dynamic_cast<HCustomForm*>(step);
}

void HControl::Detach() {
    Kit().ForgetCapture(*this);
    SetAction(nullptr);
    SetParent(nullptr);
}

bool HControl::IsShowingOn(const HCustomForm& form) const {
    for (const HControl* step = this; step; step = step->FParent) {
        if (step == &form) return true;
        if (!step->FVisible) return false;
    }
    return false;
}

// ------------------------------------------------------------------------------------------------ actions

void HControl::SetAction(HObject* action) {
    auto* next = dynamic_cast<HCustomAction*>(action);
    if (next == FAction) return;
    if (FAction) FAction->RemoveClient(*this);
    FAction = next;
    Kit().ActionLinked(*this, FAction != nullptr);
    if (!FAction) return;
    FAction->AddClient(*this);
    ActionChanged(*FAction, FAction->Loading());
}

void HControl::ActionGone() {
    FAction = nullptr;
    Kit().ActionLinked(*this, false);
}

void HControl::ActionChanged(HCustomAction& action, bool onlyDefaults) {
    const TName hintName = Kit().Names().Hint;
    const TPropValue* stored = Stored(hintName);
    const std::string hint = stored ? stored->Text : std::string();
    const bool plain = FText.empty() || FText == Name();
    const auto text = action.Followed(&HActionState::Caption, FText, plain, onlyDefaults);
    const bool enabled = action.Followed(&HActionState::Enabled, FEnabled, FEnabled, onlyDefaults);
    const bool visible = action.Followed(&HActionState::Visible, FVisible, FVisible, onlyDefaults);
    Store(hintName, HStringValue(action.Followed(&HActionState::Hint, hint, hint.empty(), onlyDefaults)));
    if (text != FText) SetText(text);
    if (enabled != FEnabled) SetEnabled(enabled);
    if (visible != FVisible) SetVisible(visible);
}

void HControl::Click() {
    const TName onClick = Kit().Names().OnClick;
    HCustomAction* action = Action();
    const bool ownHandler =
        Assigned(onClick) && (!action || MethodOf(onClick) != action->MethodOf(Kit().Names().OnExecute));
    if (ownHandler)
        Fire(onClick);
    else if (action)
        action->Execute();
}

bool HControl::TryOnClick() {
    // A linked control's OnClick field holds the action's OnExecute.
    return Fire(Kit().Names().OnClick) || (Action() && Action()->FireExecute());
}

void HControl::CallOnClick() {
    if (!TryOnClick()) RaiseNilAccess();
}

void HControl::FireOnDblClick() {
    Fire(Kit().Names().OnDblClick);
}

// ------------------------------------------------------------------------------------------------ mouse

LResult HControl::Perform(unsigned number, WParam wParam, LParam lParam) {
    HMessage message{number, wParam, lParam};
    Receive(message);
    return message.Result;
}

void HControl::Receive(HMessage& message) {
    unsigned& number = message.Number;
    if (!FDoubleClicks && (number == WM_LBUTTONDBLCLK || number == WM_RBUTTONDBLCLK))
        number -= WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;
    if (number == WM_LBUTTONDOWN || number == WM_LBUTTONDBLCLK) FLeftDown = true;
    if (number == WM_LBUTTONUP) FLeftDown = false;
    HandleMessage(message);
}

void HControl::HandleMessage(HMessage& message) {
    switch (message.Number) {
        case WM_MOUSEMOVE: {
            HEventArgs args{.Point = message.Point()};
            Fire(Kit().Names().OnMouseMove, args);
            break;
        }
        case WM_LBUTTONDOWN:
            ButtonDown(HMouseButton::Left, message, false);
            break;
        case WM_LBUTTONDBLCLK:
            ButtonDown(HMouseButton::Left, message, true);
            break;
        case WM_LBUTTONUP:
            ButtonUp(HMouseButton::Left, message);
            break;
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
            ButtonDown(HMouseButton::Right, message, false);
            break;
        case WM_RBUTTONUP:
            ButtonUp(HMouseButton::Right, message);
            break;
        case WM_CANCELMODE:
            CancelMouse();
            break;
        default:
            break;
    }
}

void HControl::ButtonDown(HMouseButton button, HMessage& message, bool isDouble) {
    if (button == HMouseButton::Left) {
        if (FCaptureMouse) SetMouseCapture(true);
        if (FClickEvents && !isDouble) FClicked = true;
        if (FClickEvents && isDouble) DblClick();
        if (Dead()) return;
    }
    MouseDown(button, message.Point());
}

void HControl::ButtonUp(HMouseButton button, HMessage& message) {
    const TPoint point = message.Point();
    if (button == HMouseButton::Left) {
        if (FCaptureMouse) SetMouseCapture(false);
        const bool clicked = std::exchange(FClicked, false);
        // A button let go outside is no click.
        if (clicked && ClientRect().Contains(point)) Click();
        if (Dead()) return;
    }
    // A window's own default procedure asks for the menu before the event; for a graphic control its parent's
    // does, after it.
    const bool windowed = Is<TWinControl>(this), asks = button == HMouseButton::Right;
    if (asks && windowed) ShowContextMenu(point);
    if (!Dead()) MouseUp(button, point);
    if (asks && !windowed && !Dead()) ShowContextMenu(point);
}

void HControl::CancelMouse() {
    FClicked = false;
    if (Kit().CaptureControl() != this) return;
    SetMouseCapture(false);
    // As if the button were let go outside.
    if (FLeftDown) Perform(WM_LBUTTONUP, 0, MakePointParam({-1, -1}));
}

void HControl::SetMouseCapture(bool value) {
    const bool has = Kit().CaptureControl() == this;
    if (value != has) Kit().SetCaptureControl(value ? this : nullptr);
}

void HControl::MouseDown(HMouseButton button, TPoint point) {
    HEventArgs args{.Value = static_cast<int>(button), .Point = point};
    Fire(Kit().Names().OnMouseDown, args);
}

void HControl::MouseUp(HMouseButton button, TPoint point) {
    HEventArgs args{.Value = static_cast<int>(button), .Point = point};
    Fire(Kit().Names().OnMouseUp, args);
}

void HControl::DblClick() {
    Fire(Kit().Names().OnDblClick);
}

void HControl::ShowContextMenu(TPoint point) {
    const TPoint origin = ClientOrigin(), screen{origin.X + point.X, origin.Y + point.Y};
    // What a control does not answer goes on to its parent.
    for (HControl* step = this; step && !step->Dead();) {
        HControl* next = step->FParent;
        if (step->AnswerContextMenu(screen)) return;
        step = next;
    }
}

bool HControl::AnswerContextMenu(TPoint screen) {
    const TPoint origin = ClientOrigin(), point{screen.X - origin.X, screen.Y - origin.Y};
    if (!ClientRect().Contains(point)) return false;
    HEventArgs args{.Point = point};
    if (Fire(Kit().Names().OnContextPopup, args) && !args.Allow) return true;
    auto* menu = Dead() ? nullptr : dynamic_cast<HPopupMenu*>(FPopupMenu.Get());
    if (menu && !menu->AutoPopup()) menu = nullptr;
    if (menu) menu->Popup(this);
    return menu || Dead();
}

}  // namespace rux
