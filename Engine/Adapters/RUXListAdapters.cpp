#include "Engine/Adapters/RUXListAdapters.h"

#include <unordered_map>

#include "Engine/Adapters/RUXListSupport.h"
#include "Engine/Core/RUXEngineState.h"
#include "Engine/Input/RUXInput.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Forms.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// From so many names on an index of all items costs less than walking for each name.
constexpr std::size_t NamesWorthAnIndex = 4;

/// Finds items by their texts as SameText compares them; -1 for none.
class TItemFinder {
 public:
    TItemFinder(TStrings& items, bool indexed) : FItems(items), FIndexed(indexed) {
        const std::int32_t count = indexed ? items.Count() : 0;
        for (std::int32_t i = 0; i < count; ++i) FPlaces.try_emplace(UpperCase(items.Get(i)), i);
    }
    std::int32_t Find(const std::string& name) const {
        if (!FIndexed) return Walk(name);
        const auto found = FPlaces.find(UpperCase(name));
        return found == FPlaces.end() ? -1 : found->second;
    }

 private:
    std::int32_t Walk(const std::string& name) const {
        const std::int32_t count = FItems.Count();
        for (std::int32_t i = 0; i < count; ++i)
            if (SameText(FItems.Get(i), name)) return i;
        return -1;
    }
    TStrings& FItems;
    bool FIndexed;
    std::unordered_map<std::string, std::int32_t> FPlaces;
};

}  // namespace

std::vector<std::int32_t> ParseListNames(TStrings& items, const std::string& names) {
    const std::vector<std::string> parts = SplitNames(names);
    const TItemFinder finder(items, parts.size() >= NamesWorthAnIndex);
    std::vector<std::int32_t> indexes;
    // A name that is not there repeats what came before, and nothing is reported. This stays: scripts run
    // over lists whose items come and go, and fail if it becomes an error.
    std::int32_t current = 0;
    for (const std::string& name : parts) {
        if (const std::int32_t found = finder.Find(name); found >= 0) current = found;
        indexes.push_back(current);
    }
    return indexes;
}

std::vector<std::int32_t> TListBoxActions::IndexesOf(const std::string& names) const {
    return ParseListNames(Cast<TCustomListBox>(FControl).Items(), names);
}

void TListBoxActions::ClickItem(std::int32_t index) {
    const HWnd window = WindowHandle();
    ClickRect(window, Cast<TCustomListBox>(FControl).ItemRect(index), false);
}

void TListBoxActions::Select(const std::string& AName) {
    for (const std::int32_t index : IndexesOf(AName)) ClickItem(index);
}

void TListBoxActions::SelectByIndex(std::int32_t AIdx) {
    DemandListIndex(AIdx, GetCount());
    ClickItem(AIdx - 1);
}

std::string TListBoxActions::Selected() {
    TCustomListBox& list = Cast<TCustomListBox>(FControl);
    const std::int32_t count = GetCount();
    std::string names;
    bool first = true;
    for (std::int32_t i = 0; i < count; ++i) {
        if (!list.Selected(i)) continue;
        names += (first ? "" : "|") + list.Items().Get(i);
        first = false;
    }
    return names;
}

std::int32_t TListBoxActions::GetCount() {
    return Cast<TCustomListBox>(FControl).Items().Count();
}

void TSolviListBoxAdapter::DblClick(const std::string& AName) {
    const std::int32_t index = Cast<TCustomListBox>(FControl).Items().IndexOf(AName);
    Cast<TCustomListBox>(FControl).SetItemIndex(index);
    const TRect item = Cast<TCustomListBox>(FControl).ItemRect(index);
    const TRect onScreen = OffsetRectBy(item, Cast<TControl>(FControl).ClientOrigin());
    Platform().Toolkit.Mouse().SetCursorPos(CenterOf(onScreen));
    Cast<TControl>(FControl).FireOnDblClick();
}

void TSolviCheckListBoxAdapter::SetChecked(const std::string& AName, bool AValue) {
    for (const std::int32_t index : IndexesOf(AName)) Cast<TCheckListBox>(FControl).SetChecked(index, AValue);
}

}  // namespace rux
