#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HActions.h"
#include "platform/headless/toolkit/HStrings.h"
#include "platform/headless/toolkit/HWinControl.h"

namespace rux {

void RegisterControlsUnit(HClasses& classes) {
    classes.Add("TObject", "");
    classes.Add("TPersistent", "TObject", HMake<HPersistent>);
    classes.Add("TStrings", "TPersistent", HMake<HStrings>, {HReadOnly<&HStrings::CountValue>("Count")});
    classes.Add("TStringList", "TStrings");
    classes.Add("TMemoStrings", "TStrings", HMake<HTextLines>);
    classes.Add("TCollection", "TPersistent", HMake<HCollection>, {HReadOnly<&HCollection::Count>("Count")});
    classes.Add("TCollectionItem", "TPersistent");
    classes.Add("TComponent", "TPersistent", HMake<HComponent>,
                {HProp<&HComponent::Name, &HComponent::SetName>("Name"), KeptInt("Tag")});
    classes.Add(
        "TControl", "TComponent", HMake<HControl>,
        {HProp<&HControl::Left, &HControl::SetLeft>("Left"), HProp<&HControl::Top, &HControl::SetTop>("Top"),
         HProp<&HControl::Width, &HControl::SetWidth>("Width"),
         HProp<&HControl::Height, &HControl::SetHeight>("Height"), KeptInt("Cursor"), KeptText("Hint")});
    classes.Add("TGraphicControl", "TControl", HMake<HGraphicControl>);
    classes.Add("TWinControl", "TControl", HMake<HWinControl>);
    classes.Add("TCustomControl", "TWinControl");
    classes.Add("TScrollingWinControl", "TWinControl");
}

}  // namespace rux
