#include "platform/posix/PosixThreads.h"

#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <climits>

#include "platform/posix/SystemErrors.h"
#include "rtl/Stack.h"

namespace rux {
namespace {

struct TThreadState : TWaitPoint {
    bool Ended = false;
};

std::size_t WholePages(std::size_t size) {
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    return (std::max(size, static_cast<std::size_t>(PTHREAD_STACK_MIN)) + page - 1) / page * page;
}

/// A thread's attributes, which need an explicit end.
class TThreadAttributes {
 public:
    TThreadAttributes() { ::pthread_attr_init(&FAttributes); }
    ~TThreadAttributes() { ::pthread_attr_destroy(&FAttributes); }
    TThreadAttributes(const TThreadAttributes&) = delete;
    TThreadAttributes& operator=(const TThreadAttributes&) = delete;
    pthread_attr_t* Get() { return &FAttributes; }

 private:
    pthread_attr_t FAttributes;
};

}  // namespace

void TellStackLimit() {
    pthread_attr_t attributes;
    if (::pthread_getattr_np(::pthread_self(), &attributes) != 0) return;
    void* lowest = nullptr;
    std::size_t size = 0, guard = 0;
    ::pthread_attr_getstack(&attributes, &lowest, &size);
    ::pthread_attr_getguardsize(&attributes, &guard);
    ::pthread_attr_destroy(&attributes);
    // Whether the guard lies inside the told range differs between versions of the C library.
    SetStackLimit(reinterpret_cast<std::uintptr_t>(lowest) + guard);
}

struct TPosixThreads::TRunning {
    std::mutex Lock;
    std::condition_variable None;
    std::size_t Count = 0;

    void Enter() {
        const std::lock_guard lock(Lock);
        ++Count;
    }
    void Leave() {
        const std::lock_guard lock(Lock);
        if (--Count == 0) None.notify_all();
    }
};

struct TPosixThreads::TStart {
    std::function<void()> Body;
    std::shared_ptr<TThreadState> State;
    std::shared_ptr<TRunning> Running;
};

class TPosixThreads::THandle final : public TThreadHandle {
 public:
    THandle(TWaitClock& clock, std::shared_ptr<TThreadState> state)
        : FClock(clock), FState(std::move(state)) {}

    bool Ended() const override {
        const std::lock_guard lock(FState->Lock);
        return FState->Ended;
    }
    TWaitResult WaitFor(std::uint32_t milliseconds) override {
        std::unique_lock lock(FState->Lock);
        const std::uint64_t deadline = FClock.DeadlineAfter(milliseconds);
        while (!FState->Ended && FClock.Wait(*FState, lock, deadline)) {
        }
        return FState->Ended ? TWaitResult::Signalled : TWaitResult::TimedOut;
    }

 private:
    TWaitClock& FClock;
    std::shared_ptr<TThreadState> FState;
};

TPosixThreads::TPosixThreads(TWaitClock& clock, std::size_t stackSize)
    : FClock(clock), FStackSize(WholePages(stackSize)), FRunning(std::make_shared<TRunning>()) {}

std::unique_ptr<TThreadHandle> TPosixThreads::Start(std::function<void()> body) {
    auto state = std::make_shared<TThreadState>();
    auto handle = std::make_unique<THandle>(FClock, state);
    auto start = std::make_unique<TStart>(TStart{std::move(body), std::move(state), FRunning});
    TThreadAttributes attributes;
    ::pthread_attr_setstacksize(attributes.Get(), FStackSize);
    ::pthread_attr_setdetachstate(attributes.Get(), PTHREAD_CREATE_DETACHED);

    FRunning->Enter();
    pthread_t thread;
    if (::pthread_create(&thread, attributes.Get(), Enter, start.get()) != 0) {
        FRunning->Leave();
        RaiseOutOfResources();
    }
    static_cast<void>(start.release());
    return handle;
}

void* TPosixThreads::Enter(void* start) {
    Run(static_cast<TStart*>(start));
    return nullptr;
}

void TPosixThreads::Run(TStart* raw) {
    std::unique_ptr<TStart> start(raw);
    const std::shared_ptr<TThreadState> state = start->State;
    const std::shared_ptr<TRunning> running = start->Running;
    TellStackLimit();
    try {
        start->Body();
    } catch (...) {
        // The border of the thread: whoever wants to report errors does it in the body.
    }
    start.reset();
    {
        const std::lock_guard lock(state->Lock);
        state->Ended = true;
    }
    state->Changed.notify_all();
    running->Leave();
}

void TPosixThreads::WaitForAll() {
    std::unique_lock lock(FRunning->Lock);
    FRunning->None.wait(lock, [this] { return FRunning->Count == 0; });
}

}  // namespace rux
