#include "Engine/Registry/RUXDefaultGroups.h"

namespace rux {

namespace {

constexpr TGroupRows ClassRows[] = {
    {"Button",
     "TBitBtn TButton TFlatTabSheet TYFBButtonItem TYFBSubMenuItem TOKRAReportItem TOKRAReportSubMenu"},
    {"Label", "TLabel"},
    {"Button",
     "TmxButton TmxHeader TSpeedButton TTabSetButton TTabSheet TTabVirtualSet TTBCustomItem TTBXButton "
     "TTBXImageVirtualTab TTBXItem TTBItem TTBXLink TTBXSubMenuItem TUpdown TVirtualButton TVirtualTab "
     "TVirtualTabControlTab"},
    {"CheckBox", "TCheckBox TCustomCheckBox TWLMCheckBox TTBXCheckBox"},
    {"CheckListBox", "TCheckListBox"},
    {"ComboBox",
     "TComboBox TCustomCombo TCustomComboBox TYFBComboBoxItem TWLMComboBox TShellComboBox TTBXComboBoxItem "
     "TVirtualComboBox TVirtualSolviGridComboBox"},
    {"DateTimePicker", "TDateTimePicker TTbxDateTimePickerItem TPEVCalendar"},
    {"Edit",
     "TCalcEdit TCrossEdit TCustomEdit TDateTimePicker TDBDateTimeEditEh TDBEditButtonControlEh TDBEditEh "
     "TEdit TFloatSpinEdit TYFBEditItem TOKRAProjectNameEdit TWLMDBEdit TWLMDBMemo TWLMEdit TWLMMemo "
     "TMaskEdit TMemo TNameEdit TRichEdit TSpinEdit TTBXEditItem TVirtualEdit"},
    {"Form", "TForm TVirtualWindow"},
    {"Grid",
     "TDBGridEh TYFBReportGrid TOKRAGrid TOKRARecordGrid TOKRAReportGrid TSolviCompGrid TSolviPTGrid "
     "TSolviViewGrid TJXDExtendGrid TWLMDBGrid TWLMDBRecordGrid TWLMGrid TWLMReportGrid TTreeGrid "
     "TSplitStringGrid"},
    {"Label", "TLabel TStaticText TVirtualStatic"},
    {"ListBox", "TCustomListBox TWLMListBox TListBox"},
    {"ListView", "TWLMListView TListView TShellListView"},
    {"Menu", "TTBXSubMenuItem TVirtualMenuItem"},
    {"OutlookBar", "TmxOutlookBarPro"},
    {"PageControl", "TYFBPageControl TYFBTabSet TPageControl TTabControl TTabSet"},
    {"PopupMenu", "TVirtualPopupMenuItem PopupMenu TBXPopupMenu TMenuItem"},
    {"RadioButton", "TYFBRadioButton TGroupButton TWLMRadioButton TRadioButton TTBXRadioButton"},
    {"ToolBar", "TTBXSubMenuItem TTBXToolbar"},
    {"TreeView", "TWLMDBTreeView TWLMTreeView TRichTreeView TTreeView TVirtualTreeView"},
    {"ToolBar", "TTBXToolbar TTBXSubMenuItem"},
    {"ToolKit", "TRUXToolKit"},
    {"RubyScript", "TRUXToolKit"},
    {"PascalScript", "TRUXToolKit"},
    {"StatusBar", "TTBXStatusBar TStatusBar"},
};

constexpr TGroupRows MethodRows[] = {
    {"Button", "Click"},
    {"CheckBox", "Click MouseDown"},
    {"CheckListBox", "Check Click Dblclick Select"},
    {"ComboBox", "Select SetText"},
    {"Edit", "SetText"},
    {"Label", "Click"},
    {"ListBox", "Click Dblclick Select"},
    {"ListView", "Click Dblclick Select"},
    {"OutlookBar", "Select"},
    {"PageControl", "Select"},
    {"PopupMenu", "Click"},
    {"RadioButton", "click"},
    {"ToolBar", "Select"},
    {"TreeView", "Click DblClick SetCheck SetText"},
    {"StatusBar", "GetText"},
};

}  // namespace

std::span<const TGroupRows> DefaultClassRows() {
    return ClassRows;
}

std::span<const TGroupRows> DefaultMethodRows() {
    return MethodRows;
}

}  // namespace rux
