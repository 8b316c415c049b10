// The late finish of a request whose click opened a tool-bar pop-up.
#pragma once

#include <cstdint>
#include <memory>

#include "Engine/Core/RUXClasses.h"
#include "platform/KernelService.h"

namespace rux {

/// Milliseconds between a pop-up's appearance and the finish of the request behind it.
inline constexpr std::uint32_t FinishNotifyDelay = 1500;

/// Waits on a thread of its own, then ends the request: through the queue when an adapter deferred its last
/// step, directly otherwise. A request that something else ended meanwhile is not ended twice. The thread is
/// not waited for; the handle tells when it has ended.
std::unique_ptr<TThreadHandle> StartFinishNotifyThread(const TIntf<ITestRequest>& request,
                                                       std::uint32_t delay);

}  // namespace rux
