#include "platform/headless/windows/HMessageQueue.h"

#include <algorithm>

#include "platform/headless/HLimits.h"

namespace rux {

bool HMessageQueue::Put(const TMessage& message) {
    {
        const std::lock_guard lock(FLock);
        if (FClosed || FMessages.size() >= HQueueLimit) return false;
        FMessages.push_back(message);
    }
    FWake->SetEvent();
    return true;
}

std::optional<TMessage> HMessageQueue::Take() {
    const std::lock_guard lock(FLock);
    if (FMessages.empty()) return std::nullopt;
    const TMessage message = FMessages.front();
    FMessages.pop_front();
    return message;
}

std::optional<TMessage> HMessageQueue::TakeOf(HWnd window, unsigned first, unsigned last) {
    const std::lock_guard lock(FLock);
    const auto found = std::find_if(FMessages.begin(), FMessages.end(), [&](const TMessage& m) {
        return m.Window == window && m.Number >= first && m.Number <= last;
    });
    if (found == FMessages.end()) return std::nullopt;
    const TMessage message = *found;
    FMessages.erase(found);
    return message;
}

void HMessageQueue::Forget(HWnd window) {
    const std::lock_guard lock(FLock);
    std::erase_if(FMessages, [&](const TMessage& m) { return m.Window == window; });
}

bool HMessageQueue::Empty() {
    const std::lock_guard lock(FLock);
    return FMessages.empty();
}

void HMessageQueue::Close() {
    const std::lock_guard lock(FLock);
    FClosed = true;
}

}  // namespace rux
