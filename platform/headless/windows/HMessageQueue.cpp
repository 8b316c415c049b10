#include "platform/headless/windows/HMessageQueue.h"

#include <algorithm>

#include "platform/headless/HLimits.h"

namespace rux {

bool HMessageQueue::PutInto(std::deque<TMessage>& row, const TMessage& message) {
    {
        const std::lock_guard lock(FLock);
        if (FClosed || row.size() >= HQueueLimit) return false;
        row.push_back(message);
    }
    FWake->SetEvent();
    return true;
}

std::optional<TMessage> HMessageQueue::TakeFrom(std::deque<TMessage>& row) {
    const std::lock_guard lock(FLock);
    if (row.empty()) return std::nullopt;
    const TMessage message = row.front();
    row.pop_front();
    return message;
}

std::optional<TMessage> HMessageQueue::Take() {
    return TakeFrom(FPosted);
}

std::optional<TMessage> HMessageQueue::TakeInput() {
    return TakeFrom(FInput);
}

std::optional<TMessage> HMessageQueue::TakeOf(const std::function<bool(const TMessage&)>& fits) {
    const std::lock_guard lock(FLock);
    const auto found = std::find_if(FPosted.begin(), FPosted.end(), fits);
    if (found == FPosted.end()) return std::nullopt;
    const TMessage message = *found;
    FPosted.erase(found);
    return message;
}

void HMessageQueue::Forget(const std::function<bool(const TMessage&)>& which) {
    const std::lock_guard lock(FLock);
    std::erase_if(FPosted, which);
}

bool HMessageQueue::Empty() {
    const std::lock_guard lock(FLock);
    return FPosted.empty() && FInput.empty();
}

void HMessageQueue::Close() {
    const std::lock_guard lock(FLock);
    FClosed = true;
}

}  // namespace rux
