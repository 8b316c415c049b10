#include "Engine/Locator/RUXCommonLocator.h"

#include <algorithm>
#include <unordered_map>

#include "Engine/Core/RUXClasses.h"
#include "Engine/Core/RUXTextMatcher.h"
#include "Engine/Locator/RUXNearest.h"
#include "Engine/Locator/RUXRectGeometry.h"
#include "Engine/Locator/RUXSortList.h"
#include "Engine/Locator/RUXTestLocatorParser.h"
#include "Engine/Registry/RUXGroupClassFile.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// Sort key of one entry: its rectangle is fetched once.
struct TControlOrderKey {
    TRect Bounds;
    TIntf<IFindAdapter> Finder;
};

/// Answers of one class step, by the object's class and the name that the finder gives it: thousands of
/// entries share a few of them.
class TClassAnswers {
 public:
    explicit TClassAnswers(std::string_view classText) : FClassText(classText) { IniClassGroup().Refresh(); }
    bool Matches(IFindAdapter& finder) {
        TObject* object = finder.GetObject();
        const std::string& name = finder.GetClassName();
        const TClass* type = object ? &object->ClassType() : nullptr;
        if (type == FLastType && &name == FLastName) return FLastAnswer;
        FLastType = type;
        FLastName = &name;
        const auto [place, isNew] = FAnswers[type].try_emplace(&name, false);
        if (isNew) place->second = MatchesControlType(object, name, FClassText);
        return FLastAnswer = place->second;
    }

 private:
    std::string_view FClassText;
    std::unordered_map<const TClass*, std::unordered_map<const std::string*, bool>> FAnswers;
    const TClass* FLastType = nullptr;
    const std::string* FLastName = nullptr;
    bool FLastAnswer = false;
};

}  // namespace

TIntf<TCommonLocator> TCommonLocator::NewList() const {
    return MakeIntf<TCommonLocator>(FParser);
}

int TCommonLocator::AddUnique(const TIntf<IFindAdapter>& item) {
    if (!item || !FIds.Insert(item->GetID())) return -1;
    FItems.push_back(item);
    return GetCount() - 1;
}

TIntf<IFindAdapter> TCommonLocator::GetItem(int index) {
    Assert(index >= 0 && index < GetCount());
    return FItems[static_cast<std::size_t>(index)];
}

TIntf<ICommonLocator> TCommonLocator::FilterByText(std::string_view text, bool partMatch) {
    const TIntf<TCommonLocator> result = NewList();
    const TTextMatcher matcher(Trim(text), partMatch);
    for (const TIntf<IFindAdapter>& item : FItems)
        if (item->IsMatch(matcher)) result->AddUnique(item);
    return result;
}

TIntf<ICommonLocator> TCommonLocator::FilterByClass(std::string_view classText) {
    const TIntf<TCommonLocator> result = NewList();
    TClassAnswers answers(classText);
    for (const TIntf<IFindAdapter>& item : FItems)
        if (answers.Matches(*item)) result->AddUnique(item);
    return result;
}

TIntf<ICommonLocator> TCommonLocator::FindChildrenOf() {
    const TIntf<TCommonLocator> result = NewList();
    for (const TIntf<IFindAdapter>& item : FItems) item->FindChildren(*result);
    return result;
}

void TCommonLocator::SortReadingOrder() {
    std::vector<TControlOrderKey> keys;
    keys.reserve(FItems.size());
    for (TIntf<IFindAdapter>& item : FItems) keys.push_back({item->GetBounds(), std::move(item)});
    MergeSort(keys, [](const TControlOrderKey& a, const TControlOrderKey& b) {
        return CompareReadingOrder(a.Bounds, b.Bounds);
    });
    for (std::size_t i = 0; i < keys.size(); ++i) FItems[i] = std::move(keys[i].Finder);
}

TIntf<ICommonLocator> TCommonLocator::SelectIndex(std::string_view indexText) {
    const int number = indexText == "$" ? GetCount() : StrToInt(indexText);
    if (GetCount() < number)
        throw ERUX_NotFoundError(
            Format(Ansi("一共只有%d个符合条件的控件，不能找到第%d个!"), {GetCount(), number}));
    SortReadingOrder();
    const TIntf<TCommonLocator> result = NewList();
    result->AddUnique(GetItem(number - 1));
    return result;
}

TIntf<ICommonLocator> TCommonLocator::FindNear(char direction, std::string_view remainder) {
    const TIntf<ICommonLocator> found = FParser.Search(remainder);
    std::vector<TRect> bounds;
    bounds.reserve(static_cast<std::size_t>(found->GetCount()));
    for (int i = 0; i < found->GetCount(); ++i) bounds.push_back(found->GetItem(i)->GetBounds());
    const TNearest nearest(std::move(bounds));
    const TIntf<TCommonLocator> result = NewList();
    for (const TIntf<IFindAdapter>& anchor : FItems) {
        const std::size_t best = nearest.Find(direction, anchor->GetBounds());
        if (best != TNearest::None) result->AddUnique(found->GetItem(static_cast<int>(best)));
    }
    return result;
}

}  // namespace rux
