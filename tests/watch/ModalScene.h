// The player of scenes on the desktop in memory. Time passes only when a scene says so, and where two threads
// could both be first it is the user-interface thread.
#pragma once

#include "support/LiveHost.h"
#include "watch/Scene.h"

namespace rux::test {

/// Sends every message box a close.
void CloseBoxes(TLiveHost& host);

}  // namespace rux::test
