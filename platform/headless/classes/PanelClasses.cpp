// Panels, their kinds that place their children, control bars.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HLists.h"

namespace rux {

HRows PanelRows() {
    return Join(
        {Windowed(),
         Aligned(),
         Captioned(),
         Coloured(HButtonColor),
         ThreeD(),
         Docked(),
         Bevelled(),
         Bools({"AutoSize", "Locked"}),
         Bools({"FullRepaint", "ParentBackground", "UseDockManager"}, true),
         {KeptEnum("Alignment", "TAlignment", "taCenter"), KeptEnum("BevelInner", "TBevelCut", "bvNone"),
          KeptEnum("BevelOuter", "TBevelCut", "bvRaised"), KeptInt("BevelWidth", 1), KeptInt("BorderWidth"),
          KeptEnum("BorderStyle", "TBorderStyle"), KeptPart("Padding", "TPadding"),
          KeptEnum("VerticalAlignment", "TVerticalAlignment", "taVerticalCenter")}});
}

namespace {

void RegisterGridPanel(HClasses& classes) {
    classes.Add("TCellItem", "TCollectionItem", nullptr,
                {KeptEnum("SizeStyle", "TSizeStyle", "ssPercent"), KeptFloat("Value")});
    AddChildren(classes, "TCellItem", {"TColumnItem", "TRowItem"});
    classes.Add("TControlItem", "TCollectionItem", nullptr,
                Join({Ints({"Column", "Row"}), Ints({"ColumnSpan", "RowSpan"}, 1), Objects({"Control"})}));
    classes.AddCollection("TColumnCollection", "TColumnItem");
    classes.AddCollection("TRowCollection", "TRowItem");
    classes.AddCollection("TControlCollection", "TControlItem");
    classes.Add("TCustomGridPanel", "TCustomPanel");
    classes.Add(
        "TGridPanel", "TCustomGridPanel", nullptr,
        Join({PanelRows(),
              {KeptPart("ColumnCollection", "TColumnCollection"),
               KeptPart("ControlCollection", "TControlCollection"),
               KeptPart("RowCollection", "TRowCollection"), KeptEnum("ExpandStyle", "TExpandStyle")}}));
}

}  // namespace

void RegisterPanelClasses(HClasses& classes) {
    classes.Add("TCustomPanel", "TCustomControl", HMake<HBorderedControl>);
    classes.Add("TPanel", "TCustomPanel", nullptr, PanelRows());
    classes.Add("TCustomFlowPanel", "TCustomPanel");
    classes.Add("TFlowPanel", "TCustomFlowPanel", nullptr,
                Join({PanelRows(), Bools({"AutoWrap"}, true), {KeptEnum("FlowStyle", "TFlowStyle")}}));
    RegisterGridPanel(classes);
    classes.Add("TCustomControlBar", "TCustomControl");
    classes.Add("TControlBar", "TCustomControlBar", nullptr,
                Join({Windowed(),
                      Aligned(),
                      Coloured(HButtonColor, true),
                      ThreeD(),
                      Bevelled(),
                      Bools({"AutoSize"}),
                      Bools({"AutoDock", "AutoDrag", "DockSite", "RowSnap"}, true),
                      {KeptEnum("BevelKind", "TBevelKind", "bkTile"), KeptInt("BevelWidth", 1),
                       KeptInt("BorderWidth"), KeptEnum("DrawingStyle", "TBandDrawingStyle"),
                       KeptEnum("GradientDirection", "TGradientDirection"),
                       KeptInt("GradientStartColor", HWindowColor), KeptInt("GradientEndColor", HButtonColor),
                       KeptPart("Picture", "TPicture"), KeptInt("RowSize", 26)}}));
}

}  // namespace rux
