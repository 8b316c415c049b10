// List views.
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

void RegisterListViewClasses(HClasses& classes) {
    classes.Add("TListItems", "TPersistent");
    classes.Add(
        "TIconOptions", "TPersistent", nullptr,
        {KeptEnum("Arrangement", "TIconArrangement"), KeptBool("AutoArrange"), KeptBool("WrapText", true)});
    classes.Add("TListColumn", "TCollectionItem", nullptr,
                {KeptEnum("Alignment", "TAlignment"), KeptBool("AutoSize"), KeptText("Caption"),
                 KeptInt("ImageIndex", -1), KeptInt("MaxWidth"), KeptInt("MinWidth"), KeptInt("Tag"),
                 KeptInt("Width", 50)});
    classes.AddCollection("TListColumns", "TListColumn");
    classes.Add("TCustomListView", "TCustomMultiSelectListControl", HMake<HView>);
    classes.Add(
        "TListView", "TCustomListView", nullptr,
        Join({ViewRows(),
              Acting(),
              Bools({"Checkboxes", "FlatScrollBars", "FullDrag", "GridLines", "OwnerData", "OwnerDraw",
                     "ShowWorkAreas"}),
              Bools({"ColumnClick", "ShowColumnHeaders"}, true),
              Ints({"AllocBy"}),
              Objects({"LargeImages", "SmallImages"}),
              {KeptPart("Columns", "TListColumns"), KeptPart("IconOptions", "TIconOptions"),
               KeptPart("Items", "TListItems"), KeptInt("HoverTime", -1),
               KeptSet("HotTrackStyles", "TListHotTrackStyle"), KeptEnum("ViewStyle", "TViewStyle")}}));
}

}  // namespace rux
