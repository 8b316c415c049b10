#include "Engine/Core/RUXEngineState.h"

#include "Engine/Registry/RUXGroupClassFile.h"
#include "Engine/Registry/RUXIntfDefine.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "Engine/Virtual/RUXVirtualControls.h"
#include "platform/FileService.h"
#include "rtl/Exceptions.h"

namespace rux {

namespace {

std::atomic<TEngineState*> Standing{nullptr};

}  // namespace

TEngineState::TEngineState(TPlatform& platform)
    : Platform(platform),
      Registry(std::make_unique<TTypeRegistry>()),
      IntfDefines(std::make_unique<TRUXIntfDefineList>()),
      VirtualClasses(std::make_unique<TVirtualClassList>()) {
    TEngineState* none = nullptr;
    Assert(Standing.compare_exchange_strong(none, this), "An engine stands already");
}

TEngineState::~TEngineState() {
    // A request may ask for the engine when its last reference goes.
    RequestStack.Clear();
    Standing = nullptr;
}

TEngineState& Engine() {
    TEngineState* engine = Standing;
    Assert(engine != nullptr, "No engine stands");
    return *engine;
}

bool EngineStands() {
    return Standing != nullptr;
}

}  // namespace rux
