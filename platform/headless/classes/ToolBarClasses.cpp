// Tool bars, cool bars, status bars, scrollers of pages.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HStatusBars.h"
#include "platform/headless/toolkit/HToolBars.h"

namespace rux {

namespace {

HRows EdgeRows(std::string_view borders) {
    return {KeptSet("EdgeBorders", "TEdgeBorder", borders), KeptEnum("EdgeInner", "TEdgeStyle", "esRaised"),
            KeptEnum("EdgeOuter", "TEdgeStyle", "esLowered"), KeptInt("BorderWidth")};
}

void RegisterToolBar(HClasses& classes) {
    classes.Add("TToolWindow", "TWinControl", HMake<HToolWindow>);
    classes.Add(
        "TToolBar", "TToolWindow", HMake<HToolBar>,
        Join({Windowed(),
              Aligned(),
              Captioned(),
              Coloured(HButtonColor, true),
              ThreeD(),
              Docked(),
              EdgeRows("ebTop"),
              Objects({"DisabledImages", "HotImages", "Images", "Menu"}),
              Bools({"AllowTextButtons", "AutoSize", "Customizable", "HideClippedButtons", "List",
                     "ShowCaptions", "Transparent"}),
              Bools({"Flat", "Wrapable"}, true),
              Ints({"Indent"}),
              {HProp<&HToolBar::ButtonWidth, &HToolBar::SetButtonWidth>("ButtonWidth"),
               HProp<&HToolBar::ButtonHeight, &HToolBar::SetButtonHeight>("ButtonHeight"),
               KeptEnum("DrawingStyle", "TBandDrawingStyle"),
               KeptEnum("GradientDirection", "TGradientDirection"),
               KeptInt("GradientStartColor", HWindowColor), KeptInt("GradientEndColor", HButtonColor)}}));
    classes.Add("TToolButton", "TGraphicControl", HMake<HToolButton>,
                Join({Shown(),
                      Dragging(),
                      Acting(),
                      Captioned(),
                      Objects({"DropdownMenu", "MenuItem"}),
                      Bools({"AutoSize", "Indeterminate", "Marked", "Wrap"}),
                      Bools({"EnableDropdown"}, true),
                      {HProp<&HToolButton::Style, &HToolButton::SetStyle>("Style"),
                       HProp<&HToolButton::Down, &HToolButton::SetDown>("Down"),
                       HProp<&HToolButton::Grouped, &HToolButton::SetGrouped>("Grouped"),
                       HProp<&HToolButton::AllowAllUp, &HToolButton::SetAllowAllUp>("AllowAllUp"),
                       KeptInt("ImageIndex", -1)}}));
}

void RegisterCoolBar(HClasses& classes) {
    classes.Add("TCoolBand", "TCollectionItem", nullptr,
                Join({Bools({"FixedSize", "HorizontalOnly"}),
                      Bools({"Break", "FixedBackground", "ParentBitmap", "ParentColor", "Visible"}, true),
                      Objects({"Control"}),
                      {KeptPart("Bitmap", "TBitmap"), KeptEnum("BorderStyle", "TBorderStyle"),
                       KeptInt("Color", HButtonColor), KeptInt("ImageIndex", -1), KeptInt("MinHeight", 25),
                       KeptInt("MinWidth"), KeptText("Text"), KeptInt("Width", 40)}}));
    classes.AddCollection("TCoolBands", "TCoolBand");
    classes.Add("TCoolBar", "TToolWindow", HMakeAligned<HToolWindow, HAlign::alTop>,
                Join({Basic(),
                      Lettered(),
                      Aligned(),
                      Coloured(HButtonColor, true),
                      ThreeD(),
                      Docked(),
                      EdgeRows("ebLeft,ebTop,ebRight,ebBottom"),
                      Objects({"Images"}),
                      Bools({"AutoSize", "FixedOrder", "FixedSize", "Vertical"}),
                      Bools({"ShowText"}, true),
                      {KeptEnum("BandBorderStyle", "TBorderStyle", "bsSingle"),
                       KeptEnum("BandMaximize", "TCoolBandMaximize", "bmClick"),
                       KeptPart("Bands", "TCoolBands"), KeptPart("Bitmap", "TBitmap")}}));
}

void RegisterStatusBar(HClasses& classes) {
    classes.Add("TStatusPanel", "TCollectionItem", nullptr,
                {KeptEnum("Alignment", "TAlignment"), KeptEnum("Bevel", "TStatusPanelBevel", "pbLowered"),
                 KeptEnum("BiDiMode", "TBiDiMode"), KeptBool("ParentBiDiMode", true),
                 KeptEnum("Style", "TStatusPanelStyle"), KeptText("Text"), KeptInt("Width", 50)});
    classes.AddCollection("TStatusPanels", "TStatusPanel");
    classes.Add("TCustomStatusBar", "TWinControl", HMake<HPanelledBar>);
    classes.Add("TStatusBar", "TCustomStatusBar", HMake<HStatusBar>,
                Join({Basic(),
                      Aligned(),
                      Acting(),
                      Lettered(),
                      Coloured(HButtonColor),
                      Bools({"AutoHint", "ParentFont", "SimplePanel"}),
                      Bools({"SizeGrip", "UseSystemFont"}, true),
                      Texts({"SimpleText"}),
                      Ints({"BorderWidth"}),
                      {KeptPart("Panels", "TStatusPanels")}}));
}

}  // namespace

void RegisterToolBarClasses(HClasses& classes) {
    RegisterToolBar(classes);
    RegisterCoolBar(classes);
    RegisterStatusBar(classes);
    classes.Add("TPageScroller", "TWinControl", nullptr,
                Join({Windowed(),
                      Aligned(),
                      Coloured(HButtonColor, true),
                      Docked(),
                      Objects({"Control"}),
                      Bools({"AutoScroll"}),
                      Bools({"DragScroll"}, true),
                      Ints({"BorderWidth", "Margin", "Position"}),
                      {KeptInt("ButtonSize", 12), KeptEnum("Orientation", "TPageScrollerOrientation")}}));
}

}  // namespace rux
