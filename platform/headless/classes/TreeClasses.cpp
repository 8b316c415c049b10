// Trees.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HLists.h"

namespace rux {

namespace {

/// A view with a border that the keyboard reaches.
class HView : public HBorderedControl {
 public:
    HView(HToolkit& kit, const HClassDef& def) : HBorderedControl(kit, def) { FTabStop = true; }
};

}  // namespace

void RegisterTreeClasses(HClasses& classes) {
    // The nodes of a form file are kept as the bytes they are.
    classes.Add("TTreeNodes", "TPersistent");
    classes.Add("TCustomTreeView", "TWinControl", HMake<HView>);
    classes.Add("TTreeView", "TCustomTreeView", nullptr,
                Join({ViewRows(),
                      Bools({"AutoExpand", "RightClickSelect"}),
                      Bools({"ShowButtons", "ShowLines", "ShowRoot", "ToolTips"}, true),
                      Ints({"ChangeDelay"}),
                      Objects({"Images"}),
                      {KeptInt("BevelWidth", 1), KeptInt("Indent", 19), KeptPart("Items", "TTreeNodes"),
                       KeptSet("MultiSelectStyle", "TMultiSelectStyles", "msControlSelect")}}));
}

}  // namespace rux
