// Where threads' stacks end.
#pragma once

namespace rux {

/// From now on the run-time library knows it of every thread of the process, also of those that others make.
void TellStackLimits();

}  // namespace rux
