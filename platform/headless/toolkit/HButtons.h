// Buttons of all kinds, check boxes, radio buttons.
#pragma once

#include "platform/headless/native/HNativeWindow.h"
#include "platform/headless/toolkit/HWinControl.h"
#include "platform/toolkit/StdCtrls.h"

namespace rux {

/// Controls over the window class BUTTON: the class decides what a click is, the control hears of it from its
/// parent. A button that cannot take the focus ignores the mouse.
class HButtonControl : public HWinControl {
 public:
    HButtonControl(HToolkit& kit, const HClassDef& def);
    void HandleMessage(HMessage& message) override;

 protected:
    void DefaultHandler(HMessage& message) override;

 private:
    HButtonClass FClass;
};

class HButton : public HButtonControl {
 public:
    using HButtonControl::HButtonControl;
    /// Sets the form's ModalResult first.
    void Click() override;
    void HandleMessage(HMessage& message) override;
    int ModalResult() const { return FModalResult; }
    void SetModalResult(int value) { FModalResult = value; }
    bool Default() const { return FDefault; }
    void SetDefault(bool value) { FDefault = value; }
    bool Cancel() const { return FCancel; }
    void SetCancel(bool value) { FCancel = value; }

 protected:
    void CNCommand(unsigned code) override;

 private:
    bool AnswersKey(unsigned key);
    int FModalResult = 0;
    bool FDefault = false, FCancel = false;
};

enum class HBitBtnKind {
    bkCustom,
    bkOK,
    bkCancel,
    bkHelp,
    bkYes,
    bkNo,
    bkClose,
    bkAbort,
    bkRetry,
    bkIgnore,
    bkAll
};
template <>
const HEnumInfo& HEnumOf<HBitBtnKind>();

class HBitBtn : public HButton {
 public:
    using HButton::HButton;
    void Click() override;
    HBitBtnKind Kind() const { return FKind; }
    /// Supplies caption, result and default or cancel state of that kind.
    void SetKind(HBitBtnKind value);

 private:
    HBitBtnKind FKind = HBitBtnKind::bkCustom;
};

class HSpeedButton : public HGraphicControl {
 public:
    HSpeedButton(HToolkit& kit, const HClassDef& def);
    bool Down() const { return FDown; }
    void SetDown(bool value);
    int GroupIndex() const { return FGroupIndex; }
    void SetGroupIndex(int value) { FGroupIndex = value; }
    /// The whole group's.
    bool AllowAllUp() const { return FAllowAllUp; }
    void SetAllowAllUp(bool value);
    void HandleMessage(HMessage& message) override;
    void ActionChanged(HCustomAction& action, bool onlyDefaults) override;

 protected:
    void MouseDown(HMouseButton button, TPoint point) override;
    void MouseUp(HMouseButton button, TPoint point) override;

 private:
    void TellGroup();
    HSeenState FSeen;
    bool FDown = false, FPressed = false, FAllowAllUp = false;
    int FGroupIndex = 0;
};

enum class HCheckBoxState { cbUnchecked, cbChecked, cbGrayed };
template <>
const HEnumInfo& HEnumOf<HCheckBoxState>();

class HCustomCheckBox : public With<HButtonControl, TCustomCheckBox> {
 public:
    using With::With;
    bool Checked() override { return FState == HCheckBoxState::cbChecked; }
    void SetChecked(bool value) override;
    HCheckBoxState State() const { return FState; }
    void SetState(HCheckBoxState value);
    bool IsChecked() const { return FState == HCheckBoxState::cbChecked; }
    void PutChecked(bool value) { SetChecked(value); }
    bool AllowGrayed() const { return FAllowGrayed; }
    void SetAllowGrayed(bool value) { FAllowGrayed = value; }
    /// The action's state fires nothing.
    void ActionChanged(HCustomAction& action, bool onlyDefaults) override;

 protected:
    void CNCommand(unsigned code) override;

 private:
    void Toggle();
    HSeenState FSeen;
    HCheckBoxState FState = HCheckBoxState::cbUnchecked;
    bool FAllowGrayed = false;
};

class HRadioButton : public With<HButtonControl, TRadioButton> {
 public:
    using With::With;
    bool Checked() override { return FChecked; }
    bool IsChecked() const { return FChecked; }
    /// Turns its siblings off; OnClick fires when it becomes checked.
    void SetChecked(bool value);
    /// The action's state fires nothing.
    void ActionChanged(HCustomAction& action, bool onlyDefaults) override;

 protected:
    void CNCommand(unsigned code) override;
    void DefaultHandler(HMessage& message) override;

 private:
    static constexpr unsigned BN_DOUBLECLICKED = 5;
    void Turn(bool value);
    HSeenState FSeen;
    bool FChecked = false;
};

}  // namespace rux
