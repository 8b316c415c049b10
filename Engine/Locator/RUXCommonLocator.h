// The working list of a locator.
#pragma once

#include <vector>

#include "Engine/Core/RUXFindAdapter.h"
#include "Engine/Locator/RUXIdSet.h"

namespace rux {

class TSolviLocatorParser;

/// Entries are unique by GetID: the first arrival keeps its place. An index finds repeats, so that a list of
/// 100,000 entries costs no more per entry than a short one.
class TCommonLocator final : public TInterfacedObject<ICommonLocator, int> {
 public:
    /// The parser is not owned and outlives the list: a position step starts a fresh search.
    explicit TCommonLocator(TSolviLocatorParser& parser) : FParser(parser) {}

    TIntf<ICommonLocator> FindNear(char direction, std::string_view remainder) override;
    TIntf<ICommonLocator> FindChildrenOf() override;
    TIntf<ICommonLocator> FilterByText(std::string_view text, bool partMatch) override;
    TIntf<ICommonLocator> FilterByClass(std::string_view classText) override;
    TIntf<ICommonLocator> SelectIndex(std::string_view indexText) override;
    int AddUnique(const TIntf<IFindAdapter>& item) override;
    bool EnterOnce(IFindAdapter& item) override { return FEntered.Insert(item.GetID()); }
    int GetCount() override { return static_cast<int>(FItems.size()); }
    TIntf<IFindAdapter> GetItem(int index) override;

 private:
    void SortReadingOrder();
    TIntf<TCommonLocator> NewList() const;

    TSolviLocatorParser& FParser;
    std::vector<TIntf<IFindAdapter>> FItems;
    TIdSet FIds;
    TIdSet FEntered;
};

}  // namespace rux
