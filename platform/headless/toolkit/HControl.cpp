#include "platform/headless/toolkit/HControl.h"

#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HMenus.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

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
    const TPoint origin = ClientOrigin();
    return {origin.X, origin.Y, origin.X + Width(), origin.Y + Height()};
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
    if (Kit().CaptureControl() == this) Kit().SetCaptureControl(nullptr);
    SetAction(nullptr);
    SetParent(nullptr);
}

// ------------------------------------------------------------------------------------------------ actions

HObject* HControl::ActionObject() const {
    return FAction;
}

void HControl::SetAction(HObject* action) {
    if (FAction) FAction->RemoveClient(*this);
    FAction = dynamic_cast<HCustomAction*>(action);
    if (!FAction) return;
    FAction->AddClient(*this);
    ActionChanged(*FAction, true);
}

void HControl::ActionChanged(HCustomAction& action, bool onlyDefaults) {
    if (!onlyDefaults || FText.empty() || FText == Name()) SetText(action.Caption());
    if (!onlyDefaults || FEnabled) SetEnabled(action.Enabled());
    if (!onlyDefaults || FVisible) SetVisible(action.Visible());
    const TPropValue* hint = Stored(Kit().Names().Hint);
    if (!onlyDefaults || !hint || hint->Text.empty()) Store(Kit().Names().Hint, HStringValue(action.Hint()));
}

void HControl::Loaded() {
    With::Loaded();
    // The action may have been read after the control.
    if (!FAction) return;
    ActionChanged(*FAction, true);
    if (HCustomForm* form = ParentForm()) form->AddActionClient(*this);
}

void HControl::Click() {
    const TName onClick = Kit().Names().OnClick;
    const bool ownHandler =
        Assigned(onClick) && (!FAction || MethodOf(onClick) != FAction->MethodOf(Kit().Names().OnExecute));
    if (ownHandler)
        Fire(onClick);
    else if (FAction)
        FAction->Execute();
}

void HControl::CallOnClick() {
    if (Fire(Kit().Names().OnClick)) return;
    // A linked control's OnClick field holds the action's OnExecute.
    if (!FAction || !FAction->FireExecute()) RaiseNilAccess();
}

// ------------------------------------------------------------------------------------------------ mouse

LResult HControl::Perform(unsigned number, WParam wParam, LParam lParam) {
    HMessage message{number, wParam, lParam};
    HandleMessage(message);
    return message.Result;
}

void HControl::HandleMessage(HMessage& message) {
    unsigned number = message.Number;
    if (!FDoubleClicks && (number == WM_LBUTTONDBLCLK || number == WM_RBUTTONDBLCLK))
        number -= WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;
    switch (number) {
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
            SetMouseCapture(false);
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
        if (clicked && FClickEvents && ClientRect().Contains(point)) Click();
        if (Dead()) return;
    }
    MouseUp(button, point);
    if (button == HMouseButton::Right && !Dead()) ShowContextMenu(point);
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
    HEventArgs args{.Point = point};
    if (Fire(Kit().Names().OnContextPopup, args) && !args.Allow) return;
    for (HControl* step = this; step; step = step->FParent) {
        auto* menu = dynamic_cast<HPopupMenu*>(step->FPopupMenu);
        if (!menu) continue;
        menu->Popup();
        return;
    }
}

}  // namespace rux
