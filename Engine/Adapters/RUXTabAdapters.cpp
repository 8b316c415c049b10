#include "Engine/Adapters/RUXTabAdapters.h"

#include "Engine/Adapters/RUXListSupport.h"
#include "Engine/Input/RUXInput.h"
#include "Engine/Virtual/RUXVirtualTabs.h"
#include "platform/toolkit/ComCtrls.h"
#include "rtl/CodePage.h"

namespace rux {

// ------------------------------------------------------------------------------------------ rows of tabs

std::int32_t TSolviTabControlAdapter::GetCount() {
    return Cast<TCustomTabControl>(FControl).Tabs().Count();
}

std::string TSolviTabControlAdapter::Selected() {
    auto& control = Cast<TCustomTabControl>(FControl);
    return control.Tabs().Get(control.TabIndex());
}

void TSolviTabControlAdapter::Select(const std::string& AName) {
    const int index = Cast<TCustomTabControl>(FControl).Tabs().IndexOf(AName);
    if (!Cast<TCustomTabControl>(FControl).CanChange()) return;
    if (index < 0) RaiseAdapterError(Ansi("PageControl中没有找到：") + AName);
    ClickTab(index);
}

void TSolviTabControlAdapter::SelectByIndex(std::int32_t AIdx) {
    DemandListIndex(AIdx, GetCount());
    ClickTab(AIdx - 1);
}

void TSolviTabControlAdapter::ClickTab(int index) {
    if (!Cast<TCustomTabControl>(FControl).CanChange()) return;
    const TRect rect = Cast<TCustomTabControl>(FControl).TabRect(index);
    ClickRect(WindowHandle(), rect, false);
    Cast<TCustomTabControl>(FControl).Change();
}

// ------------------------------------------------------------------------------------------ pages

void TSolviPageAdapter::Click() {
    TObject* pages = Cast<TTabSheet>(FControl).PageControl();
    if (!Cast<TCustomTabControl>(pages).CanChange()) return;
    Cast<TPageControl>(pages).SetActivePage(FControl);
    Cast<TCustomTabControl>(pages).Change();
}

// ------------------------------------------------------------------------------------------ virtual tabs

void TVirtualTabClick::SelectTab() {
    VirtualCast<TVirtualTabBase>(FControl).Select();
}

}  // namespace rux
