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
    TObject* PopupMenu() override { return FPopupMenu; }
    void Click() override;
    void CallOnClick() override;

    int Left() const { return FBounds.Left; }
    int Top() const { return FBounds.Top; }
    int Width() const { return FBounds.Width(); }
    int Height() const { return FBounds.Height(); }
    void SetLeft(int value) { SetBounds({value, Top(), value + Width(), Top() + Height()}); }
    void SetTop(int value) { SetBounds({Left(), value, Left() + Width(), value + Height()}); }
    void SetWidth(int value) { SetBounds({Left(), Top(), Left() + value, Top() + Height()}); }
    void SetHeight(int value) { SetBounds({Left(), Top(), Left() + Width(), Top() + value}); }
    virtual void SetBounds(const TRect& bounds) { FBounds = bounds; }

    bool IsVisible() const { return FVisible; }
    virtual void SetVisible(bool value) { FVisible = value; }
    bool IsEnabled() const { return FEnabled; }
    virtual void SetEnabled(bool value) { FEnabled = value; }
    const std::string& TextRef() const { return FText; }
    virtual void SetText(const std::string& text) { FText = text; }
    HWinControl* ParentControl() const { return FParent; }
    virtual void SetParent(HWinControl* parent);
    virtual bool IsWindowed() const { return false; }
    /// The form, frame or data module's form that the control stands on; nil for none.
    HCustomForm* ParentForm();
    HAlign Align() const { return FAlign; }
    void SetAlign(HAlign value) { FAlign = value; }
    HObject* PopupMenuObject() const { return FPopupMenu; }
    void SetPopupMenu(HObject* menu) { FPopupMenu = menu; }
    HObject* ActionObject() const;
    void SetAction(HObject* action);
    HCustomAction* Action() const { return FAction; }
    void ActionChanged(HCustomAction& action, bool onlyDefaults) override;
    void ActionGone() override { FAction = nullptr; }
    /// Rectangle on the screen, frame included.
    virtual TRect ScreenRect();

    /// Handles a message directly, without the window system.
    LResult Perform(unsigned message, WParam wParam, LParam lParam);
    virtual void HandleMessage(HMessage& message);
    void Loaded() override;

 protected:
    /// What the kind of control does by itself; set by constructors.
    bool FClickEvents = true;
    bool FCaptureMouse = true;
    bool FDoubleClicks = true;

    void SetMouseCapture(bool value);
    virtual void MouseDown(HMouseButton button, TPoint point);
    virtual void MouseUp(HMouseButton button, TPoint point);
    virtual void DblClick();
    void Detach() override;
    void ShowContextMenu(TPoint point);
    std::string FText;

 private:
    void ButtonDown(HMouseButton button, HMessage& message, bool isDouble);
    void ButtonUp(HMouseButton button, HMessage& message);

    TRect FBounds;
    bool FVisible = true;
    bool FEnabled = true;
    bool FClicked = false;
    HAlign FAlign = HAlign::alNone;
    HWinControl* FParent = nullptr;
    HObject* FPopupMenu = nullptr;
    HCustomAction* FAction = nullptr;
};

/// A control without a window.
class HGraphicControl : public HControl {
 public:
    using HControl::HControl;
};

}  // namespace rux
