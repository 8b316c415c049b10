// Controls with and without a window of their own.
#pragma once

#include <string>

#include "platform/Types.h"
#include "platform/toolkit/Classes.h"

namespace rux {

class TControl {
 public:
    static constexpr TFacetId Id = TFacetId::Control;
    /// The control's own flags; the parents are not asked.
    virtual bool Visible() = 0;
    virtual bool Enabled() = 0;
    /// In the parent's client coordinates; a form's on the screen.
    virtual TRect BoundsRect() = 0;
    virtual TRect ClientRect() = 0;
    /// Screen position of the client area.
    virtual TPoint ClientOrigin() = 0;
    /// nil for none.
    virtual TObject* Parent() = 0;
    virtual std::string Text() = 0;
    /// nil for none.
    virtual TObject* PopupMenu() = 0;
    /// The control's own dynamic method, as the toolkit calls it after a click. Enabled is not tested.
    virtual void Click() = 0;
    /// Calls the handler in the OnClick field with the control as sender. Without one this is a call through
    /// a nil pointer: EAccessViolation.
    virtual void CallOnClick() = 0;
    /// Call the handler in that field with the control as sender, if there is one.
    virtual void FireOnClick() = 0;
    virtual void FireOnDblClick() = 0;
    /// Hands a message to the control itself, past its window and the queue.
    virtual LResult Perform(unsigned message, WParam wParam, LParam lParam) = 0;

 protected:
    ~TControl() = default;
};

class TWinControl {
 public:
    static constexpr TFacetId Id = TFacetId::WinControl;
    /// Makes the window if it does not exist yet.
    virtual HWnd Handle() = 0;
    virtual bool HandleAllocated() = 0;
    /// Graphic controls first, windowed ones behind them, each group from bottom to top.
    virtual int ControlCount() = 0;
    virtual TObject* Controls(int index) = 0;
    /// Raises EInvalidOperation "Cannot focus a disabled or invisible window" as the toolkit does.
    virtual void SetFocus() = 0;
    virtual void BringToFront() = 0;

 protected:
    ~TWinControl() = default;
};

}  // namespace rux
