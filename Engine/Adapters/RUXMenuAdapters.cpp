#include "Engine/Adapters/RUXMenuAdapters.h"

#include "platform/toolkit/Menus.h"

namespace rux {

bool TMenuItemAdapter::Enabled() {
    return Cast<TMenuItem>(FControl).Enabled();
}

bool TMenuItemAdapter::Checked() {
    return Cast<TMenuItem>(FControl).Checked();
}

void TMenuItemAdapter::Click() {
    Cast<TMenuItem>(FControl).Click();
}

}  // namespace rux
