#include "platform/win32/toolkit/WBridgeObject.h"

#include <cmath>

#include "platform/win32/Headers.h"

namespace rux {

void* WBridgeObject::Facet(TFacetId id) {
    if (!FIdentity.Class->Is(id) || !Lives()) return nullptr;
    switch (id) {
        case TFacetId::Component:
            return static_cast<TComponent*>(this);
        case TFacetId::Control:
            return static_cast<TControl*>(this);
        case TFacetId::WinControl:
            return static_cast<TWinControl*>(this);
        case TFacetId::CustomForm:
            return static_cast<TCustomForm*>(this);
        case TFacetId::CustomEdit:
            return static_cast<TCustomEdit*>(this);
        case TFacetId::CustomCheckBox:
            return static_cast<TCustomCheckBox*>(this);
        case TFacetId::RadioButton:
            return static_cast<TRadioButton*>(this);
        case TFacetId::DateTimePicker:
            return static_cast<TDateTimePicker*>(this);
        default:
            if (!FFamily) FFamily = MakeBridgeFamily({FBridge, FIdentity.Ref}, *FIdentity.Class);
            return FFamily ? FFamily->Facet(id) : nullptr;
    }
}

bool WBridgeObject::GetProp(TName name, TPropValue& value) {
    return name && Lives() && FBridge.GetProperty(FIdentity.Ref, name, value);
}

TPoint WBridgeObject::ClientOrigin() {
    const TRect place = FBridge.Bounds(FIdentity.Ref, RUX_CLIENT_ORIGIN);
    return {place.Left, place.Top};
}

LResult WBridgeObject::Perform(unsigned message, WParam wParam, LParam lParam) {
    const auto window = reinterpret_cast<HWND>(Handle());
    return ::SendMessageA(window, message, static_cast<WPARAM>(wParam), static_cast<LPARAM>(lParam));
}

TFormStyle WBridgeObject::FormStyle() {
    return static_cast<TFormStyle>(FBridge.ValueOf(FIdentity.Ref, RUX_FORM_STYLE).Ordinal);
}

TDateTime WBridgeObject::Date() {
    return std::trunc(FBridge.ValueOf(FIdentity.Ref, RUX_DATE_TIME).Real);
}

void WBridgeObject::SetText(const std::string& text) {
    FBridge.SetValue(FIdentity.Ref, RUX_TEXT, WText(text));
}

void WBridgeObject::SetChecked(bool checked) {
    FBridge.SetValue(FIdentity.Ref, RUX_CHECKED, WFlag(checked));
}

void WBridgeObject::SetDateTime(TDateTime when) {
    RUXValue value{};
    value.Kind = RUX_KIND_FLOAT;
    value.Real = when;
    FBridge.SetValue(FIdentity.Ref, RUX_DATE_TIME, value);
}

void* WBridgeApplication::Facet(TFacetId id) {
    return id == TFacetId::Application ? static_cast<TApplication*>(this) : WBridgeObject::Facet(id);
}

}  // namespace rux
