// The window with one control of each kind: trees, lists, pages, menus.
#pragma once

#include "platform/headless/toolkit/HComponent.h"

namespace rux {

/// Gives the window's events their code.
void AttachCenterCode(HComponent& root);

}  // namespace rux
