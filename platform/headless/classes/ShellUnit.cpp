// List view and combo box over the machine's folders: ShellCtrls.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HShellCtrls.h"

namespace rux {

namespace {

HPropDef ObjectTypes(std::string_view fallback) {
    static const HEnumInfo info{"TShellObjectType", {"otFolders", "otNonFolders", "otHidden"}};
    return HKept("ObjectTypes", HSetValue(std::string(fallback)), &info);
}

}  // namespace

void RegisterShellUnit(HClasses& classes) {
    classes.Add("TCustomShellListView", "TCustomListView", HMake<HShellListView>);
    classes.Add(
        "TShellListView", "TCustomShellListView", nullptr,
        Join({ViewRows(),
              Acting(),
              Bools({"AutoContextMenus", "AutoNavigate", "AutoRefresh", "ShowColumnHeaders"}, true),
              Bools({"Sorted", "GridLines"}),
              Objects({"LargeImages", "ShellComboBox", "ShellTreeView", "SmallImages"}),
              {HProp<&HShellListView::Root, &HShellListView::SetRoot>("Root"),
               HReadOnly<&HCustomListView::ColumnsObject>("Columns"),
               HReadOnly<&HCustomListView::ItemsObject>("Items"), ObjectTypes("otFolders,otNonFolders"),
               KeptPart("IconOptions", "TIconOptions"), KeptEnum("ViewStyle", "TViewStyle")}}));
    classes.Add("TCustomShellComboBox", "TCustomComboBoxEx", HMake<HShellComboBox>);
    classes.Add(
        "TShellComboBox", "TCustomShellComboBox", nullptr,
        Join({Windowed(),
              Acting(),
              Coloured(),
              ThreeD(),
              Typing(),
              Objects({"Images", "ShellListView", "ShellTreeView"}),
              Bools({"UseShellImages"}, true),
              {HProp<&HShellComboBox::Root, &HShellComboBox::SetRoot>("Root"), ObjectTypes("otFolders"),
               HProp<&HCustomComboBoxEx::StyleEx, &HCustomComboBoxEx::SetStyleEx>("Style"),
               KeptInt("DropDownCount", 8)}}));
}

}  // namespace rux
