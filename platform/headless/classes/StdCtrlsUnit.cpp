#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HButtons.h"
#include "platform/headless/toolkit/HContainers.h"
#include "platform/headless/toolkit/HEdits.h"

namespace rux {

namespace {

/// What nearly every control publishes.
std::vector<HPropDef> Common(std::vector<HPropDef> more) {
    std::vector<HPropDef> rows{HProp<&HControl::IsVisible, &HControl::SetVisible>("Visible"),
                               HProp<&HControl::IsEnabled, &HControl::SetEnabled>("Enabled"),
                               HProp<&HControl::Align, &HControl::SetAlign>("Align"),
                               HProp<&HControl::PopupMenuObject, &HControl::SetPopupMenu>("PopupMenu"),
                               HProp<&HControl::ActionObject, &HControl::SetAction>("Action"),
                               KeptBool("ShowHint"),
                               KeptPart("Font", "TFont")};
    rows.insert(rows.end(), more.begin(), more.end());
    return rows;
}

std::vector<HPropDef> Windowed(std::vector<HPropDef> more) {
    more.push_back(HProp<&HWinControl::TabOrder, &HWinControl::SetTabOrder>("TabOrder"));
    more.push_back(HProp<&HWinControl::TabStop, &HWinControl::SetTabStop>("TabStop"));
    return Common(std::move(more));
}

HPropDef Caption() {
    return HProp<&HControl::TextRef, &HControl::SetText>("Caption");
}
HPropDef Text() {
    return HProp<&HControl::TextRef, &HControl::SetText>("Text");
}

}  // namespace

void RegisterStdCtrlsUnit(HClasses& classes) {
    classes.Add("TFont", "TPersistent", nullptr,
                {KeptInt("Charset", 1), KeptInt("Color", -16777208), KeptInt("Height", -11), KeptText("Name"),
                 KeptInt("Size", 8)});
    classes.Add("TCustomLabel", "TGraphicControl");
    classes.Add("TLabel", "TCustomLabel", nullptr, Common({Caption()}));
    classes.Add("TCustomEdit", "TWinControl", HMake<HCustomEdit>);
    classes.Add("TEdit", "TCustomEdit", nullptr,
                Windowed({Text(), HProp<&HCustomEdit::IsReadOnly, &HCustomEdit::SetReadOnly>("ReadOnly"),
                          HProp<&HCustomEdit::MaxLength, &HCustomEdit::SetMaxLength>("MaxLength")}));
    classes.Add("TCustomMemo", "TCustomEdit", HMake<HCustomMemo>);
    classes.Add("TMemo", "TCustomMemo", nullptr,
                Windowed({HReadOnly<&HCustomMemo::Lines>("Lines"),
                          HProp<&HCustomEdit::IsReadOnly, &HCustomEdit::SetReadOnly>("ReadOnly")}));
    classes.Add("TButtonControl", "TWinControl", HMake<HButtonControl>);
    classes.Add("TButton", "TButtonControl", HMake<HButton>,
                Windowed({Caption(), HProp<&HButton::ModalResult, &HButton::SetModalResult>("ModalResult"),
                          HProp<&HButton::Default, &HButton::SetDefault>("Default"),
                          HProp<&HButton::Cancel, &HButton::SetCancel>("Cancel")}));
    classes.Add("TCustomCheckBox", "TButtonControl", HMake<HCustomCheckBox>);
    classes.Add(
        "TCheckBox", "TCustomCheckBox", nullptr,
        Windowed({Caption(), HProp<&HCustomCheckBox::IsChecked, &HCustomCheckBox::PutChecked>("Checked"),
                  HProp<&HCustomCheckBox::State, &HCustomCheckBox::SetState>("State"),
                  HProp<&HCustomCheckBox::AllowGrayed, &HCustomCheckBox::SetAllowGrayed>("AllowGrayed")}));
    classes.Add("TRadioButton", "TButtonControl", HMake<HRadioButton>,
                Windowed({Caption(), HProp<&HRadioButton::IsChecked, &HRadioButton::SetChecked>("Checked")}));
    classes.Add("TGroupButton", "TRadioButton");
    classes.Add("TCustomGroupBox", "TCustomControl");
    classes.Add("TGroupBox", "TCustomGroupBox", nullptr, Windowed({Caption()}));
    classes.Add("TCustomStaticText", "TWinControl");
    classes.Add("TStaticText", "TCustomStaticText", nullptr, Windowed({Caption()}));
    classes.Add("TCustomPanel", "TCustomControl");
    classes.Add("TPanel", "TCustomPanel", nullptr, Windowed({Caption()}));
}

}  // namespace rux
