// Messages of the task centre. A request in wParam is a counted reference of its own: the sender adds one,
// the handler takes it over. See TRequestMail.
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

/// Posts a message that carries a reference to the request; answers whether that succeeded. Any thread.
inline bool PostRequestTask(unsigned message, const TIntf<ITestRequest>& request, LParam lParam) {
    return Engine().TaskCenter.PostRequest(message, request, lParam);
}

}  // namespace rux
