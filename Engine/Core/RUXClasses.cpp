#include "Engine/Core/RUXClasses.h"

#include <algorithm>

namespace rux {

std::size_t TObjectPool::Add(std::unique_ptr<TObject> object, const void* maker) {
    const auto same = [&](const TEntry& entry) { return entry.Object.get() == object.get(); };
    const auto found = std::find_if(FObjects.begin(), FObjects.end(), same);
    if (found != FObjects.end()) {
        static_cast<void>(object.release());  // it is here already
        return static_cast<std::size_t>(found - FObjects.begin());
    }
    FObjects.push_back({std::move(object), maker});
    return FObjects.size() - 1;
}

void TObjectPool::FreeMadeBy(const void* maker) {
    std::erase_if(FObjects, [&](const TEntry& entry) { return entry.Maker == maker; });
}

}  // namespace rux
