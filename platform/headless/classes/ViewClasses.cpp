// Headers, rich edits, combo boxes with pictures.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HCombos.h"
#include "platform/headless/toolkit/HEdits.h"

namespace rux {

namespace {

class HCustomRichEdit : public HCustomMemo {
 public:
    HCustomRichEdit(HToolkit& kit, const HClassDef& def) : HCustomMemo(kit, def, "TRichEditStrings") {}
};

void RegisterHeader(HClasses& classes) {
    classes.Add("THeaderSection", "TCollectionItem", nullptr,
                {KeptEnum("Alignment", "TAlignment"), KeptBool("AllowClick", true), KeptBool("AutoSize"),
                 KeptEnum("BiDiMode", "TBiDiMode"), KeptInt("ImageIndex", -1), KeptInt("MaxWidth", 10000),
                 KeptInt("MinWidth"), KeptBool("ParentBiDiMode", true),
                 KeptEnum("Style", "THeaderSectionStyle"), KeptText("Text"), KeptInt("Width", 50)});
    classes.AddCollection("THeaderSections", "THeaderSection");
    classes.Add("TCustomHeaderControl", "TWinControl", HMakeAligned<HWinControl, HAlign::alTop>);
    classes.Add("THeaderControl", "TCustomHeaderControl", nullptr,
                Join({Basic(),
                      Lettered(),
                      Aligned(),
                      Bools({"DragReorder", "HotTrack"}),
                      Bools({"FullDrag"}, true),
                      Ints({"BorderWidth"}),
                      Objects({"Images"}),
                      {KeptPart("Sections", "THeaderSections"), KeptEnum("Style", "THeaderStyle")}}));
}

void RegisterComboBoxEx(HClasses& classes) {
    classes.Add("TListControlItem", "TCollectionItem", nullptr,
                {KeptText("Caption"), KeptInt("ImageIndex", -1)});
    classes.Add("TComboExItem", "TListControlItem", nullptr,
                {KeptInt("Indent", -1), KeptInt("OverlayImageIndex", -1), KeptInt("SelectedImageIndex", -1)});
    classes.AddCollection("TComboExItems", "TComboExItem");
    classes.Add("TCustomComboBoxEx", "TCustomCombo", HMake<HCustomComboBoxEx>);
    classes.Add("TComboBoxEx", "TCustomComboBoxEx", nullptr,
                Join({Windowed(),
                      Acting(),
                      Texted(),
                      Coloured(),
                      ThreeD(),
                      Typing(),
                      Objects({"Images"}),
                      Ints({"MaxLength"}),
                      {KeptSet("AutoCompleteOptions", "TAutoCompleteOption", "acoAutoAppend"),
                       KeptInt("DropDownCount", 8), KeptInt("ItemHeight", 16),
                       HProp<&HItemsControl::ItemIndex, &HItemsControl::SetItemIndex>("ItemIndex"),
                       KeptPart("ItemsEx", "TComboExItems"),
                       HProp<&HCustomComboBoxEx::StyleEx, &HCustomComboBoxEx::SetStyleEx>("Style"),
                       KeptSet("StyleEx", "TComboBoxExStyleEx")}}));
}

}  // namespace

void RegisterViewClasses(HClasses& classes) {
    RegisterHeader(classes);
    RegisterComboBoxEx(classes);
    classes.Add("TCustomRichEdit", "TCustomMemo", HMake<HCustomRichEdit>);
    classes.Add("TRichEdit", "TCustomRichEdit", nullptr,
                Join({Framed(),
                      Aligned(),
                      Bevelled(),
                      Typing(),
                      Bools({"PlainText"}),
                      Bools({"HideScrollBars", "HideSelection", "WordWrap"}, true),
                      Ints({"BorderWidth"}),
                      {HReadOnly<&HCustomMemo::Lines>("Lines"), KeptEnum("Alignment", "TAlignment"),
                       HProp<&HCustomEdit::IsReadOnly, &HCustomEdit::SetReadOnly>("ReadOnly"),
                       HProp<&HCustomEdit::MaxLength, &HCustomEdit::SetMaxLength>("MaxLength"),
                       HProp<&HCustomMemo::WantReturns, &HCustomMemo::SetWantReturns>("WantReturns"),
                       HProp<&HCustomMemo::WantTabs, &HCustomMemo::SetWantTabs>("WantTabs"),
                       KeptEnum("ScrollBars", "TScrollStyle")}}));
}

}  // namespace rux
