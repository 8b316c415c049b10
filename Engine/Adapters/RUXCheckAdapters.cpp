#include "Engine/Adapters/RUXCheckAdapters.h"

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Input/RUXInput.h"
#include "platform/WindowService.h"
#include "platform/toolkit/StdCtrls.h"

namespace rux {

bool TSolviCheckBoxAdapter::Checked() {
    SetFocus();
    return Cast<TCustomCheckBox>(FControl).Checked();
}

void TSolviCheckBoxAdapter::Click() {
    SetFocus();
    Platform().Windows.SendMessageA(WindowHandle(), CN_COMMAND, BN_CLICKED, 0);
}

void TSolviCheckBoxAdapter::SetChecked(bool AValue) {
    Cast<TCustomCheckBox>(FControl).SetChecked(AValue);
}

void TSolviCheckBoxAdapter::MouseDown() {
    SetFocus();
    Platform().Windows.SendMessageA(WindowHandle(), WM_LBUTTONDOWN, MK_LBUTTON, MakePointParam({0, 0}));
}

bool TSolviRadioButtonAdapter::Checked() {
    return Cast<TRadioButton>(FControl).Checked();
}

void TSolviRadioButtonAdapter::Click() {
    SetFocus();
    ClickRect(WindowHandle(), ClientRect(), false);
}

}  // namespace rux
