#include "Engine/Locator/RUXPopupSearch.h"

#include "Engine/Core/RUXEngineState.h"

namespace rux {

std::unique_ptr<TChildWalk> StartPopupWalk() {
    Assert(Engine().CurrentPopup == nullptr, "A tool-bar pop-up without tool-bar items");
    return nullptr;
}

}  // namespace rux
