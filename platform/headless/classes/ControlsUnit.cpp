// The roots, what all components and controls publish, and their parts.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HLists.h"
#include "platform/headless/toolkit/HStrings.h"

namespace rux {

namespace {

void RegisterStrings(HClasses& classes) {
    classes.Add("TStrings", "TPersistent", HMake<HStrings>, {HReadOnly<&HStrings::Count>("Count")});
    AddChildren(classes, "TStrings",
                {"TStringList", "TListBoxStrings", "TCustomComboBoxStrings", "TTabStrings", "TPageAccess"});
    classes.Add("TComboBoxStrings", "TCustomComboBoxStrings");
    AddChildren(classes, "TStringList", {"TTabList", "TShortCutList", "THeaderStrings"});
    classes.Add("TMemoStrings", "TStrings", HMake<HTextLines>);
    classes.Add("TRichEditStrings", "TStrings", HMake<HTextLines>);
}

/// Sides of a control, all alike.
HRows Sides(int width) {
    return Ints({"Left", "Top", "Right", "Bottom"}, width);
}

void RegisterParts(HClasses& classes) {
    classes.Add("TSizeConstraints", "TPersistent", nullptr,
                Ints({"MaxHeight", "MaxWidth", "MinHeight", "MinWidth"}));
    classes.Add("TMargins", "TPersistent", nullptr, Sides(3));
    classes.Add("TPadding", "TMargins", nullptr, Sides(0));
}

void RegisterImageLists(HClasses& classes) {
    classes.Add("TCustomImageList", "TComponent");
    classes.Add("TDragImageList", "TCustomImageList");
    classes.Add("TImageList", "TDragImageList", nullptr,
                {KeptInt("BlendColor", HNoColor), KeptInt("BkColor", HNoColor), KeptInt("AllocBy", 4),
                 KeptEnum("DrawingStyle", "TDrawingStyle", "dsNormal"), KeptInt("Height", 16),
                 KeptEnum("ImageType", "TImageType"), KeptBool("Masked", true), KeptBool("ShareImages"),
                 KeptInt("Width", 16)});
    // A later toolkit's.
    AddChildren(classes, "TCustomImageList", {"TVirtualImageList"});
}

}  // namespace

void RegisterControlsUnit(HClasses& classes) {
    classes.Add("TObject", "");
    classes.Add("TPersistent", "TObject", HMake<HPersistent>);
    RegisterStrings(classes);
    RegisterParts(classes);
    classes.Add("TCollection", "TPersistent", HMake<HCollection>, {HReadOnly<&HCollection::Count>("Count")});
    classes.Add("TCollectionItem", "TPersistent");
    classes.Add("TComponent", "TPersistent", HMake<HComponent>,
                {HProp<&HComponent::Name, &HComponent::SetName>("Name"), KeptInt("Tag")});
    classes.Add(
        "TControl", "TComponent", HMake<HControl>,
        {HProp<&HControl::Left, &HControl::SetLeft>("Left"), HProp<&HControl::Top, &HControl::SetTop>("Top"),
         HProp<&HControl::Width, &HControl::SetWidth>("Width"),
         HProp<&HControl::Height, &HControl::SetHeight>("Height"), KeptInt("Cursor"), KeptText("Hint"),
         KeptEnum("HelpType", "THelpType", "htContext"), KeptText("HelpKeyword"), KeptInt("HelpContext"),
         KeptBool("AlignWithMargins"), KeptPart("Margins", "TMargins")});
    classes.Add("TGraphicControl", "TControl", HMake<HGraphicControl>);
    classes.Add("TWinControl", "TControl", HMake<HWinControl>);
    AddChildren(classes, "TWinControl", {"TCustomControl", "TCustomListControl", "TOleControl"});
    AddChildren(classes, "TCustomControl", {"THintWindow", "TCustomTransparentControl"});
    classes.Add("TCustomMultiSelectListControl", "TCustomListControl");
    RegisterImageLists(classes);
}

}  // namespace rux
