// SIGINT and SIGTERM as a call.
#pragma once

#include <functional>
#include <thread>

namespace rux {

/// Blocks the two signals for the process (make it before any other thread) and calls `handler` on a thread
/// of its own when the first of them comes.
class TSignalWatch {
 public:
    explicit TSignalWatch(std::function<void()> handler);
    TSignalWatch(const TSignalWatch&) = delete;
    TSignalWatch& operator=(const TSignalWatch&) = delete;
    ~TSignalWatch();

 private:
    std::thread FThread;
};

/// To be called first of all: threads inherit what is blocked.
void BlockSignals();

}  // namespace rux
