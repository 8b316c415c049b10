#include "Engine/Core/RUXClasses.h"

#include <algorithm>

namespace rux {

std::size_t TObjectPool::Add(std::unique_ptr<TObject> object, const void* maker) {
    FObjects.push_back({std::move(object), maker});
    return FObjects.size() - 1;
}

void TObjectPool::FreeMadeBy(const void* maker) {
    std::erase_if(FObjects, [&](const TEntry& entry) { return entry.Maker == maker; });
}

}  // namespace rux
