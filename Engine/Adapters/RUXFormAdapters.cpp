#include "Engine/Adapters/RUXFormAdapters.h"

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Virtual/RUXVirtualControls.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Forms.h"

namespace rux {

void TFormAdapter::Active() {
    if (Cast<TCustomForm>(FControl).FormStyle() == TFormStyle::MDIChild)
        Cast<TWinControl>(FControl).BringToFront();
    else
        Platform().Windows.SetActiveWindow(WindowHandle());
}

void TFormAdapter::Close() {
    Platform().Windows.PostMessageA(WindowHandle(), WM_CLOSE, 0, 0);
}

std::string TFormAdapter::GetInfo() {
    return TVirtualWinControl(WindowHandle()).GetWindowReport();
}

void TVirtualWindowAdapter::Active() {
    Platform().Windows.SetActiveWindow(VirtualCast<TVirtualWindow>(FControl).Handle());
}

void TVirtualWindowAdapter::Close() {
    VirtualCast<TVirtualWindow>(FControl).Close();
}

std::string TVirtualWindowAdapter::GetInfo() {
    return VirtualCast<TVirtualWindow>(FControl).GetWindowReport();
}

}  // namespace rux
