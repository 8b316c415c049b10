// Errors of the network in the window system's numbers.
#pragma once

#include "platform/shared/SocketErrors.h"

namespace rux {

int SocketErrorOf(int errorNumber);

}  // namespace rux
