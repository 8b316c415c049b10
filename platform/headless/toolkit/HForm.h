// Forms: showing, closing, modality, focus, MDI.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/headless/toolkit/HWinControl.h"
#include "platform/toolkit/Forms.h"

namespace rux {

enum class HBorderStyle { bsNone, bsSingle, bsSizeable, bsDialog, bsToolWindow, bsSizeToolWin };
enum class HPosition {
    poDesigned,
    poDefault,
    poDefaultPosOnly,
    poDefaultSizeOnly,
    poScreenCenter,
    poDesktopCenter,
    poMainFormCenter,
    poOwnerFormCenter
};
enum class HWindowState { wsNormal, wsMinimized, wsMaximized };
template <>
const HEnumInfo& HEnumOf<TFormStyle>();
template <>
const HEnumInfo& HEnumOf<HBorderStyle>();
template <>
const HEnumInfo& HEnumOf<HPosition>();
template <>
const HEnumInfo& HEnumOf<HWindowState>();

enum HModalResult { mrNone = 0, mrOk = 1, mrCancel = 2 };
enum HCloseAction { caNone = 0, caHide = 1, caFree = 2, caMinimize = 3 };

class HCustomForm : public With<HWinControl, TCustomForm> {
 public:
    HCustomForm(HToolkit& kit, const HClassDef& def);
    ~HCustomForm() override;

    // TCustomForm
    TFormStyle FormStyle() override { return FFormStyle; }
    bool Modal() override { return FModal; }
    bool Active() override { return FActive; }
    int MDIChildCount() override;
    TObject* MDIChildren(int index) override;
    void UpdateActions() override;

    // Properties of a form file.
    TFormStyle FormStyleValue() const { return FFormStyle; }
    void SetFormStyle(TFormStyle value) { FFormStyle = value; }
    HBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(HBorderStyle value);
    HPosition Position() const { return FPosition; }
    void SetPosition(HPosition value) { FPosition = value; }
    HWindowState WindowState() const { return FWindowState; }
    void SetWindowState(HWindowState value) { FWindowState = value; }
    int ClientWidth() { return ClientRect().Width(); }
    void SetClientWidth(int value);
    int ClientHeight() { return ClientRect().Height(); }
    void SetClientHeight(int value);
    HObject* Menu() const { return FMenu.Get(); }
    void SetMenu(HObject* menu);
    HObject* ActiveControlObject() const { return FActiveControl.Get(); }
    /// While loading as the file has it, later as SetActiveControl.
    void SetActiveControlObject(HObject* control);
    int ModalResult() const { return FModalResult; }
    void SetModalResult(int value) { FModalResult = value; }
    /// The published Visible. While loading it says what is to happen once everything is loaded.
    bool ShowOnLoad() const { return Loading() ? FShowOnLoad : IsVisible(); }
    void SetShowOnLoad(bool value);
    bool WantsShow() const { return FShowOnLoad; }
    bool KeyPreview() const { return FKeyPreview; }
    void SetKeyPreview(bool value) { FKeyPreview = value; }
    bool MinimizeBox() const { return FMinimizeBox; }
    void SetMinimizeBox(bool value) { FMinimizeBox = value; }

    void Show();
    void Hide() { SetVisible(false); }
    /// Raises EInvalidOperation "Cannot change Visible in OnShow or OnHide" there, and "Cannot hide an MDI
    /// Child Form".
    void SetVisible(bool value) override;
    void BringToFront() override;
    void SetFocus() override;
    /// Runs a modal loop until ModalResult is set; raises EInvalidOperation "Cannot make a visible window
    /// modal" when that cannot be.
    int ShowModal();
    void Close();
    /// Ends the form once the message at hand has been handled.
    void Release();

    HWinControl* ActiveControl() const { return FActiveControl.Get(); }
    /// nil for none. Raises EInvalidOperation "Cannot focus a disabled or invisible window".
    void SetActiveControl(HWinControl* control);
    /// Sets the active control as focusing asks for it; raises as SetActiveControl does.
    void FocusControl(HWinControl& control);
    /// A control got the window system's focus: activation, exit and enter events. False when these moved the
    /// focus elsewhere.
    bool SetFocusedControl(HWinControl& control);
    /// Takes the focus away from a control and everything on it.
    void Defocus(const HWinControl& control, bool removing);
    /// Shortcuts of menu items, then the keys that a dialog treats itself: Enter, Escape, Tab. True when the
    /// key was used.
    bool DialogKey(unsigned key, HWinControl& focused);

    void HandleMessage(HMessage& message) override;
    void Loaded() override;
    std::string JournalName() const override { return Path(); }

 protected:
    void CreateParams(HCreateParams& params) override;
    HInsets Insets() const override;
    void BeforeDestruction() override;
    void Detach() override;

 private:
    class TModal;
    void ApplyClientSize();
    void ApplyPosition();
    void ChangeVisible(bool value);
    void Appear();
    void Disappear();
    void SetActive(bool active);
    void ActivateMDIChild();
    HCustomForm* ActiveMDIChild();
    void FocusWindow();
    bool PassFocusOn();
    bool MenuKey(int shortCut, HWinControl& focused);
    bool CloseQuery();
    int CloseActionOf();
    void CloseModal();
    HWinControl* NextTabControl(const HWinControl* from, bool backwards);
    HWinControl* FocusOrMe(HWinControl* control) { return control ? control : this; }

    TFormStyle FFormStyle = TFormStyle::Normal;
    HBorderStyle FBorderStyle = HBorderStyle::bsSizeable;
    HPosition FPosition = HPosition::poDesigned;
    HWindowState FWindowState = HWindowState::wsNormal;
    HRef<HObject> FMenu;
    HRef<HWinControl> FActiveControl;
    /// The control whose OnEnter was the last to fire without its OnExit; nil for the form itself.
    HRef<HWinControl> FEntered;
    int FModalResult = 0;
    bool FShowOnLoad = false;
    bool FKeyPreview = false;
    bool FMinimizeBox = true;
    bool FModal = false;
    bool FActive = false;
    bool FPlaced = false;
    bool FShowing = false;
    /// Client size that a form file asks for; the frame is known only once everything is read.
    std::optional<int> FWantedWidth, FWantedHeight;
};

/// A frame: a part of a form that is designed on its own.
class HCustomFrame : public HWinControl {
 public:
    using HWinControl::HWinControl;
};

/// A form file's module without a window.
class HDataModule : public HComponent {
 public:
    using HComponent::HComponent;

 protected:
    void BeforeDestruction() override;
};

}  // namespace rux
