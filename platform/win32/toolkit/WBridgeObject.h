// Proxies of the live objects behind the table.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Forms.h"
#include "platform/toolkit/StdCtrls.h"
#include "platform/win32/toolkit/WBridge.h"
#include "platform/win32/toolkit/WBridgeFamily.h"

namespace rux {

/// One live object. It keeps nothing of what it is asked; which operations it has is what its class is.
class WBridgeObject : public TObject,
                      public TComponent,
                      public TControl,
                      public TWinControl,
                      public TCustomForm,
                      public TCustomEdit,
                      public TCustomCheckBox,
                      public TRadioButton,
                      public TDateTimePicker {
 public:
    WBridgeObject(WBridge& bridge, WIdentity identity) : FBridge(bridge), FIdentity(identity) {}
    WBridgeObject(const WBridgeObject&) = delete;
    WBridgeObject& operator=(const WBridgeObject&) = delete;

    const WIdentity& Identity() const { return FIdentity; }
    /// False from the moment the object is freed, for good.
    virtual bool Lives() const { return FBridge.IdentityOf(FIdentity.Ref) == FIdentity; }

    // TObject
    const TClass& ClassType() const override { return *FIdentity.Class; }
    void* Facet(TFacetId id) override;
    /// The object's address.
    std::uint64_t RefNumber() const override { return FIdentity.Ref; }
    bool GetProp(TName name, TPropValue& value) override;

    // TComponent, TControl
    std::string Name() override { return FBridge.TextOf(FIdentity.Ref, RUX_NAME); }
    TObject* Owner() override { return FBridge.Relation(FIdentity.Ref, RUX_OWNER); }
    bool Visible() override { return Flag(RUX_VISIBLE); }
    bool Enabled() override { return Flag(RUX_ENABLED); }
    TRect BoundsRect() override { return FBridge.Bounds(FIdentity.Ref, RUX_BOUNDS); }
    TRect ClientRect() override { return FBridge.Bounds(FIdentity.Ref, RUX_CLIENT); }
    TPoint ClientOrigin() override;
    TObject* Parent() override { return FBridge.Relation(FIdentity.Ref, RUX_PARENT); }
    std::string Text() override { return FBridge.TextOf(FIdentity.Ref, RUX_TEXT); }
    TObject* PopupMenu() override { return FBridge.Relation(FIdentity.Ref, RUX_POPUP_MENU); }
    void Click() override { FBridge.Invoke(FIdentity.Ref, RUX_CLICK); }
    void CallOnClick() override { FBridge.Invoke(FIdentity.Ref, RUX_CALL_ON_CLICK); }
    void FireOnClick() override { FBridge.Invoke(FIdentity.Ref, RUX_FIRE_ON_CLICK); }
    void FireOnDblClick() override { FBridge.Invoke(FIdentity.Ref, RUX_FIRE_ON_DBL_CLICK); }
    /// Through the control's window, whose procedure hands the message on.
    LResult Perform(unsigned message, WParam wParam, LParam lParam) override;

    // TWinControl
    HWnd Handle() override { return FBridge.Window(FIdentity.Ref); }
    bool HandleAllocated() override { return Flag(RUX_HANDLE_ALLOCATED); }
    int ControlCount() override { return FBridge.Count(FIdentity.Ref, RUX_CONTROLS); }
    TObject* Controls(int index) override { return FBridge.Child(FIdentity.Ref, RUX_CONTROLS, index); }
    void SetFocus() override { FBridge.Invoke(FIdentity.Ref, RUX_SET_FOCUS); }
    void BringToFront() override { FBridge.Invoke(FIdentity.Ref, RUX_BRING_TO_FRONT); }

    // TCustomForm
    TFormStyle FormStyle() override;
    bool Modal() override { return Flag(RUX_MODAL); }
    bool Active() override { return Flag(RUX_ACTIVE); }
    int MDIChildCount() override { return FBridge.Count(FIdentity.Ref, RUX_MDI_CHILDREN); }
    TObject* MDIChildren(int index) override { return FBridge.Child(FIdentity.Ref, RUX_MDI_CHILDREN, index); }
    void UpdateActions() override { FBridge.Invoke(FIdentity.Ref, RUX_UPDATE_ACTIONS); }

    // Edits, check boxes, radio buttons, date pickers
    bool ReadOnly() override { return Flag(RUX_READ_ONLY); }
    void SetText(const std::string& text) override;
    bool Checked() override { return Flag(RUX_CHECKED); }
    void SetChecked(bool value) override;
    TDateTime Date() override;
    void SetDateTime(TDateTime value) override;

 protected:
    WBridge& FBridge;

 private:
    bool Flag(std::int32_t what) { return FBridge.ValueOf(FIdentity.Ref, what).Ordinal != 0; }

    const WIdentity FIdentity;
    /// Made when somebody first asks for what its class has beyond the operations above.
    std::unique_ptr<WBridgeFamily> FFamily;
};

/// The application object. It lives as long as the process, so that nobody has to be asked about it, and
/// other threads may come for its facet.
class WBridgeApplication final : public WBridgeObject, public TApplication {
 public:
    using WBridgeObject::WBridgeObject;
    bool Lives() const override { return true; }
    void* Facet(TFacetId id) override;
    /// Any thread.
    HWnd Handle() override { return FBridge.State().Window; }
    void ProcessMessages() override { FBridge.Invoke(0, RUX_PROCESS_MESSAGES); }
    TObject* MainForm() override { return FBridge.Relation(0, RUX_MAIN_FORM); }
    bool Terminated() override { return FBridge.State().Terminated != 0; }
};

}  // namespace rux
