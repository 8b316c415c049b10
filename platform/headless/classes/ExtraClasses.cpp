// Classes of libraries beyond the toolkit: flat page controls, the TBX family.
#include "platform/headless/classes/HClassTables.h"

namespace rux {

void RegisterExtraClasses(HClasses&) {}

}  // namespace rux
