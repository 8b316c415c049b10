#include "platform/headless/toolkit/HListItem.h"

#include <algorithm>

#include "platform/headless/toolkit/HListItemBytes.h"
#include "platform/headless/toolkit/HListView.h"
#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/Exceptions.h"
#include "rtl/Text.h"

namespace rux {

std::string HSubItems::Get(int index) {
    if (index < 0 || index >= Count())
        throw EStringListError("List index out of bounds (" + std::to_string(index) + ")");
    return FLines[static_cast<std::size_t>(index)];
}

int HSubItems::IndexOf(const std::string& text) {
    const auto same = [&](const std::string& line) { return AnsiSameText(line, text); };
    const auto found = std::find_if(FLines.begin(), FLines.end(), same);
    return found == FLines.end() ? -1 : static_cast<int>(found - FLines.begin());
}

void HListItem::SetChecked(bool value) {
    if (FView) FView->CheckItem(*this, value);
}

void HListItem::SetSelected(bool value) {
    if (FView) FView->SelectItem(*this, value);
}

void HListItem::MakeVisible(bool partialOk) {
    if (FView) FView->ScrollTo(*this, partialOk);
}

TRect HListItem::DisplayRect(TDisplayCode code) {
    return FView ? FView->RectOf(*this, code) : TRect{};
}

int HListItem::Index() {
    return FView ? FView->IndexOf(*this) : -1;
}

void HListItem::Delete() {
    if (FView) FView->Delete(Index());
}

void HListItem::Enter(HCustomListView& view, int place) {
    FView = &view;
    FPlace = place;
}

void HListItem::End() {
    FView = nullptr;
    MarkDead();
    Kit().Forget(*this);
}

int HListItems::Count() const {
    return FView ? FView->Count() : 0;
}

void HListItems::StoreBlob(TName name, std::string bytes) {
    static const TName ansi = InternName("Data"), wide = InternName("ItemData");
    if (!FView || (name != ansi && name != wide)) {
        HPersistent::StoreBlob(name, std::move(bytes));
        return;
    }
    FView->Clear();
    for (HStoredListItem& item : name == ansi ? ReadAnsiListItems(bytes) : ReadWideListItems(bytes))
        FView->AddItem(std::move(item.Caption), std::move(item.SubItems)).KeepChecked(item.Checked);
}

}  // namespace rux
