// The search while a tool-bar pop-up is open.
#pragma once

#include <memory>

#include "Engine/Locator/RUXFindAdapters.h"

namespace rux {

/// The walk over the open tool-bar pop-up; nil while none is open, and the search goes over the windows.
/// The tool-bar library's items are not there yet, so nothing sets the pop-up and the answer is always nil.
std::unique_ptr<TChildWalk> StartPopupWalk();

}  // namespace rux
