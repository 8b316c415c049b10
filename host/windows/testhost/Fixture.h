// A dialog with one control of each kind, as the tests of native windows know it.
#pragma once

namespace rux {

/// Shows it, and a dialog without a title. On the user-interface thread.
void OpenFixture();

}  // namespace rux
