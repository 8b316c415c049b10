#include "platform/headless/toolkit/HButtons.h"

#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/CodePage.h"

namespace rux {

template <>
const HEnumInfo& HEnumOf<HCheckBoxState>() {
    static const HEnumInfo info{"TCheckBoxState", {"cbUnchecked", "cbChecked", "cbGrayed"}};
    return info;
}
template <>
const HEnumInfo& HEnumOf<HBitBtnKind>() {
    static const HEnumInfo info{"TBitBtnKind",
                                {"bkCustom", "bkOK", "bkCancel", "bkHelp", "bkYes", "bkNo", "bkClose",
                                 "bkAbort", "bkRetry", "bkIgnore", "bkAll"}};
    return info;
}

// ------------------------------------------------------------------------------------------ button class

HButtonControl::HButtonControl(HToolkit& kit, const HClassDef& def)
    : HWinControl(kit, def), FClass(kit.Desktop()) {
    FClickEvents = false;
    FCaptureMouse = false;
    FTabStop = true;
}

void HButtonControl::HandleMessage(HMessage& message) {
    const bool down = message.Number == WM_LBUTTONDOWN || message.Number == WM_LBUTTONDBLCLK;
    if (down && !Focused()) {
        Kit().Desktop().SetFocus(Handle());
        if (!Focused()) return;
    }
    HWinControl::HandleMessage(message);
}

void HButtonControl::DefaultHandler(HMessage& message) {
    if (Window() && FClass.Handle(Window(), message.Number, message.W, message.L)) {
        NotifyParent(BN_CLICKED);
        return;
    }
    HWinControl::DefaultHandler(message);
}

// ------------------------------------------------------------------------------------------ push buttons

void HButton::Click() {
    if (HCustomForm* form = ParentForm()) form->SetModalResult(FModalResult);
    HButtonControl::Click();
}

void HButton::CNCommand(unsigned code) {
    if (code == BN_CLICKED) Click();
}

bool HButton::AnswersKey(unsigned key) {
    if (key == VK_ESCAPE) return FCancel;
    HCustomForm* form = ParentForm();
    if (key != VK_RETURN || !form) return false;
    // A focused button takes the place of the default one.
    auto* focused = dynamic_cast<HButton*>(form->ActiveControl());
    return focused ? focused == this : FDefault;
}

void HButton::HandleMessage(HMessage& message) {
    if (message.Number != CM_DIALOGKEY) {
        HButtonControl::HandleMessage(message);
        return;
    }
    if (!AnswersKey(static_cast<unsigned>(message.W))) return;
    message.Result = 1;
    Click();
}

void HBitBtn::SetKind(HBitBtnKind value) {
    struct TRow {
        const char* Caption;
        int ModalResult;
    };
    // In the order of the kinds; captions as the toolkit's English resources have them.
    static constexpr TRow Rows[] = {{"", 0},       {"OK", 1},      {"Cancel", 2},     {"&Help", 0},
                                    {"&Yes", 6},   {"&No", 7},     {"&Close", 0},     {"Abort", 3},
                                    {"&Retry", 4}, {"&Ignore", 5}, {"Yes to &All", 8}};
    FKind = value;
    const auto index = static_cast<std::size_t>(value);
    if (value == HBitBtnKind::bkCustom || index >= std::size(Rows)) return;
    if (TextRef().empty()) SetText(Rows[index].Caption);
    SetModalResult(Rows[index].ModalResult);
    SetDefault(value == HBitBtnKind::bkOK || value == HBitBtnKind::bkYes);
    SetCancel(value == HBitBtnKind::bkCancel || value == HBitBtnKind::bkNo);
}

void HBitBtn::Click() {
    HCustomForm* form = ParentForm();
    if (FKind == HBitBtnKind::bkClose && form)
        form->Close();
    else
        HButton::Click();
}

// ------------------------------------------------------------------------------------------ speed buttons

HSpeedButton::HSpeedButton(HToolkit& kit, const HClassDef& def) : HGraphicControl(kit, def) {
    FClickEvents = false;
}

void HSpeedButton::MouseDown(HMouseButton button, TPoint point) {
    HGraphicControl::MouseDown(button, point);
    if (button == HMouseButton::Left && IsEnabled()) FPressed = true;
}

void HSpeedButton::MouseUp(HMouseButton button, TPoint point) {
    HGraphicControl::MouseUp(button, point);
    if (!std::exchange(FPressed, false) || !ClientRect().Contains(point)) return;
    if (FGroupIndex != 0) SetDown(!FDown);
    Click();
}

void HSpeedButton::HandleMessage(HMessage& message) {
    HGraphicControl::HandleMessage(message);
    if (message.Number == WM_LBUTTONDBLCLK && FDown && !Dead()) DblClick();
}

void HSpeedButton::SetDown(bool value) {
    if (FGroupIndex == 0) value = false;
    // The last button of a group stays down unless all may be up.
    if (FDown == value || (FDown && !FAllowAllUp)) return;
    FDown = value;
    if (value) TellGroup();
}

void HSpeedButton::SetAllowAllUp(bool value) {
    if (FAllowAllUp == value) return;
    FAllowAllUp = value;
    TellGroup();
}

void HSpeedButton::TellGroup() {
    if (FGroupIndex == 0 || !ParentControl()) return;
    for (HControl* sibling : ParentControl()->GraphicControls()) {
        auto* other = dynamic_cast<HSpeedButton*>(sibling);
        if (!other || other == this || other->FGroupIndex != FGroupIndex) continue;
        if (FDown) other->FDown = false;
        other->FAllowAllUp = FAllowAllUp;
    }
}

void HSpeedButton::ActionChanged(HCustomAction& action, bool onlyDefaults) {
    HGraphicControl::ActionChanged(action, onlyDefaults);
    if (FSeen.Differs(action, FDown, onlyDefaults) && FGroupIndex != 0 && FAllowAllUp)
        SetDown(action.Checked());
}

// ------------------------------------------------------------------------------------------ check boxes

void HCustomCheckBox::SetState(HCheckBoxState value) {
    if (FState == value) return;
    FState = value;
    if (!Loading()) Click();
}

void HCustomCheckBox::SetChecked(bool value) {
    SetState(value ? HCheckBoxState::cbChecked : HCheckBoxState::cbUnchecked);
}

void HCustomCheckBox::Toggle() {
    switch (FState) {
        case HCheckBoxState::cbUnchecked:
            SetState(FAllowGrayed ? HCheckBoxState::cbGrayed : HCheckBoxState::cbChecked);
            break;
        case HCheckBoxState::cbChecked:
            SetState(HCheckBoxState::cbUnchecked);
            break;
        case HCheckBoxState::cbGrayed:
            SetState(HCheckBoxState::cbChecked);
            break;
    }
}

void HCustomCheckBox::CNCommand(unsigned code) {
    if (code == BN_CLICKED) Toggle();
}

void HCustomCheckBox::ActionChanged(HCustomAction& action, bool onlyDefaults) {
    With::ActionChanged(action, onlyDefaults);
    if (FSeen.Differs(action, IsChecked(), onlyDefaults))
        FState = action.Checked() ? HCheckBoxState::cbChecked : HCheckBoxState::cbUnchecked;
}

// ------------------------------------------------------------------------------------------ radio buttons

void HRadioButton::SetChecked(bool value) {
    if (FChecked == value) return;
    Turn(value);
    if (value && !Loading()) Click();
}

void HRadioButton::Turn(bool value) {
    FChecked = value;
    SetTabStop(value);
    if (!value || !ParentControl()) return;
    for (HWinControl* sibling : ParentControl()->WindowedControls())
        if (auto* other = dynamic_cast<HRadioButton*>(sibling); other && other != this && other->FChecked)
            other->Turn(false);
}

void HRadioButton::CNCommand(unsigned code) {
    if (code == BN_CLICKED) SetChecked(true);
    if (code == BN_DOUBLECLICKED) DblClick();
}

void HRadioButton::DefaultHandler(HMessage& message) {
    // The window class tells of a double click and does not take it for a second click.
    if (message.Number == WM_LBUTTONDBLCLK)
        NotifyParent(BN_DOUBLECLICKED);
    else
        With::DefaultHandler(message);
}

void HRadioButton::ActionChanged(HCustomAction& action, bool onlyDefaults) {
    With::ActionChanged(action, onlyDefaults);
    if (FSeen.Differs(action, FChecked, onlyDefaults)) Turn(action.Checked());
}

}  // namespace rux
