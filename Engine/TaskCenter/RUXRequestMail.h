// Requests on their way through the message queue.
#pragma once

#include <mutex>
#include <unordered_map>

#include "Engine/Core/RUXClasses.h"
#include "platform/Types.h"

namespace rux {

/// A message that carries a request bears a number; the reference that belongs to it is held here until the
/// message is handled. So a message that nobody handles any more, since the library went, loses nothing, and
/// a number that an earlier library sent, or somebody made up, is nobody's reference. Any thread.
class TRequestMail {
 public:
    /// `first` is the number to begin with: one that no earlier library in the process can have reached.
    explicit TRequestMail(WParam first) : FNext(first) {}

    /// Never 0.
    WParam Send(TIntf<ITestRequest> request) {
        const std::lock_guard lock(FLock);
        while (FNext == 0 || FUnderWay.contains(FNext)) ++FNext;
        FUnderWay.emplace(FNext, std::move(request));
        return FNext++;
    }
    /// Hands the reference over; nil for a number that is not under way.
    TIntf<ITestRequest> Take(WParam number) {
        const std::lock_guard lock(FLock);
        auto taken = FUnderWay.extract(number);
        return taken ? std::move(taken.mapped()) : TIntf<ITestRequest>();
    }

 private:
    std::mutex FLock;
    WParam FNext;
    std::unordered_map<WParam, TIntf<ITestRequest>> FUnderWay;
};

}  // namespace rux
