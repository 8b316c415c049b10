#include "platform/shared/ClassTable.h"

#include "rtl/Text.h"

namespace rux {

namespace {

std::bitset<FacetCount> FacetsOf(std::string_view name, const TClass* parent) {
    std::bitset<FacetCount> facets = parent ? parent->Facets() : std::bitset<FacetCount>();
    for (std::size_t i = 0; i < FacetCount; ++i)
        if (SameText(FacetNames[i], name)) facets.set(i);
    return facets;
}

}  // namespace

const TClass& TNamedClasses::Define(std::string_view name, const TClass* parent) {
    const TName id = InternName(name);
    const std::uint64_t key = (std::uint64_t{id.Id} << 32) | (parent ? parent->Index() + 1 : 0);
    if (const auto found = FByNameAndParent.find(key); found != FByNameAndParent.end()) return *found->second;
    const auto index = static_cast<std::uint32_t>(FClasses.size());
    const TClass& made = FClasses.emplace_back(std::string(name), parent, index, FacetsOf(name, parent));
    FByNameAndParent.emplace(key, &made);
    FByName.emplace(id.Id, &made);
    return made;
}

const TClass* TNamedClasses::Find(std::string_view name) const {
    const auto found = FByName.find(FindName(name).Id);
    return found == FByName.end() ? nullptr : found->second;
}

}  // namespace rux
