// Controls that show data: DBCtrls, DBGrids, DBCGrids. They are not bound to any; each is what its parent is.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HCombos.h"
#include "platform/headless/toolkit/HEdits.h"
#include "platform/headless/toolkit/HLists.h"

namespace rux {

namespace {

HRows Bound() {
    return Join({Texts({"DataField"}), Objects({"DataSource"})});
}

HRows BoundInput() {
    return Join({Framed(), Bound(), Bools({"ReadOnly"})});
}

HRows BoundEdit() {
    return Join({Framed(),
                 Bevelled(),
                 Typing(),
                 Bound(),
                 {HProp<&HCustomEdit::IsReadOnly, &HCustomEdit::SetReadOnly>("ReadOnly"),
                  HProp<&HCustomEdit::MaxLength, &HCustomEdit::SetMaxLength>("MaxLength")}});
}

HRows BoundItems() {
    return Join({BoundInput(), {HReadOnly<&HItemsControl::ItemsObject>("Items")}});
}

void RegisterEdits(HClasses& classes) {
    classes.Add("TDBText", "TCustomLabel", nullptr,
                Join({Basic(),
                      Aligned(),
                      Lettered(),
                      Coloured(HWindowColor, true),
                      Bound(),
                      Bools({"AutoSize", "Transparent", "WordWrap"}),
                      Bools({"ShowAccelChar"}, true),
                      {KeptEnum("Alignment", "TAlignment")}}));
    classes.Add("TDBEdit", "TCustomMaskEdit", nullptr,
                Join({BoundEdit(),
                      Bools({"AutoSelect", "AutoSize"}, true),
                      {KeptEnum("CharCase", "TEditCharCase"), KeptChar("PasswordChar")}}));
    const HRows memo = Join({BoundEdit(),
                             Aligned(),
                             Bools({"AutoDisplay", "WordWrap"}, true),
                             {KeptEnum("Alignment", "TAlignment"), KeptEnum("ScrollBars", "TScrollStyle")}});
    classes.Add("TDBMemo", "TCustomMemo", nullptr, memo);
    classes.Add("TDBRichEdit", "TCustomRichEdit", nullptr, memo);
}

void RegisterChoices(HClasses& classes) {
    classes.Add("TDBCheckBox", "TCustomCheckBox", nullptr,
                Join({Windowed(),
                      Acting(),
                      Captioned(),
                      Coloured(HButtonColor, true),
                      ThreeD(),
                      Bound(),
                      Bools({"ReadOnly"}),
                      {KeptText("ValueChecked", "True"), KeptText("ValueUnchecked", "False")}}));
    classes.Add("TDBRadioGroup", "TCustomRadioGroup", nullptr,
                Join({GroupBoxRows(),
                      Bound(),
                      Bools({"ReadOnly"}),
                      Ints({"Columns"}, 1),
                      {HReadOnly<&HItemsControl::ItemsObject>("Items"), KeptPart("Values", "TStringList")}}));
    classes.Add("TDBListBox", "TCustomListBox", nullptr,
                Join({BoundItems(), Aligned(), {KeptInt("ItemHeight", 16)}}));
    classes.Add("TDBComboBox", "TCustomComboBox", nullptr,
                Join({BoundItems(),
                      {HProp<&HCustomComboBox::Style, &HCustomComboBox::SetStyle>("Style"),
                       KeptInt("DropDownCount", 8), KeptInt("ItemHeight", 16)}}));
    classes.Add("TDBLookupControl", "TCustomControl", HMake<HInputControl>);
    const HRows lookup = Join(
        {BoundInput(), Texts({"KeyField", "ListField"}), Objects({"ListSource"}), Ints({"ListFieldIndex"})});
    classes.Add("TDBLookupListBox", "TDBLookupControl", nullptr, Join({lookup, Aligned()}));
    classes.Add("TDBLookupComboBox", "TDBLookupControl", nullptr, Join({lookup, Ints({"DropDownRows"}, 7)}));
    classes.Add("TDBImage", "TCustomControl", HMake<HInputControl>,
                Join({BoundInput(), Aligned(), Bools({"AutoDisplay", "Center", "QuickDraw"}, true),
                      Bools({"Stretch"})}));
}

void RegisterGrids(HClasses& classes) {
    classes.Add("TColumnTitle", "TPersistent", nullptr,
                {KeptEnum("Alignment", "TAlignment"), KeptText("Caption"), KeptInt("Color", HButtonColor),
                 KeptPart("Font", "TFont")});
    classes.Add("TColumn", "TCollectionItem", nullptr,
                Join({Texts({"FieldName", "ImeName"}),
                      Bools({"Expanded", "ReadOnly"}),
                      Bools({"Visible"}, true),
                      {KeptEnum("Alignment", "TAlignment"), KeptEnum("ButtonStyle", "TColumnButtonStyle"),
                       KeptInt("Color", HWindowColor), KeptInt("DropDownRows", 7), KeptPart("Font", "TFont"),
                       KeptEnum("ImeMode", "TImeMode", "imDontCare"), KeptPart("PickList", "TStringList"),
                       KeptObject("PopupMenu"), KeptPart("Title", "TColumnTitle"), KeptInt("Width", 64)}}));
    classes.AddCollection("TDBGridColumns", "TColumn");
    classes.Add("TCustomDBGrid", "TCustomGrid");
    classes.Add("TDBGrid", "TCustomDBGrid", nullptr,
                Join({Framed(),
                      Aligned(),
                      Typing(),
                      Objects({"DataSource"}),
                      Bools({"ReadOnly"}),
                      Bools({"DefaultDrawing"}, true),
                      {KeptPart("Columns", "TDBGridColumns"), KeptInt("FixedColor", HButtonColor),
                       KeptSet("Options", "TDBGridOption",
                               "dgEditing,dgTitles,dgIndicator,dgColumnResize,dgColLines,dgRowLines,dgTabs,"
                               "dgConfirmDelete,dgCancelOnExit"),
                       KeptPart("TitleFont", "TFont")}}));
    AddChildren(classes, "TWinControl", {"TDBCtrlGrid", "TDBCtrlPanel"});
}

}  // namespace

void RegisterDataControlUnits(HClasses& classes) {
    RegisterEdits(classes);
    RegisterChoices(classes);
    RegisterGrids(classes);
    classes.Add("TCustomDBNavigator", "TCustomPanel");
    classes.Add("TDBNavigator", "TCustomDBNavigator", nullptr,
                Join({Windowed(),
                      Aligned(),
                      ThreeD(),
                      Objects({"DataSource"}),
                      Bools({"Flat"}),
                      Bools({"ConfirmDelete"}, true),
                      {KeptPart("Hints", "TStringList"),
                       KeptSet("VisibleButtons", "TNavigateBtn",
                               "nbFirst,nbPrior,nbNext,nbLast,nbInsert,nbDelete,nbEdit,nbPost,nbCancel,"
                               "nbRefresh")}}));
}

}  // namespace rux
