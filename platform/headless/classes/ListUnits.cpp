// List boxes and combo boxes: StdCtrls, CheckLst, FileCtrl, the colour lists.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HCombos.h"
#include "platform/headless/toolkit/HListBoxes.h"

namespace rux {

namespace {

HRows ItemsRow() {
    return {HReadOnly<&HItemsControl::ItemsObject>("Items")};
}

HRows ListRows() {
    return Join({Framed(),
                 Aligned(),
                 Bevelled(),
                 Typing(),
                 Ints({"Columns", "TabWidth"}),
                 Bools({"AutoComplete"}, true),
                 Bools({"IntegralHeight"}),
                 {KeptInt("ItemHeight", 16)}});
}

HRows SortedList() {
    return {HProp<&HCustomListBox::Sorted, &HCustomListBox::SetSorted>("Sorted"),
            KeptEnum("Style", "TListBoxStyle")};
}

HRows ChoiceRows() {
    return {HProp<&HCustomListBox::MultiSelect, &HCustomListBox::SetMultiSelect>("MultiSelect"),
            HProp<&HCustomListBox::ExtendedSelect, &HCustomListBox::SetExtendedSelect>("ExtendedSelect")};
}

HRows ComboRows() {
    return Join({Windowed(),
                 Coloured(),
                 ThreeD(),
                 Bevelled(),
                 Typing(),
                 Bools({"AutoComplete"}, true),
                 Bools({"AutoDropDown", "AutoCloseUp"}),
                 Ints({"MaxLength"}),
                 {KeptInt("DropDownCount", 8), KeptInt("ItemHeight", 16)}});
}

HPropDef ComboStyle() {
    return HProp<&HCustomComboBox::Style, &HCustomComboBox::SetStyle>("Style");
}

void RegisterListBoxes(HClasses& classes) {
    classes.Add("TCustomListBox", "TCustomMultiSelectListControl", HMake<HCustomListBox>);
    classes.Add("TListBox", "TCustomListBox", nullptr,
                Join({ListRows(), ItemsRow(), SortedList(), ChoiceRows(), Ints({"ScrollWidth"})}));
    classes.Add("TCheckListBox", "TCustomListBox", HMake<HCheckListBox>,
                Join({ListRows(),
                      ItemsRow(),
                      SortedList(),
                      {HProp<&HCheckListBox::AllowGrayed, &HCheckListBox::SetAllowGrayed>("AllowGrayed")},
                      Bools({"Flat"}, true),
                      {KeptInt("HeaderColor", HSystemColor(23)),
                       KeptInt("HeaderBackgroundColor", HSystemColor(24))}}));
    classes.Add("TCustomColorListBox", "TCustomListBox");
    classes.Add(
        "TColorListBox", "TCustomColorListBox", nullptr,
        Join({ListRows(),
              Ints({"DefaultColorColor", "NoneColorColor", "Selected"}),
              {KeptSet("Style", "TColorBoxStyles", "cbStandardColors,cbExtendedColors,cbSystemColors")}}));
}

void RegisterComboBoxes(HClasses& classes) {
    classes.Add("TCustomCombo", "TCustomListControl", HMake<HCustomComboBox>);
    classes.Add("TCustomComboBox", "TCustomCombo");
    classes.Add(
        "TComboBox", "TCustomComboBox", nullptr,
        Join({ComboRows(),
              Texted(),
              ItemsRow(),
              {ComboStyle(), HProp<&HItemsControl::ItemIndex, &HItemsControl::SetItemIndex>("ItemIndex"),
               HProp<&HCustomComboBox::Sorted, &HCustomComboBox::SetSorted>("Sorted"),
               KeptEnum("CharCase", "TEditCharCase")}}));
    classes.Add("TCustomColorBox", "TCustomComboBox");
    classes.Add(
        "TColorBox", "TCustomColorBox", nullptr,
        Join({ComboRows(),
              Ints({"DefaultColorColor", "NoneColorColor", "Selected"}),
              {KeptSet("Style", "TColorBoxStyles", "cbStandardColors,cbExtendedColors,cbSystemColors")}}));
}

void RegisterFileLists(HClasses& classes) {
    classes.Add("TFileListBox", "TCustomListBox", nullptr,
                Join({ListRows(),
                      ChoiceRows(),
                      Objects({"FileEdit"}),
                      Bools({"ShowGlyphs"}),
                      {KeptText("Mask", "*.*"), KeptSet("FileType", "TFileType", "ftNormal")}}));
    classes.Add("TDirectoryListBox", "TCustomListBox", nullptr,
                Join({ListRows(), Objects({"DirLabel", "FileList"})}));
    classes.Add("TDriveComboBox", "TCustomComboBox", nullptr,
                Join({ComboRows(), Objects({"DirList"}), {KeptEnum("TextCase", "TTextCase")}}));
    classes.Add("TFilterComboBox", "TCustomComboBox", nullptr,
                Join({ComboRows(), Objects({"FileList"}), {KeptText("Filter", "All files (*.*)|*.*")}}));
}

}  // namespace

void RegisterListUnits(HClasses& classes) {
    RegisterListBoxes(classes);
    RegisterComboBoxes(classes);
    RegisterFileLists(classes);
}

}  // namespace rux
