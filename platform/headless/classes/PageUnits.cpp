// Tab sets, notebooks with tabs, masked edits: Tabs, TabNotBk, DockTabSet, Mask; gauges and colour grids.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HEdits.h"
#include "platform/headless/toolkit/HLists.h"
#include "platform/headless/toolkit/HPages.h"

namespace rux {

namespace {

void RegisterTabSets(HClasses& classes) {
    classes.Add("TTabSet", "TCustomControl", HMake<HTabSet>,
                Join({Shown(),
                      Dragging(),
                      Anchored(),
                      Aligned(),
                      Lettered(),
                      Objects({"Images"}),
                      Bools({"AutoScroll", "DitherBackground"}, true),
                      Bools({"ShrinkToFit", "SoftTop"}),
                      Ints({"EndMargin", "StartMargin"}, 5),
                      Ints({"VisibleTabs"}),
                      {HReadOnly<&HTabSet::TabsObject>("Tabs"),
                       HProp<&HTabSet::TabIndex, &HTabSet::SetTabIndex>("TabIndex"),
                       KeptInt("BackgroundColor", HButtonColor), KeptInt("SelectedColor", HButtonColor),
                       KeptInt("UnselectedColor", HWindowColor), KeptEnum("Style", "TTabSetStyle"),
                       KeptInt("TabHeight", 20), KeptEnum("TabPosition", "TTabPosition", "tpBottom")}}));
    classes.Add("TDockTabSet", "TTabSet", nullptr, Join({Docked(), Objects({"DestinationDockSite"})}));
}

void RegisterTabbedNotebook(HClasses& classes) {
    classes.Add("TTabPage", "TWinControl", HMake<HNotebookPage>, Join({Shown(), Captioned(), Tabbed()}));
    classes.Add("TTabbedNotebook", "TCustomTabControl", HMake<HTabbedNotebook>,
                Join({Windowed(),
                      Aligned(),
                      {HReadOnly<&HNotebook::ActivePage>("ActivePage"), HReadOnly<&HNotebook::Pages>("Pages"),
                       HProp<&HNotebook::PageIndex, &HNotebook::SetPageIndex>("PageIndex"),
                       KeptPart("TabFont", "TFont"), KeptInt("TabsPerRow", 3)}}));
}

}  // namespace

void RegisterPageUnits(HClasses& classes) {
    RegisterTabSets(classes);
    RegisterTabbedNotebook(classes);
    classes.Add("TCustomMaskEdit", "TCustomEdit");
    classes.Add("TMaskEdit", "TCustomMaskEdit", nullptr, Join({EditRows(), Texts({"EditMask"})}));
    classes.Add("TGauge", "TGraphicControl", nullptr,
                Join({Shown(),
                      Anchored(),
                      Aligned(),
                      Lettered(),
                      Coloured(HWindowColor),
                      Ints({"MinValue", "Progress"}),
                      Ints({"BackColor"}, 0xFFFFFF),
                      Ints({"ForeColor"}),
                      Bools({"ShowText"}, true),
                      {KeptInt("MaxValue", 100), KeptEnum("BorderStyle", "TBorderStyle", "bsSingle"),
                       KeptEnum("Kind", "TGaugeKind", "gkHorizontalBar")}}));
    classes.Add("TColorGrid", "TWinControl", HMake<HInputControl>,
                Join({Windowed(), ThreeD(), Ints({"BackgroundIndex", "ForegroundIndex", "Selection"}),
                      Bools({"BackgroundEnabled", "ForegroundEnabled", "ClickEnablesColor"}, true)}));
}

}  // namespace rux
