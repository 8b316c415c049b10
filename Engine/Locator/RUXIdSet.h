// A set of identities.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace rux {

/// Numbers other than 0, found in a table of open places: a search puts in one for each control.
class TIdSet {
 public:
    /// False when the number is there already.
    bool Insert(std::uint64_t id) {
        if (FCount * 2 >= FPlaces.size()) Grow();
        std::uint64_t& place = PlaceOf(id);
        if (place == id) return false;
        place = id;
        ++FCount;
        return true;
    }

 private:
    static constexpr std::size_t FirstSize = 64;

    std::uint64_t& PlaceOf(std::uint64_t id) {
        // Identities lie in even steps: the high bits of the product spread them.
        std::size_t at = static_cast<std::size_t>((id * 0x9E3779B97F4A7C15u) >> FShift);
        while (FPlaces[at] != 0 && FPlaces[at] != id) at = (at + 1) & (FPlaces.size() - 1);
        return FPlaces[at];
    }
    void Grow() {
        std::vector<std::uint64_t> old(FPlaces.empty() ? FirstSize : FPlaces.size() * 2);
        old.swap(FPlaces);
        FShift = 64;
        for (std::size_t size = FPlaces.size(); size > 1; size /= 2) --FShift;
        for (const std::uint64_t id : old)
            if (id != 0) PlaceOf(id) = id;
    }

    std::vector<std::uint64_t> FPlaces;
    std::size_t FCount = 0;
    unsigned FShift = 64;
};

}  // namespace rux
