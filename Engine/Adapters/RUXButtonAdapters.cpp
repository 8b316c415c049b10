#include "Engine/Adapters/RUXButtonAdapters.h"

#include "platform/toolkit/Controls.h"
#include "rtl/Stack.h"

namespace rux {

void TSolviButtonAdapter::Click() {
    SetFocus();
    Cast<TControl>(FControl).Click();
}

void TSolviSpeedButtonAdapter::Click() {
    Cast<TControl>(FControl).Click();
}

void TSolviLabelAdapter::Click() {
    Cast<TControl>(FControl).CallOnClick();
}

std::string TSolviLabelAdapter::GetText() {
    return Text();
}

void TSolviStaticTextAdapter::Click() {
    CheckStack();
    // Read from memory for each call and written again behind it: a true call that no compiler can turn into
    // a jump, which would hang instead of running out of stack.
    IButton* volatile next = this;
    next->Click();
    next = nullptr;
}

std::string TSolviStaticTextAdapter::GetText() {
    return Text();
}

}  // namespace rux
