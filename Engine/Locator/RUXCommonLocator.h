// The working list of a locator.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_set>
#include <vector>

#include "Engine/Core/RUXFindAdapter.h"

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
    bool EnterOnce(IFindAdapter& item) override { return FEntered.insert(item.GetID()).second; }
    int GetCount() override { return static_cast<int>(FItems.size()); }
    TIntf<IFindAdapter> GetItem(int index) override;

 private:
    bool IsNew(std::uint64_t id);
    void SortReadingOrder();
    TIntf<TCommonLocator> NewList() const;

    TSolviLocatorParser& FParser;
    std::vector<TIntf<IFindAdapter>> FItems;
    /// Short lists compare; a long one has a set.
    std::vector<std::uint64_t> FIds;
    std::unordered_set<std::uint64_t> FIdSet;
    std::unordered_set<std::uint64_t> FEntered;
};

}  // namespace rux
