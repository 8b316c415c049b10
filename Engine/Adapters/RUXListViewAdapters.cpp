#include "Engine/Adapters/RUXListViewAdapters.h"

#include <vector>

#include "Engine/Adapters/RUXListSupport.h"
#include "Engine/Core/RUXClasses.h"
#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXTextMatcher.h"
#include "Engine/Input/RUXInput.h"
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Forms.h"
#include "rtl/CodePage.h"
#include "rtl/StringList.h"
#include "rtl/Text.h"

namespace rux {

namespace {

std::string Escape(const std::string& text) {
    return ReplaceAll(ReplaceAll(text, "\\", "\\\\"), "|", "\\|");
}

/// A name as scripts write it, taken apart once for a walk over all items.
class TListItemName {
 public:
    TListItemName(TCustomListView& view, const std::string& name) : FCaption(name, false) {
        if (view.ViewStyle() != TViewStyle::Report) return;
        if (AnsiPos("|", name) > 0)
            for (const std::string& token : SplitNames(name)) FRow.emplace_back(token, false);
        if (AnsiPos("=", name) > 0) TakeColumn(view, SplitDelimited(name, '='));
    }

    bool Matches(TListItem& item) const {
        const std::string caption = item.Caption();
        return FCaption.Matches(caption) || MatchesRow(caption, item) || MatchesColumn(caption, item);
    }

 private:
    void TakeColumn(TCustomListView& view, const std::vector<std::string>& parts) {
        if (parts.size() != 2) return;
        FCell.emplace_back(parts[1], false);
        for (int i = 0; i < view.ColumnCount(); ++i)
            if (MatchText(view.ColumnCaption(i), parts[0], false)) FColumns.push_back(i);
    }

    bool MatchesRow(const std::string& caption, TListItem& item) const {
        if (FRow.empty() || !FRow[0].Matches(caption)) return false;
        TStrings& subItems = item.SubItems();
        if (subItems.Count() < static_cast<int>(FRow.size()) - 1) return false;
        for (std::size_t i = 1; i < FRow.size(); ++i)
            if (!FRow[i].Matches(subItems.Get(static_cast<int>(i) - 1))) return false;
        return true;
    }

    bool MatchesColumn(const std::string& caption, TListItem& item) const {
        // Of several columns with the caption any will do.
        for (const int column : FColumns) {
            if (column == 0 && FCell[0].Matches(caption)) return true;
            if (column == 0 || column > item.SubItems().Count()) continue;
            if (FCell[0].Matches(item.SubItems().Get(column - 1))) return true;
        }
        return false;
    }

    TTextMatcher FCaption;
    /// Empty for a name that is no row.
    std::vector<TTextMatcher> FRow;
    /// The columns that the name may mean, and the text in them: one, or none.
    std::vector<int> FColumns;
    std::vector<TTextMatcher> FCell;
};

}  // namespace

std::int32_t TSolviListViewAdapter::GetCount() {
    return Cast<TCustomListView>(FControl).Count();
}

TObject* TSolviListViewAdapter::ItemAt(std::int32_t index) const {
    return Cast<TCustomListView>(FControl).Item(index);
}

std::int32_t TSolviListViewAdapter::FindListItem(const std::string& name) const {
    const TListItemName wanted(Cast<TCustomListView>(FControl), name);
    for (int i = 0; i < Cast<TCustomListView>(FControl).Count(); ++i)
        if (wanted.Matches(Cast<TListItem>(ItemAt(i)))) return i;
    RaiseAdapterErrorFmt(Ansi("没有找到对应的项:[%s]"), {name});
}

void TSolviListViewAdapter::SelectListItem(std::int32_t index) const {
    TObject* const item = ItemAt(index);
    SetFocus();
    Cast<TListItem>(item).MakeVisible(true);
    const TRect label = Cast<TListItem>(item).DisplayRect(TDisplayCode::Label);
    if (Cast<TCustomListView>(FControl).RectVisible(label)) {
        const TRect place = OffsetRectBy(label, Cast<TControl>(FControl).ClientOrigin());
        Platform().Toolkit.Mouse().SetCursorPos(CenterOf(place));
    }
    Cast<TListItem>(item).SetSelected(true);
}

void TSolviListViewAdapter::Select(const std::string& AName) {
    SelectListItem(FindListItem(AName));
    Cast<TControl>(FControl).FireOnClick();
}

void TSolviListViewAdapter::SelectByIndex(std::int32_t AIdx) {
    DemandListIndex(AIdx, GetCount());
    SelectListItem(AIdx - 1);
    Cast<TControl>(FControl).FireOnClick();
}

void TSolviListViewAdapter::DblClick(const std::string& AName) {
    SelectListItem(FindListItem(AName));
    Cast<TControl>(FControl).FireOnDblClick();
}

std::string TSolviListViewAdapter::Selected() {
    TObject* const item = Cast<TCustomListView>(FControl).Selected();
    if (!item) return {};
    std::string text = Escape(Cast<TListItem>(item).Caption());
    TStrings& subItems = Cast<TListItem>(item).SubItems();
    for (int i = 0; i < subItems.Count(); ++i) text += "|" + Escape(subItems.Get(i));
    return text;
}

std::string TSolviListViewAdapter::Checked() {
    // The mark before the first caption is kept, though no other list has it: scripts compare the whole text.
    std::string text;
    for (int i = 0; i < GetCount(); ++i)
        if (Cast<TListItem>(ItemAt(i)).Checked()) text += "|" + Cast<TListItem>(ItemAt(i)).Caption();
    return text;
}

bool TSolviListViewAdapter::CheckAll(const std::string& caption, bool value) const {
    const TTextMatcher wanted(caption, false);
    bool found = false;
    for (int i = 0; i < Cast<TCustomListView>(FControl).Count(); ++i) {
        if (!wanted.Matches(Cast<TListItem>(ItemAt(i)).Caption())) continue;
        found = true;
        Cast<TListItem>(ItemAt(i)).SetChecked(value);
    }
    return found;
}

void TSolviListViewAdapter::SetChecked(const std::string& ANameArr, bool AValue) {
    for (const std::string& name : SplitNames(ANameArr))
        if (!CheckAll(name, AValue)) throw ERUX_NotFoundError(Format(Ansi("节点%s没有找到"), {name}));
}

}  // namespace rux
