// The requests that are being served, and the windows seen meanwhile.
#pragma once

#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

#include "Engine/Core/RUXClasses.h"
#include "platform/Types.h"

namespace rux {

/// Oldest first. Guarded: a worker may clear it while the user-interface thread serves.
class TRequestStack {
 public:
    void Add(const TIntf<ITestRequest>& request);
    /// Answers the count that is left; nothing happens when the request is not on the stack.
    std::size_t Delete(const ITestRequest& request);
    bool Contains(const ITestRequest& request) const;
    std::size_t Count() const;
    /// nil when the stack is empty.
    TIntf<ITestRequest> First() const;
    TIntf<ITestRequest> Last() const;
    /// Empties the stack. The references are dropped outside the lock.
    void Clear();

 private:
    mutable std::mutex FLock;
    std::vector<TIntf<ITestRequest>> FRequests;
};

/// Guarded, since windows may be shown on any thread.
class TSeenWindows {
 public:
    /// False when the window is there already.
    bool Add(HWnd window);
    bool Contains(HWnd window) const;
    void Clear();

 private:
    mutable std::mutex FLock;
    std::vector<HWnd> FWindows;
};

/// Errors that no caller is left to hear of; the end of the next request reads and clears them.
class TPendingNodeError {
 public:
    void Append(const std::string& text);
    /// The text so far; empty from now on.
    std::string Take();

 private:
    std::mutex FLock;
    std::string FText;
};

}  // namespace rux
