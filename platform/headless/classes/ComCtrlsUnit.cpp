#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HContainers.h"
#include "platform/headless/toolkit/HEdits.h"

namespace rux {

void RegisterComCtrlsUnit(HClasses& classes) {
    classes.Add("TCustomTabControl", "TWinControl");
    classes.Add("TPageControl", "TCustomTabControl", HMake<HPageControl>,
                {HProp<&HPageControl::ActivePageObject, &HPageControl::SetActivePageObject>("ActivePage"),
                 HProp<&HControl::IsVisible, &HControl::SetVisible>("Visible"),
                 HProp<&HControl::IsEnabled, &HControl::SetEnabled>("Enabled"),
                 HProp<&HControl::Align, &HControl::SetAlign>("Align")});
    classes.Add(
        "TTabSheet", "TWinControl", HMake<HTabSheet>,
        {HProp<&HControl::TextRef, &HControl::SetText>("Caption"),
         HProp<&HControl::IsEnabled, &HControl::SetEnabled>("Enabled"),
         HProp<&HTabSheet::TabVisible, &HTabSheet::SetTabVisible>("TabVisible"), KeptInt("ImageIndex")});
    classes.Add("TCommonCalendar", "TWinControl");
    classes.Add("TDateTimePicker", "TCommonCalendar", HMake<HDateTimePicker>,
                {HProp<&HDateTimePicker::DateValue, &HDateTimePicker::SetDateValue>("Date"),
                 HProp<&HControl::IsVisible, &HControl::SetVisible>("Visible"),
                 HProp<&HControl::IsEnabled, &HControl::SetEnabled>("Enabled")});
}

}  // namespace rux
