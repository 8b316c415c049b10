// List view and combo box over the machine's folders: ShellCtrls.
#include "platform/headless/classes/HClassTables.h"

namespace rux {

void RegisterShellUnit(HClasses&) {}

}  // namespace rux
