// Labels, edits, buttons, group boxes, scroll bars.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HButtons.h"
#include "platform/headless/toolkit/HEdits.h"
#include "platform/headless/toolkit/HLists.h"

namespace rux {

namespace {

/// What labels of all kinds share.
HRows Labelled() {
    return Join({Captioned(),
                 Lettered(),
                 Coloured(HWindowColor, true),
                 Bools({"Transparent", "WordWrap"}),
                 {KeptBool("ShowAccelChar", true), KeptEnum("Layout", "TTextLayout"),
                  KeptEnum("EllipsisPosition", "TEllipsisPosition")}});
}

HRows ReadOnlyRow() {
    return {HProp<&HCustomEdit::IsReadOnly, &HCustomEdit::SetReadOnly>("ReadOnly"),
            HProp<&HCustomEdit::MaxLength, &HCustomEdit::SetMaxLength>("MaxLength")};
}

void RegisterLabels(HClasses& classes) {
    classes.Add("TCustomLabel", "TGraphicControl");
    classes.Add("TLabel", "TCustomLabel", nullptr,
                Join({Basic(),
                      Aligned(),
                      Labelled(),
                      Objects({"FocusControl"}),
                      {KeptEnum("Alignment", "TAlignment"), KeptBool("AutoSize", true)}}));
    classes.Add("TBoundLabel", "TCustomLabel", nullptr, Join({Basic(), Labelled()}));
    classes.Add("TCustomStaticText", "TWinControl");
    classes.Add("TStaticText", "TCustomStaticText", nullptr,
                Join({Windowed(),
                      Aligned(),
                      Captioned(),
                      Coloured(HButtonColor, true),
                      Bevelled(),
                      Objects({"FocusControl"}),
                      Bools({"AutoSize", "ShowAccelChar", "Transparent"}, true),
                      {KeptEnum("Alignment", "TAlignment"), KeptEnum("BorderStyle", "TStaticBorderStyle")}}));
}

void RegisterMemos(HClasses& classes) {
    classes.Add("TCustomMemo", "TCustomEdit", HMake<HCustomMemo>);
    classes.Add("TMemo", "TCustomMemo", nullptr,
                Join({Framed(),
                      Aligned(),
                      Bevelled(),
                      Typing(),
                      ReadOnlyRow(),
                      Bools({"OEMConvert"}),
                      Bools({"HideSelection", "WordWrap"}, true),
                      {HReadOnly<&HCustomMemo::Lines>("Lines"), KeptEnum("Alignment", "TAlignment"),
                       HProp<&HCustomMemo::WantReturns, &HCustomMemo::SetWantReturns>("WantReturns"),
                       HProp<&HCustomMemo::WantTabs, &HCustomMemo::SetWantTabs>("WantTabs"),
                       KeptEnum("ScrollBars", "TScrollStyle")}}));
}

void RegisterButtons(HClasses& classes) {
    classes.Add("TButtonControl", "TWinControl", HMake<HButtonControl>);
    classes.Add("TButton", "TButtonControl", HMake<HButton>,
                Join({Windowed(),
                      Acting(),
                      Captioned(),
                      Bools({"WordWrap"}),
                      {HProp<&HButton::ModalResult, &HButton::SetModalResult>("ModalResult"),
                       HProp<&HButton::Default, &HButton::SetDefault>("Default"),
                       HProp<&HButton::Cancel, &HButton::SetCancel>("Cancel")}}));
    const HRows marked = Join({Windowed(),
                               Acting(),
                               Captioned(),
                               Coloured(HButtonColor, true),
                               ThreeD(),
                               Bools({"WordWrap"}),
                               {KeptEnum("Alignment", "TAlignment", "taRightJustify")}});
    classes.Add("TCustomCheckBox", "TButtonControl", HMake<HCustomCheckBox>);
    classes.Add(
        "TCheckBox", "TCustomCheckBox", nullptr,
        Join({marked,
              {HProp<&HCustomCheckBox::IsChecked, &HCustomCheckBox::PutChecked>("Checked"),
               HProp<&HCustomCheckBox::State, &HCustomCheckBox::SetState>("State"),
               HProp<&HCustomCheckBox::AllowGrayed, &HCustomCheckBox::SetAllowGrayed>("AllowGrayed")}}));
    classes.Add("TRadioButton", "TButtonControl", HMake<HRadioButton>,
                Join({marked, {HProp<&HRadioButton::IsChecked, &HRadioButton::SetChecked>("Checked")}}));
    classes.Add("TGroupButton", "TRadioButton");
}

}  // namespace

HRows EditRows() {
    return Join({Framed(),
                 Bevelled(),
                 Typing(),
                 Texted(),
                 ReadOnlyRow(),
                 Bools({"AutoSelect", "AutoSize"}, true),
                 {KeptEnum("CharCase", "TEditCharCase"), KeptChar("PasswordChar")}});
}

HRows FullEditRows() {
    return Join({EditRows(), Bools({"OEMConvert"}), Bools({"HideSelection"}, true)});
}

HRows GroupBoxRows() {
    return Join({Windowed(),
                 Aligned(),
                 Captioned(),
                 Coloured(HButtonColor, true),
                 ThreeD(),
                 Docked(),
                 {KeptBool("ParentBackground", true), KeptPart("Padding", "TPadding")}});
}

void RegisterStdCtrlsUnit(HClasses& classes) {
    RegisterLabels(classes);
    classes.Add("TCustomEdit", "TWinControl", HMake<HCustomEdit>);
    classes.Add("TEdit", "TCustomEdit", nullptr, FullEditRows());
    RegisterMemos(classes);
    RegisterButtons(classes);
    classes.Add("TCustomGroupBox", "TCustomControl");
    classes.Add("TGroupBox", "TCustomGroupBox", nullptr, GroupBoxRows());
    classes.Add("TScrollBar", "TWinControl", HMake<HInputControl>,
                Join({Basic(),
                      Tabbed(),
                      Aligned(),
                      ThreeD(),
                      Ints({"Min", "PageSize", "Position"}),
                      Ints({"LargeChange", "SmallChange"}, 1),
                      {KeptInt("Max", 100), KeptEnum("Kind", "TScrollBarKind")}}));
}

}  // namespace rux
