#include "Engine/Adapters/RUXEditAdapters.h"

#include "Engine/Core/RUXEngineState.h"
#include "platform/ClockService.h"
#include "platform/toolkit/StdCtrls.h"
#include "rtl/CodePage.h"
#include "rtl/Dates.h"

namespace rux {

namespace {

TDateTime DateOfText(const std::string& text) {
    try {
        return StrToDate(text, Platform().Clock.Now());
    } catch (const EConvertError& error) {
        RaiseAdapterError(error.Message());
    }
}

}  // namespace

std::string TSolviEditAdapter::GetText() {
    return Text();
}

void TSolviEditAdapter::SetText(const std::string& S) {
    SetFocus();
    if (Cast<TCustomEdit>(FControl).ReadOnly()) RaiseAdapterError(Ansi("Edit不能编辑"));
    Cast<TCustomEdit>(FControl).SetText(S);
}

std::string TDateTimePickerAdapter::GetText() {
    return DateToStr(Cast<TDateTimePicker>(FControl).Date());
}

void TDateTimePickerAdapter::SetText(const std::string& S) {
    const TDateTime date = DateOfText(S);
    Cast<TDateTimePicker>(FControl).SetDateTime(date);
}

}  // namespace rux
