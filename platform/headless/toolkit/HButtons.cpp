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
    if (HandleAllocated() && FClass.Handle(Handle(), message.Number, message.L)) {
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
    if (key != VK_RETURN) return false;
    if (Focused()) return true;
    const HWinControl* focused = Kit().ControlOf(Kit().Desktop().GetFocus());
    return FDefault && !dynamic_cast<const HButton*>(focused);
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

void HSpeedButton::SetDown(bool value) {
    if (FGroupIndex == 0) value = false;
    // The last button of a group stays down unless all may be up.
    if (FDown == value || (FDown && !FAllowAllUp)) return;
    FDown = value;
    if (!value || !ParentControl()) return;
    for (HControl* sibling : ParentControl()->GraphicControls()) {
        auto* other = dynamic_cast<HSpeedButton*>(sibling);
        if (other && other != this && other->FGroupIndex == FGroupIndex) other->FDown = false;
    }
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

// ------------------------------------------------------------------------------------------ radio buttons

void HRadioButton::SetChecked(bool value) {
    if (FChecked == value) return;
    FChecked = value;
    SetTabStop(value);
    if (!value) return;
    if (ParentControl())
        for (HWinControl* sibling : ParentControl()->WindowedControls())
            if (auto* other = dynamic_cast<HRadioButton*>(sibling); other && other != this)
                other->SetChecked(false);
    if (!Loading()) Click();
}

void HRadioButton::CNCommand(unsigned code) {
    if (code == BN_CLICKED) SetChecked(true);
}

}  // namespace rux
