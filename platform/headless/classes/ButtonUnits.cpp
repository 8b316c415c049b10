// Buttons with pictures, groups of buttons, pairs of arrows.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HButtons.h"
#include "platform/headless/toolkit/HFields.h"
#include "platform/headless/toolkit/HLists.h"

namespace rux {

HRows GlyphRows() {
    return {KeptPart("Glyph", "TBitmap"), KeptEnum("Layout", "TButtonLayout"), KeptInt("Margin", -1),
            KeptInt("NumGlyphs", 1), KeptInt("Spacing", 4)};
}

namespace {

void RegisterGroups(HClasses& classes) {
    classes.Add("TBaseButtonItem", "TCollectionItem", nullptr,
                Join({Objects({"Action"}), Texts({"Caption", "Hint"}), {KeptInt("ImageIndex", -1)}}));
    classes.Add("TGrpButtonItem", "TBaseButtonItem");
    classes.AddCollection("TGrpButtonItems", "TGrpButtonItem");
    const HRows shared = Join({Framed(),
                               Aligned(),
                               Bevelled(),
                               Docked(),
                               Objects({"Images"}),
                               {KeptInt("ButtonHeight", 24), KeptInt("ButtonWidth", 24)}});
    classes.Add("TButtonGroup", "TCustomControl", HMake<HInputControl>,
                Join({shared,
                      {KeptPart("Items", "TGrpButtonItems"), KeptInt("ItemIndex", -1),
                       KeptSet("ButtonOptions", "TGrpButtonOption", "gboShowCaptions")}}));
    classes.Add("TButtonItem", "TBaseButtonItem");
    classes.AddCollection("TButtonCollection", "TButtonItem");
    classes.Add("TButtonCategory", "TCollectionItem", nullptr,
                {KeptText("Caption"), KeptInt("Color", HNoColor), KeptBool("Collapsed"),
                 KeptInt("GradientColor", HNoColor), KeptPart("Items", "TButtonCollection"),
                 KeptInt("TextColor", HTextColor)});
    classes.AddCollection("TButtonCategories", "TButtonCategory");
    classes.Add(
        "TCategoryButtons", "TCustomControl", HMake<HInputControl>,
        Join({shared,
              {KeptPart("Categories", "TButtonCategories"), KeptEnum("ButtonFlow", "TCatButtonFlow"),
               KeptSet("ButtonOptions", "TCatButtonOption",
                       "boGradientFill,boShowCaptions,boVerticalCategoryCaptions"),
               KeptInt("BackgroundGradientColor", HNoColor),
               KeptEnum("BackgroundGradientDirection", "TGradientDirection"),
               KeptEnum("GradientDirection", "TGradientDirection"), KeptInt("HotButtonColor", 0xEFEFEF),
               KeptInt("RegularButtonColor", 0xFFFFFF), KeptInt("SelectedButtonColor", 0xD8D8D8)}}));
}

void RegisterSpins(HClasses& classes) {
    classes.Add("TTimerSpeedButton", "TSpeedButton");
    classes.Add("TSpinButton", "TWinControl", HMake<HInputControl>,
                Join({Basic(),
                      Tabbed(),
                      Aligned(),
                      ThreeD(),
                      Objects({"FocusControl"}),
                      Ints({"DownNumGlyphs", "UpNumGlyphs"}, 1),
                      {KeptPart("DownGlyph", "TBitmap"), KeptPart("UpGlyph", "TBitmap")}}));
    classes.Add(
        "TSpinEdit", "TCustomEdit", HMake<HSpinEdit>,
        Join({Windowed(),
              Coloured(),
              ThreeD(),
              Bools({"AutoSelect", "AutoSize", "EditorEnabled"}, true),
              {HProp<&HCustomEdit::IsReadOnly, &HCustomEdit::SetReadOnly>("ReadOnly"),
               HProp<&HCustomEdit::MaxLength, &HCustomEdit::SetMaxLength>("MaxLength"),
               HProp<&HSpinEdit::Value, &HSpinEdit::SetValue>("Value"),
               HProp<&HSpinEdit::MinValue, &HSpinEdit::SetMinValue>("MinValue"),
               HProp<&HSpinEdit::MaxValue, &HSpinEdit::SetMaxValue>("MaxValue"), KeptInt("Increment", 1)}}));
}

}  // namespace

void RegisterButtonUnits(HClasses& classes) {
    classes.Add("TSpeedButton", "TGraphicControl", HMake<HSpeedButton>,
                Join({Basic(),
                      Acting(),
                      Captioned(),
                      Lettered(),
                      GlyphRows(),
                      Bools({"Flat"}),
                      Bools({"Transparent"}, true),
                      {HProp<&HSpeedButton::Down, &HSpeedButton::SetDown>("Down"),
                       HProp<&HSpeedButton::GroupIndex, &HSpeedButton::SetGroupIndex>("GroupIndex"),
                       HProp<&HSpeedButton::AllowAllUp, &HSpeedButton::SetAllowAllUp>("AllowAllUp")}}));
    classes.Add(
        "TBitBtn", "TButton", HMake<HBitBtn>,
        Join({GlyphRows(),
              {HProp<&HBitBtn::Kind, &HBitBtn::SetKind>("Kind"), KeptEnum("Style", "TButtonStyle")}}));
    RegisterGroups(classes);
    RegisterSpins(classes);
}

}  // namespace rux
