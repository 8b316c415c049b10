// Messages of the task centre. A request in wParam is a counted reference of its own: the sender adds one,
// the handler takes it over.
#pragma once

#include "Engine/Core/RUXEngineState.h"

namespace rux {

inline constexpr unsigned RUXM_FIRST = 13024;
inline constexpr unsigned RUXM_LAST = 13124;

enum TTaskMessage : unsigned {
    /// Run a request.
    RUXM_EXECUTE = 13025,
    /// lParam: a window that appeared while the request was served.
    RUXM_WINDOWSHOWN = 13026,
    /// wParam: a window to close.
    RUXM_CLOSEWINDOW = 13027,
    /// lParam: a bit of the finish state to add; then it is decided what follows.
    RUXM_FINISHSTEP = 13028,
    /// lParam: a window to photograph.
    RUXM_SAVEWINDOWPIC = 13029,
};

inline WParam DetachToParam(TIntf<ITestRequest> request) {
    return reinterpret_cast<WParam>(request.Detach());
}
inline TIntf<ITestRequest> AdoptFromParam(WParam param) {
    return TIntf<ITestRequest>::Adopt(reinterpret_cast<ITestRequest*>(param));
}

/// Posts a message that carries a reference to the request; answers whether that succeeded. Any thread.
bool PostRequestTask(unsigned message, const TIntf<ITestRequest>& request, LParam lParam);

}  // namespace rux
