// One table for each interface, in the order in which reports list the methods. Here rather than in the
// header, so that their many small functions are compiled once.
#include "Engine/Adapters/RUXInterface.h"

namespace rux {

namespace {

/// The identifier of a member function, which the compiler spells in the name of this one: "... Method =
/// &rux::IEdit::GetText]", with more behind a semicolon.
template <auto Method>
consteval std::string_view Identifier() {
    std::string_view text = __PRETTY_FUNCTION__;
    text.remove_prefix(text.find("Method = "));
    text = text.substr(0, text.find_first_of(";]"));
    return text.substr(text.rfind(':') + 1);
}

/// A row whose name must be the method's own; another one does not compile. Half of the methods have the
/// types of their neighbours, so that a row which calls the wrong one would go unseen.
template <auto Method, class... Names>
consteval TIntfMethEntry Own(std::string_view name, Names... params) {
    if (Identifier<Method>() != name) throw "the row calls another method than the one it names";
    return Row<Method>(name, params...);
}

constexpr TIntfMethEntry ControlMethods[] = {
    Own<&IControl::Enabled>("Enabled"), Own<&IControl::RightClick>("RightClick"),
    Own<&IControl::Find>("Find"),       Own<&IControl::DbClick>("DbClick"),
    Own<&IControl::Active>("Active"),   Own<&IControl::SendKey>("SendKey", "AKey", "ACAKey"),
};

// ------------------------------------------------------------------------------------------- plain controls

constexpr TIntfMethEntry EditMethods[] = {
    Own<&IEdit::GetText>("GetText"),
    Own<&IEdit::SetText>("SetText", "S"),
    Own<&IReadOnlyMethod::ReadOnly>("ReadOnly"),
};

constexpr TIntfMethEntry ButtonMethods[] = {
    Own<&IButton::Click>("Click"),
};

constexpr TIntfMethEntry MenuMethods[] = {
    Own<&IMenu::Checked>("Checked"),
};

constexpr TIntfMethEntry LabelMethods[] = {
    Own<&ILabel::GetText>("GetText"),
};

constexpr TIntfMethEntry CheckBoxMethods[] = {
    Own<&ICheckBox::SetChecked>("SetChecked", "AValue"),
    Own<&ICheckBox::MouseDown>("MouseDown"),
    Own<&ICheckBox::Checked>("Checked"),
};

constexpr TIntfMethEntry RadioButtonMethods[] = {
    Own<&IRadioButton::Checked>("Checked"),
};

constexpr TIntfMethEntry FormMethods[] = {
    Own<&IForm::Close>("Close"),
    Own<&IForm::GetInfo>("GetInfo"),
};

constexpr TIntfMethEntry ToolBarMethods[] = {
    Own<&IToolBar::Select>("Select", "ANameArr"),
    Own<&IToolBar::Popup>("Popup", "ANameArr"),
};

constexpr TIntfMethEntry StatusBarMethods[] = {
    Own<&IStatusBar::GetText>("GetText"),
};

// ------------------------------------------------------------------------------------------- trees

constexpr TIntfMethEntry TreeViewMethods[] = {
    Own<&ITreeView::Selected>("Selected"),
    Own<&ITreeView::DblClick>("DblClick", "ANameArr"),
    Own<&ITreeView::Click>("Click", "ANameArr"),
    Own<&ITreeView::SaveTreeData>("SaveTreeData", "AFileName"),
    Own<&ITreeView::SelectNodes>("SelectNodes", "AFileName"),
    Own<&ITreeView::Select>("Select", "ANameArr"),
    Own<&ITreeView::SetText>("SetText", "ANameArr", "AValue"),
    Own<&ITreeView::SetChecked>("SetChecked", "ANameArr", "AValue"),
    Own<&ITreeView::SetExpand>("SetExpand", "ANameArr"),
    Own<&ITreeView::GetCount>("GetCount"),
    Own<&ITreeView::GetLevel>("GetLevel", "ANameArr"),
    Own<&ITreeView::GetExpanded>("GetExpanded", "ANameArr"),
    Own<&ITreeView::FindTreeNode>("FindTreeNode", "ANameArr"),
    Own<&ITreeView::GetTextByIndex>("GetTextByIndex", "AIndex"),
    Own<&ITreeView::SelectbyIndex>("SelectbyIndex", "AIndex"),
    Own<&ITreeView::SetCheckedbyIndex>("SetCheckedbyIndex", "AIndex", "AValue"),
    Own<&ITreeView::IsLeaf>("IsLeaf", "ANameArr"),
};

// ------------------------------------------------------------------------------------------- lists

constexpr TIntfMethEntry ListMethods[] = {
    Own<&IList::Select>("Select", "AName"),
    Own<&IList::SelectByIndex>("SelectByIndex", "AIdx"),
    Own<&IList::Selected>("Selected"),
    Own<&IList::GetCount>("GetCount"),
};

constexpr TIntfMethEntry ListBoxMethods[] = {
    Own<&IListBox::Click>("Click", "AName"),
    Own<&IListBox::DblClick>("DblClick", "AName"),
};

constexpr TIntfMethEntry CheckListBoxMethods[] = {
    Own<&ICheckListBox::SetChecked>("SetChecked", "AName", "AValue"),
};

constexpr TIntfMethEntry ListViewMethods[] = {
    Own<&IListView::DblClick>("DblClick", "AName"),
    Own<&IListView::Checked>("Checked"),
    Own<&IListView::SetChecked>("SetChecked", "ANameArr", "AValue"),
};

constexpr TIntfMethEntry ComboControlMethods[] = {
    Own<&IComboControl::GetText>("GetText"),
    Own<&IComboControl::SetText>("SetText", "S"),
    Own<&IReadOnlyMethod::ReadOnly>("ReadOnly"),
};

// ------------------------------------------------------------------------------------------- grids

constexpr TIntfMethEntry MatrixMethods[] = {
    Own<&IMatrix::GetColCount>("GetColCount"),
    Own<&IMatrix::GetRowCount>("GetRowCount"),
    Own<&IMatrix::SelectRows>("SelectRows", "AStartRow", "AEndRow", "ANewFlag"),
    Own<&IMatrix::SelectRow>("SelectRow", "ARow"),
    Own<&IMatrix::DblClickRow>("DblClickRow", "ARow"),
    Own<&IMatrix::ClickButton>("ClickButton", "ACol", "ARow"),
    Own<&IMatrix::SelectCell>("SelectCell", "ACol", "ARow"),
    Own<&IMatrix::ClickCell>("ClickCell", "ACol", "ARow"),
    Own<&IMatrix::DbClickCell>("DbClickCell", "ACol", "ARow"),
    Own<&IMatrix::GetCellValue>("GetCellValue", "ACol", "ARow"),
    Own<&IMatrix::GetCellReadOnly>("GetCellReadOnly", "ACol", "ARow"),
    Own<&IMatrix::GetCellValues>("GetCellValues", "AStartCol", "AEndCol", "AStartRow", "AEndRow"),
    Own<&IMatrix::GetCellAllValue>("GetCellAllValue"),
    Own<&IMatrix::SetCellValue>("SetCellValue", "ACol", "ARow", "AValue"),
    Own<&IMatrix::GetCurRow>("GetCurRow"),
    Own<&IMatrix::GetCurCol>("GetCurCol"),
    Own<&IMatrix::GetCellDropdownList>("GetCellDropdownList", "ACol", "ARow"),
    Own<&IMatrix::GetRows>("GetRows", "AExpr"),
    Own<&IMatrix::GetRowByNo>("GetRowByNo", "ANo"),
    Own<&IMatrix::FindCell>("FindCell", "ACell"),
    Own<&IMatrix::ExistCell>("ExistCell", "ACol", "ARow"),
};

constexpr TIntfMethEntry GridMethods[] = {
    Own<&IGrid::SetRowExpand>("SetRowExpand", "ARow", "AValue"),
    Own<&IGrid::GetRowLevel>("GetRowLevel", "ARow"),
    Own<&IGrid::GetRowExpand>("GetRowExpand", "ARow"),
    Own<&IGrid::SendCellText>("SendCellText", "ACol", "ARow", "AValue"),
    Own<&IGrid::SetRowValue>("SetRowValue", "ARow", "AValues"),
};

// ------------------------------------------------------------------------------------------- the tool kit

constexpr TIntfMethEntry ToolKitMethods[] = {
    Own<&IToolKit::SetMousePos>("SetMousePos", "X", "Y"),
    Own<&IToolKit::KillProcess>("KillProcess", "AName"),
    Own<&IToolKit::CloseWindow>("CloseWindow", "ACaption"),
    Own<&IToolKit::DeleteFolder>("DeleteFolder", "ADir"),
    Own<&IToolKit::CreateFolder>("CreateFolder", "ADir"),
    Own<&IToolKit::ChDir>("ChDir", "ADir"),
    Own<&IToolKit::GetVersion>("GetVersion"),
    Own<&IToolKit::GetExePath>("GetExePath"),
    Own<&IToolKit::ClosePopupMenu>("ClosePopupMenu"),
    Own<&IToolKit::CanUseControlInfos>("CanUseControlInfos"),
    Own<&IToolKit::RefreshActionList>("RefreshActionList"),
    Own<&IToolKit::ShortCutKey>("ShortCutKey", "AKey", "AACKey"),
    Own<&IToolKit::SetMainFormFront>("SetMainFormFront"),
    Own<&IToolKit::ExecuteCmd>("ExecuteCmd", "ACmdLine"),
};

}  // namespace

// ------------------------------------------------------------------------------------------- the tree of
// them

constinit const TInterfaceInfo IControl::Info{"IControl", nullptr, ControlMethods};
constinit const TInterfaceInfo IEdit::Info{"IEdit", &IControl::Info, EditMethods};
constinit const TInterfaceInfo IButton::Info{"IButton", &IControl::Info, ButtonMethods};
constinit const TInterfaceInfo IMenu::Info{"IMenu", &IButton::Info, MenuMethods};
constinit const TInterfaceInfo IPopupMenu::Info{"IPopupMenu", &IMenu::Info, {}};
constinit const TInterfaceInfo ILabel::Info{"ILabel", &IButton::Info, LabelMethods};
constinit const TInterfaceInfo ICheckBox::Info{"ICheckBox", &IButton::Info, CheckBoxMethods};
constinit const TInterfaceInfo IRadioButton::Info{"IRadioButton", &IButton::Info, RadioButtonMethods};
constinit const TInterfaceInfo IForm::Info{"IForm", &IControl::Info, FormMethods};
constinit const TInterfaceInfo IToolBar::Info{"IToolBar", &IControl::Info, ToolBarMethods};
constinit const TInterfaceInfo IStatusBar::Info{"IStatusBar", &IControl::Info, StatusBarMethods};
constinit const TInterfaceInfo ITreeView::Info{"ITreeView", &IEdit::Info, TreeViewMethods};
constinit const TInterfaceInfo IList::Info{"IList", &IControl::Info, ListMethods};
constinit const TInterfaceInfo IOutlookBar::Info{"IOutlookBar", &IList::Info, {}};
constinit const TInterfaceInfo IPageControl::Info{"IPageControl", &IList::Info, {}};
constinit const TInterfaceInfo IListBox::Info{"IListBox", &IList::Info, ListBoxMethods};
constinit const TInterfaceInfo ICheckListBox::Info{"ICheckListBox", &IList::Info, CheckListBoxMethods};
constinit const TInterfaceInfo IListView::Info{"IListView", &IList::Info, ListViewMethods};
constinit const TInterfaceInfo IComboControl::Info{"IComboControl", &IList::Info, ComboControlMethods};
constinit const TInterfaceInfo IComboBox::Info{"IComboBox", &IComboControl::Info, {}};
constinit const TInterfaceInfo IMatrix::Info{"IMatrix", &IControl::Info, MatrixMethods};
constinit const TInterfaceInfo IGrid::Info{"IGrid", &IMatrix::Info, GridMethods};
constinit const TInterfaceInfo IToolKit::Info{"IToolKit", &IControl::Info, ToolKitMethods};

}  // namespace rux
