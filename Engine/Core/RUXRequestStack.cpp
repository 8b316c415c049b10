#include "Engine/Core/RUXRequestStack.h"

#include <algorithm>

namespace rux {

void TRequestStack::Add(const TIntf<ITestRequest>& request) {
    const std::lock_guard lock(FLock);
    FRequests.push_back(request);
}

std::size_t TRequestStack::Delete(const ITestRequest& request) {
    TIntf<ITestRequest> gone;  // dropped after the lock
    const std::lock_guard lock(FLock);
    const auto found =
        std::find_if(FRequests.begin(), FRequests.end(),
                     [&](const TIntf<ITestRequest>& entry) { return entry.Get() == &request; });
    if (found == FRequests.end()) return FRequests.size();
    gone = std::move(*found);
    FRequests.erase(found);
    return FRequests.size();
}

bool TRequestStack::Contains(const ITestRequest& request) const {
    const std::lock_guard lock(FLock);
    return std::any_of(FRequests.begin(), FRequests.end(),
                       [&](const TIntf<ITestRequest>& entry) { return entry.Get() == &request; });
}

std::size_t TRequestStack::Count() const {
    const std::lock_guard lock(FLock);
    return FRequests.size();
}

TIntf<ITestRequest> TRequestStack::First() const {
    const std::lock_guard lock(FLock);
    return FRequests.empty() ? TIntf<ITestRequest>() : FRequests.front();
}

TIntf<ITestRequest> TRequestStack::Last() const {
    const std::lock_guard lock(FLock);
    return FRequests.empty() ? TIntf<ITestRequest>() : FRequests.back();
}

void TRequestStack::Clear() {
    std::vector<TIntf<ITestRequest>> gone;
    const std::lock_guard lock(FLock);
    gone.swap(FRequests);
}

bool TSeenWindows::Add(HWnd window) {
    const std::lock_guard lock(FLock);
    if (std::find(FWindows.begin(), FWindows.end(), window) != FWindows.end()) return false;
    FWindows.push_back(window);
    return true;
}

bool TSeenWindows::Contains(HWnd window) const {
    const std::lock_guard lock(FLock);
    return std::find(FWindows.begin(), FWindows.end(), window) != FWindows.end();
}

void TSeenWindows::Clear() {
    const std::lock_guard lock(FLock);
    FWindows.clear();
}

void TPendingNodeError::Append(const std::string& text) {
    const std::lock_guard lock(FLock);
    FText += text;
}

std::string TPendingNodeError::Take() {
    const std::lock_guard lock(FLock);
    return std::exchange(FText, std::string());
}

}  // namespace rux
