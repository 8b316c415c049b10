// Trees.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HTreeView.h"

namespace rux {

void RegisterTreeClasses(HClasses& classes) {
    classes.Add("TTreeNode", "TPersistent", HMake<HTreeNode>);
    classes.Add("TRichTreeNode", "TTreeNode", HMake<HRichTreeNode>);
    classes.Add("TTreeNodes", "TPersistent", HMake<HTreeNodeList>,
                {HReadOnly<&HTreeNodeList::Count>("Count")});
    classes.Add("TCustomTreeView", "TWinControl", HMake<HCustomTreeView>);
    classes.Add("TTreeView", "TCustomTreeView", nullptr,
                Join({ViewRows(),
                      Bools({"AutoExpand", "RightClickSelect"}),
                      Bools({"ShowButtons", "ShowLines", "ShowRoot", "ToolTips"}, true),
                      Ints({"ChangeDelay"}),
                      Objects({"Images"}),
                      {KeptInt("BevelWidth", 1), KeptInt("Indent", 19),
                       HReadOnly<&HCustomTreeView::ItemsObject>("Items"),
                       KeptSet("MultiSelectStyle", "TMultiSelectStyles", "msControlSelect")}}));
    classes.Add("TRichTreeView", "TTreeView", HMake<HRichTreeView>,
                {HProp<&HRichTreeView::Checkboxes, &HRichTreeView::SetCheckboxes>("Checkboxes")});
}

}  // namespace rux
