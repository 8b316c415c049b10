#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

void RegisterToolkitClasses(HClasses& classes) {
    RegisterControlsUnit(classes);
    RegisterFormsUnit(classes);
    RegisterStdCtrlsUnit(classes);
    RegisterMenusUnit(classes);
    RegisterComCtrlsUnit(classes);
}

}  // namespace rux
