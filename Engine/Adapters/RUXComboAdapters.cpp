#include "Engine/Adapters/RUXComboAdapters.h"

#include "Engine/Adapters/RUXListSupport.h"
#include "Engine/Input/RUXInput.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/StdCtrls.h"
#include "rtl/CodePage.h"

namespace rux {

namespace {

/// Pixels at the right end in whose middle the arrow is hit.
constexpr std::int32_t ArrowZone = 15;

}  // namespace

void TSolviComboBoxAdapter::OpenCloseDropDown() {
    TRect arrow = ClientRect();
    arrow.Left = arrow.Right - ArrowZone;
    ClickRect(WindowHandle(), arrow, false);
    ClickRect(WindowHandle(), arrow, false);
}

void TSolviComboBoxAdapter::SelectComboIndex(std::int32_t index) {
    Cast<TCustomCombo>(FControl).SetItemIndex(index);
    TellComboChosen(FControl);
}

void TSolviComboBoxAdapter::Select(const std::string& AName) {
    OpenCloseDropDown();
    const std::int32_t index = Cast<TCustomCombo>(FControl).Items().IndexOf(AName);
    if (index < 0) RaiseAdapterError(Ansi("ComboBox中不存在项：") + AName);
    SelectComboIndex(index);
}

void TSolviComboBoxAdapter::SelectByIndex(std::int32_t AIdx) {
    DemandListIndex(AIdx, GetCount());
    SelectComboIndex(AIdx - 1);
}

std::int32_t TSolviComboBoxAdapter::GetCount() {
    return Cast<TCustomCombo>(FControl).Items().Count();
}

void TSolviComboBoxAdapter::SetText(const std::string& S) {
    Cast<TCustomCombo>(FControl).SetText(S);
}

}  // namespace rux
