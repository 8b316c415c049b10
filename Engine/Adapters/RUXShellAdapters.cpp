#include "Engine/Adapters/RUXShellAdapters.h"

#include "Engine/Adapters/RUXListSupport.h"
#include "Engine/Input/RUXInput.h"
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/ShellCtrls.h"
#include "platform/toolkit/StdCtrls.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {

// ------------------------------------------------------------------------------------------ list view

std::int32_t TShellListViewAdapter::GetCount() {
    return Cast<TCustomListView>(FControl).Count();
}

void TShellListViewAdapter::FindShellItem(const std::string& name) const {
    for (int i = 0; i < Cast<TCustomListView>(FControl).Count(); ++i) {
        if (!SameText(Cast<TShellListView>(FControl).FolderDisplayName(i), name)) continue;
        Cast<TListItem>(Cast<TCustomListView>(FControl).Item(i)).SetSelected(true);
        return;
    }
    RaiseAdapterErrorFmt(Ansi("没有找到对应的项:[%s]"), {name});
}

TRect TShellListViewAdapter::IconOfSelected() const {
    return Cast<TListItem>(Cast<TCustomListView>(FControl).Selected()).DisplayRect(TDisplayCode::Icon);
}

void TShellListViewAdapter::Select(const std::string& AName) {
    FindShellItem(AName);
    Cast<TControl>(FControl).FireOnClick();
}

void TShellListViewAdapter::DblClick(const std::string& AName) {
    FindShellItem(AName);
    const TRect icon = IconOfSelected();
    DblClickRect(WindowHandle(), icon);
}

void TShellListViewAdapter::SelectByIndex(std::int32_t AIdx) {
    DemandListIndex(AIdx, GetCount());
    Cast<TListItem>(Cast<TCustomListView>(FControl).Item(AIdx - 1)).SetSelected(true);
    const TRect icon = IconOfSelected();
    PostClickRect(WindowHandle(), icon);
}

std::string TShellListViewAdapter::Selected() {
    const int index = Cast<TShellListView>(FControl).SelectedIndex();
    return index < 0 ? std::string() : Cast<TShellListView>(FControl).FolderDisplayName(index);
}

// ------------------------------------------------------------------------------------------ combo box

void TShellComboBoxAdapter::Select(const std::string& AName) {
    Cast<TShellComboBox>(FControl).SetPath(AName);
    TellComboChosen(FControl);
}

void TShellComboBoxAdapter::SelectByIndex(std::int32_t AIdx) {
    DemandListIndex(AIdx, GetCount());
    // The operation never got a body, and it is kept so: scripts choose by path or text.
    Assert(false);
}

std::string TShellComboBoxAdapter::Selected() {
    return Cast<TShellComboBox>(FControl).Path();
}

std::int32_t TShellComboBoxAdapter::GetCount() {
    return Cast<TCustomCombo>(FControl).Items().Count();
}

std::string TShellComboBoxAdapter::GetText() {
    auto& combo = Cast<TCustomCombo>(FControl);
    return combo.Items().Get(combo.ItemIndex());
}

void TShellComboBoxAdapter::SetText(const std::string& S) {
    const int index = Cast<TCustomCombo>(FControl).Items().IndexOf(S);
    if (index < 0) RaiseAdapterError(Ansi("找不到文件：") + S);
    Cast<TCustomCombo>(FControl).SetItemIndex(index);
    TellComboChosen(FControl);
}

}  // namespace rux
