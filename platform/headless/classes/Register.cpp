#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

void RegisterToolkitClasses(HClasses& classes) {
    RegisterControlsUnit(classes);
    RegisterGraphicsUnit(classes);
    RegisterFormsUnit(classes);
    RegisterStdCtrlsUnit(classes);
    RegisterListUnits(classes);
    RegisterButtonUnits(classes);
    RegisterExtCtrlsUnit(classes);
    RegisterPanelClasses(classes);
    RegisterMenusUnit(classes);
    RegisterActionUnits(classes);
    RegisterActionBarUnits(classes);
    RegisterComCtrlsUnit(classes);
    RegisterTreeClasses(classes);
    RegisterListViewClasses(classes);
    RegisterViewClasses(classes);
    RegisterShellUnit(classes);
    RegisterToolBarClasses(classes);
    RegisterDialogUnits(classes);
    RegisterPageUnits(classes);
    RegisterExtraClasses(classes);
    RegisterGridUnits(classes);
    RegisterDataUnits(classes);
    RegisterDataControlUnits(classes);
    RegisterReportUnits(classes);
    RegisterSystemUnits(classes);
}

}  // namespace rux
