// Controls with a window of their own.
#pragma once

#include <vector>

#include "platform/headless/toolkit/HControl.h"

namespace rux {

/// Asks a control whether it answers a dialog key: the key in wParam, a result other than 0 for yes.
inline constexpr unsigned CM_DIALOGKEY = 45061;

class HWinControl : public With<HControl, TWinControl>, public HWindowTarget {
 public:
    HWinControl(HToolkit& kit, const HClassDef& def) : With(kit, def) {}
    ~HWinControl() override;

    // TWinControl
    HWnd Handle() override;
    bool HandleAllocated() override { return FHandle != 0; }
    /// The window as it is: 0 as long as there is none.
    HWnd Window() const { return FHandle; }
    int ControlCount() override { return static_cast<int>(FGraphic.size() + FWindowed.size()); }
    TObject* Controls(int index) override;
    void SetFocus() override;
    void BringToFront() override;

    // HControl
    TRect ClientRect() override;
    TPoint ClientOrigin() override;
    bool IsWindowed() const override { return true; }
    void SetBounds(const TRect& bounds) override;
    void SetVisible(bool value) override;
    void SetEnabled(bool value) override;
    void SetParent(HWinControl* parent) override;
    TRect ScreenRect() override;
    void HandleMessage(HMessage& message) override;

    /// Graphic controls first, bottom to top.
    const std::vector<HControl*>& GraphicControls() const { return FGraphic; }
    const std::vector<HWinControl*>& WindowedControls() const { return FWindowed; }
    void AddControl(HControl& control);
    void RemoveControl(HControl& control);
    /// Puts a control at a place among all controls.
    void SetControlIndex(HControl& control, int index);

    /// Visible and enabled, with every parent below the form.
    bool CanFocus();
    bool Focused();
    int TabOrder() const { return FTabOrder; }
    void SetTabOrder(int value) { FTabOrder = value; }
    bool TabStop() const { return FTabStop; }
    void SetTabStop(bool value) { FTabStop = value; }
    /// The top-most graphic control at a point of the client area that is visible and enabled.
    HControl* GraphicAt(TPoint point);
    /// True when the control stands on `ancestor` or is it.
    bool IsWithin(const HWinControl* ancestor) const;
    /// Makes the windows of this control and of everything visible below it.
    void Realize();
    void DestroyHandle();
    /// Whether the control wants a key that dialogs else treat themselves.
    virtual bool WantsKey(unsigned) { return false; }
    /// The focus came to the control or one on it, or left it for another of the same form.
    virtual void DoEnter();
    virtual void DoExit();

    // HWindowTarget
    LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) override;
    void Paint(HCanvas& canvas, const HWindow& window) override;
    void WindowGone(HWnd window) override;
    std::string JournalName() const override { return Path(); }

 protected:
    virtual void CreateParams(HCreateParams& params);
    virtual HInsets Insets() const { return {}; }
    virtual void HandleCreated() {}
    /// What the window class under the control does; the last stop of a message.
    virtual void DefaultHandler(HMessage& message);
    /// A notification that the control's own window sent to its parent.
    virtual void CNCommand(unsigned) {}
    void BeforeDestruction() override;
    void AddParts(std::vector<HComponent*>& parts) const override;
    void Detach() override;
    /// The form's focus goes elsewhere if it is on this control or one on it. Nobody is told of a control
    /// that is being taken away.
    void LeaveFocus(bool removing);
    /// Tells the parent's window, as a window class does: code in the high word.
    void NotifyParent(unsigned code);
    bool FTabStop = false;

 private:
    void CreateHandle();
    void Reorder(HWinControl& moved);
    bool PassToGraphic(HMessage& message);
    void KeyMessage(HMessage& message);
    void GotFocus(HMessage& message);

    std::vector<HControl*> FGraphic;
    std::vector<HWinControl*> FWindowed;
    HWnd FHandle = 0;
    int FTabOrder = -1;
    /// Place among the parent's windowed controls, and the last one given out for controls on this one.
    std::int64_t FOrder = 0, FLastOrder = 0;
};

}  // namespace rux
