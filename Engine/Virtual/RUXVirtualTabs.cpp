#include "Engine/Virtual/RUXVirtualTabs.h"

#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/ExtraCtrls.h"

namespace rux {

std::string TVirtualTab::Caption() {
    return Cast<TTabSet>(Control()).Tabs().Get(Index());
}

TRect TVirtualTab::Rect() {
    return Cast<TTabSet>(Control()).ItemRect(Index());
}

void TVirtualTab::Select() {
    Cast<TTabSet>(Control()).SetTabIndex(Index());
}

std::string TVirtualTabControlTab::Caption() {
    return Cast<TCustomTabControl>(Control()).Tabs().Get(Index());
}

TRect TVirtualTabControlTab::Rect() {
    return Cast<TCustomTabControl>(Control()).TabRect(Index());
}

void TVirtualTabControlTab::Select() {
    if (!Cast<TCustomTabControl>(Control()).CanChange()) return;
    Cast<TCustomTabControl>(Control()).SetTabIndex(Index());
    Cast<TCustomTabControl>(Control()).Change();
}

std::string TTBXImageVirtualTab::Caption() {
    return Cast<TTBXImageTabSet>(Control()).TabItemCaption(Index());
}

TRect TTBXImageVirtualTab::Rect() {
    return Cast<TTBXImageTabSet>(Control()).ItemRect(Index());
}

void TTBXImageVirtualTab::Select() {
    Cast<TTBXImageTabSet>(Control()).SetTabIndex(Index());
}

}  // namespace rux
