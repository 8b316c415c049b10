// List views.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HListView.h"

namespace rux {

void RegisterListViewClasses(HClasses& classes) {
    classes.Add("TListItem", "TPersistent", HMake<HListItem>);
    classes.Add("TListItems", "TPersistent", HMake<HListItems>, {HReadOnly<&HListItems::Count>("Count")});
    classes.Add(
        "TIconOptions", "TPersistent", nullptr,
        {KeptEnum("Arrangement", "TIconArrangement"), KeptBool("AutoArrange"), KeptBool("WrapText", true)});
    classes.Add("TListColumn", "TCollectionItem", nullptr,
                {KeptEnum("Alignment", "TAlignment"), KeptBool("AutoSize"), KeptText("Caption"),
                 KeptInt("ImageIndex", -1), KeptInt("MaxWidth"), KeptInt("MinWidth"), KeptInt("Tag"),
                 KeptInt("Width", 50)});
    classes.AddCollection("TListColumns", "TListColumn");
    classes.Add("TCustomListView", "TCustomMultiSelectListControl", HMake<HCustomListView>);
    classes.Add(
        "TListView", "TCustomListView", nullptr,
        Join({ViewRows(),
              Acting(),
              Bools({"Checkboxes", "FlatScrollBars", "FullDrag", "GridLines", "OwnerData", "OwnerDraw",
                     "ShowWorkAreas"}),
              Bools({"ColumnClick", "ShowColumnHeaders"}, true),
              Ints({"AllocBy"}),
              Objects({"LargeImages", "SmallImages"}),
              {HReadOnly<&HCustomListView::ColumnsObject>("Columns"),
               HReadOnly<&HCustomListView::ItemsObject>("Items"), KeptPart("IconOptions", "TIconOptions"),
               KeptInt("HoverTime", -1), KeptSet("HotTrackStyles", "TListHotTrackStyle"),
               KeptEnum("ViewStyle", "TViewStyle")}}));
}

}  // namespace rux
