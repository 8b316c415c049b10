#include <mutex>

#include "Engine/Core/RUXEngineState.h"

namespace rux {

void TTaskCenterHolder::Set(ITaskCenter* center) {
    const std::unique_lock lock(FLock);
    FCenter = center;
}

bool TTaskCenterHolder::PostTask(unsigned message, WParam wParam, LParam lParam) {
    const std::shared_lock lock(FLock);
    return FCenter && FCenter->PostTask(message, wParam, lParam);
}

bool TTaskCenterHolder::PostRequest(unsigned message, const TIntf<ITestRequest>& request, LParam lParam) {
    const std::shared_lock lock(FLock);
    return FCenter && FCenter->PostRequest(message, request, lParam);
}

void TTaskCenterHolder::Bury(TObjectPool pool) {
    const std::shared_lock lock(FLock);
    if (FCenter) FCenter->Bury(std::move(pool));
}

}  // namespace rux
