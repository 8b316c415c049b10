// What becomes of a window that came up while a request was served. User-interface thread.
#pragma once

#include "Engine/Core/RUXClasses.h"
#include "platform/Types.h"

namespace rux {

/// Decides by the request's options: an expected or awaited window gives the request its caption and ends its
/// wait; any other is described, photographed, closed if the request says so, and reported to the caller, or
/// to the next one where this caller has gone.
void HandleWindowShown(const TIntf<ITestRequest>& request, HWnd window);
void CloseUnexpectedWindow(HWnd window);
/// Saves the picture under the name that the request was given for it.
void SaveUnexpectedWindowPic(ITestRequest& request, HWnd window);

}  // namespace rux
