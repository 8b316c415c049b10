#include "Engine/Adapters/RUXTestAdapter.h"

#include "Engine/Core/RUXClasses.h"
#include "Engine/Core/RUXUtils.h"
#include "Engine/Input/RUXInput.h"
#include "Engine/Virtual/RUXVirtualControls.h"
#include "platform/toolkit/Controls.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {

void RaiseAdapterError(const std::string& message) {
    throw EAdapterException(message);
}

void RaiseAdapterErrorFmt(std::string_view format, std::initializer_list<TFormatArg> args) {
    RaiseAdapterError(Format(format, args));
}

TRUXControlAdapter::TRUXControlAdapter(TObject* control) : FControl(control) {
    Assert(control != nullptr, Ansi("适配的控件必须存在！"));
}

bool TRUXControlAdapter::ReadOnly() {
    const std::string value = GetPropValue(FControl, "ReadOnly");
    const std::string_view word = Trim(value);
    if (word.empty())
        throw ERUXException(
            Format(Ansi("服务器没有处理控件%s类型的ReadOnly调用"), {FControl->ClassType().Name()}));
    return word.front() == 'T' || word.front() == 't';
}

void TRUXControlAdapter::RightClick() {
    DemandWindow("当前控件不支持鼠标右键方法.");
    SetFocus();
    ClickRect(WindowHandle(), ClientRect(), true);
}

void TRUXControlAdapter::DbClick() {
    DemandWindow("当前控件不支持鼠标双击方法.");
    SetFocus();
    DblClickRect(WindowHandle(), ClientRect());
}

void TRUXControlAdapter::Active() {
    DemandWindow("当前控件不支持Active方法.");
    SetFocus();
}

void TRUXControlAdapter::SendKey(const std::string& AKey, const std::string& ACAKey) {
    rux::SendKey(GetHandle(), AKey, ACAKey);
}

bool TRUXControlAdapter::Enabled() {
    if (Is<TControl>(FControl)) return Cast<TControl>(FControl).Enabled();
    if (Is<TBaseVirtualControl>(FControl)) return Cast<TBaseVirtualControl>(FControl).GetEnabled();
    return true;
}

void TRUXControlAdapter::DemandWindow(std::string_view refusal) const {
    if (!Is<TWinControl>(FControl)) RaiseAdapterError(Ansi(refusal));
}

void TRUXControlAdapter::SetFocus() const {
    Cast<TWinControl>(FControl).SetFocus();
}

HWnd TRUXControlAdapter::WindowHandle() const {
    return Cast<TWinControl>(FControl).Handle();
}

TRect TRUXControlAdapter::ClientRect() const {
    return Cast<TControl>(FControl).ClientRect();
}

std::string TRUXControlAdapter::Text() const {
    return Cast<TControl>(FControl).Text();
}

}  // namespace rux
