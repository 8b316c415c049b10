#include "host/app/Signals.h"

#include <csignal>

namespace rux {

namespace {

/// Ends the watch itself.
constexpr int WatchEnds = SIGUSR1;

sigset_t Watched() {
    sigset_t set;
    sigemptyset(&set);
    for (const int number : {SIGINT, SIGTERM, WatchEnds}) sigaddset(&set, number);
    return set;
}

}  // namespace

void BlockSignals() {
    const sigset_t set = Watched();
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
}

TSignalWatch::TSignalWatch(std::function<void()> handler)
    : FThread([handler = std::move(handler)] {
          const sigset_t set = Watched();
          int number = 0;
          sigwait(&set, &number);
          if (number == WatchEnds) return;
          handler();
          // Further signals find nothing more to end; the watch waits for its own end.
          while (sigwait(&set, &number) == 0 && number != WatchEnds) {
          }
      }) {}

TSignalWatch::~TSignalWatch() {
    pthread_kill(FThread.native_handle(), WatchEnds);
    FThread.join();
}

}  // namespace rux
