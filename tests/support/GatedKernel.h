// A kernel whose worker threads a test can hold back, and that knows when the user-interface thread has
// nothing left to do: so that this thread is always the first.
#pragma once

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <utility>

#include "platform/posix/PosixKernel.h"

namespace rux::test {

class TGatedKernel final : public TPosixKernel {
 public:
    using TPosixKernel::TPosixKernel;

    /// While the gate is closed, whoever is woken out of an event that a worker made stays where it is.
    void SetGate(bool open) {
        {
            const std::lock_guard lock(FLock);
            FOpen = open;
        }
        FChanged.notify_all();
    }
    /// The calling thread is the one whose waits are counted.
    void WatchThisThread() { FWatched = GetCurrentThreadId(); }
    int CountOfWaits() {
        const std::lock_guard lock(FLock);
        return FWaits;
    }
    void WaitForWaitBeyond(int count) {
        std::unique_lock lock(FLock);
        FChanged.wait(lock, [&] { return FWaits > count; });
    }
    std::unique_ptr<TEvent> CreateEventA() override {
        return std::make_unique<TGatedEvent>(*this, TPosixKernel::CreateEventA(), OnWorker());
    }
    std::unique_ptr<TThreadHandle> StartThread(std::function<void()> body) override {
        return TPosixKernel::StartThread([body = std::move(body)] {
            OnWorker() = true;
            body();
        });
    }

 private:
    class TGatedEvent final : public TEvent {
     public:
        TGatedEvent(TGatedKernel& kernel, std::unique_ptr<TEvent> event, bool gated)
            : FKernel(kernel), FEvent(std::move(event)), FGated(gated) {}
        void SetEvent() override { FEvent->SetEvent(); }
        TWaitResult WaitFor(std::uint32_t milliseconds) override {
            FKernel.CountWait();
            const TWaitResult result = FEvent->WaitFor(milliseconds);
            if (FGated) FKernel.PassGate();
            return result;
        }

     private:
        TGatedKernel& FKernel;
        const std::unique_ptr<TEvent> FEvent;
        const bool FGated;
    };
    void CountWait() {
        if (GetCurrentThreadId() != FWatched) return;
        {
            const std::lock_guard lock(FLock);
            ++FWaits;
        }
        FChanged.notify_all();
    }
    void PassGate() {
        std::unique_lock lock(FLock);
        FChanged.wait(lock, [&] { return FOpen; });
    }
    static bool& OnWorker() {
        thread_local bool worker = false;
        return worker;
    }

    std::mutex FLock;
    std::condition_variable FChanged;
    bool FOpen = true;
    std::atomic<std::uintptr_t> FWatched{0};
    int FWaits = 0;
};

}  // namespace rux::test
