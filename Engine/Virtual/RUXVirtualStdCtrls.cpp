#include "Engine/Virtual/RUXVirtualStdCtrls.h"

namespace rux {

void TVirtualButton::Click() const {
    Send(WM_LBUTTONDOWN, MK_LBUTTON, 0);
    Send(WM_LBUTTONUP, 0, 0);
}

}  // namespace rux
