// Controls: place, text, state, mouse.
#pragma once

#include <string>

#include "platform/headless/toolkit/HActions.h"
#include "platform/headless/toolkit/HComponent.h"
#include "platform/headless/toolkit/HProps.h"
#include "platform/headless/windows/HWindow.h"
#include "platform/toolkit/Controls.h"

namespace rux {

class HCustomForm;
class HWinControl;

struct HMessage {
    unsigned Number = 0;
    WParam W = 0;
    LParam L = 0;
    LResult Result = 0;
    TPoint Point() const { return PointOfParam(L); }
};

enum class HMouseButton { Left, Right };
enum class HAlign { alNone, alTop, alBottom, alLeft, alRight, alClient, alCustom };
template <>
const HEnumInfo& HEnumOf<HAlign>();

class HControl : public With<HComponent, TControl>, public HActionClient {
 public:
    HControl(HToolkit& kit, const HClassDef& def) : With(kit, def) {}

    // TControl
    bool Visible() override { return FVisible; }
    bool Enabled() override { return FEnabled; }
    TRect BoundsRect() override { return FBounds; }
    TRect ClientRect() override { return {0, 0, FBounds.Width(), FBounds.Height()}; }
    TPoint ClientOrigin() override;
    TObject* Parent() override;
    std::string Text() override { return FText; }
    TObject* PopupMenu() override { return FPopupMenu.Get(); }
    void Click() override;
    void CallOnClick() override;
    void FireOnClick() override { TryOnClick(); }
    void FireOnDblClick() override;
    LResult Perform(unsigned message, WParam wParam, LParam lParam) override;

    int Left() const { return FBounds.Left; }
    int Top() const { return FBounds.Top; }
    int Width() const { return FBounds.Width(); }
    int Height() const { return FBounds.Height(); }
    void SetLeft(int value) { SetPlace(value, Top(), Width(), Height()); }
    void SetTop(int value) { SetPlace(Left(), value, Width(), Height()); }
    void SetWidth(int value) { SetPlace(Left(), Top(), value, Height()); }
    void SetHeight(int value) { SetPlace(Left(), Top(), Width(), value); }
    /// Position and size are kept within HCoordLimit.
    virtual void SetBounds(const TRect& bounds);

    bool IsVisible() const { return FVisible; }
    virtual void SetVisible(bool value) { FVisible = value; }
    bool IsEnabled() const { return FEnabled; }
    virtual void SetEnabled(bool value) { FEnabled = value; }
    const std::string& TextRef() const { return FText; }
    virtual void SetText(const std::string& text) { FText = text; }
    HWinControl* ParentControl() const { return FParent; }
    virtual void SetParent(HWinControl* parent);
    virtual bool IsWindowed() const { return false; }
    /// The form that the control stands on; nil for none.
    HCustomForm* ParentForm();
    /// The control stands on that form, and it and all between them are visible.
    bool IsShowingOn(const HCustomForm& form) const;
    HAlign Align() const { return FAlign; }
    void SetAlign(HAlign value) { FAlign = value; }
    HObject* PopupMenuObject() const { return FPopupMenu.Get(); }
    void SetPopupMenu(HObject* menu) { FPopupMenu = menu; }
    HCustomAction* Action() const { return FAction; }
    HObject* ActionObject() const { return FAction; }
    void SetAction(HObject* action);
    void ActionChanged(HCustomAction& action, bool onlyDefaults) override;
    void ActionGone() override;
    /// Rectangle on the screen, frame included.
    virtual TRect ScreenRect();

    virtual void HandleMessage(HMessage& message);

 protected:
    /// Where every message enters the control.
    void Receive(HMessage& message);
    /// What the kind of control does by itself; set by constructors.
    bool FClickEvents = true;
    bool FCaptureMouse = true;
    bool FDoubleClicks = true;

    /// The left button went down on the control and is not up again.
    bool LeftButtonDown() const { return FLeftDown; }
    void SetMouseCapture(bool value);
    virtual void MouseDown(HMouseButton button, TPoint point);
    virtual void MouseUp(HMouseButton button, TPoint point);
    virtual void DblClick();
    void Detach() override;
    void ShowContextMenu(TPoint point);
    std::string FText;

 private:
    void SetPlace(int left, int top, int width, int height);
    void ButtonDown(HMouseButton button, HMessage& message, bool isDouble);
    void ButtonUp(HMouseButton button, HMessage& message);
    void CancelMouse();
    /// False when nothing is in the OnClick field.
    bool TryOnClick();
    bool AnswerContextMenu(TPoint screen);

    TRect FBounds;
    bool FVisible = true;
    bool FEnabled = true;
    bool FClicked = false;
    bool FLeftDown = false;
    HAlign FAlign = HAlign::alNone;
    HWinControl* FParent = nullptr;
    HRef<HObject> FPopupMenu;
    HCustomAction* FAction = nullptr;
};

/// A control without a window.
class HGraphicControl : public HControl {
 public:
    using HControl::HControl;
};

}  // namespace rux
