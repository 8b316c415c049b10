#include "platform/win32/Win32Threads.h"

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/win32/Headers.h"
#include "platform/win32/MachineCode.h"
#include "platform/win32/ProcessPages.h"
#include "platform/win32/Win32Handle.h"
#include "rtl/Exceptions.h"

namespace rux {

namespace {

enum TThreadState : LONG { IsNew, HasEntered, IsKeptOut };

/// Set once the thread has left the library's code for good.
using TLeftEvent = std::shared_ptr<const TWin32Handle>;

class THandle final : public TThreadHandle {
 public:
    explicit THandle(TLeftEvent left) : FLeft(std::move(left)) {}
    bool Ended() const override { return FLeft->WaitFor(0) == TWaitResult::Signalled; }
    TWaitResult WaitFor(std::uint32_t milliseconds) override { return FLeft->WaitFor(milliseconds); }

 private:
    const TLeftEvent FLeft;
};

/// What the code outside the library works on. In the process's own heap, which stays; the code counts in
/// bytes from its beginning.
struct TStart {
    volatile LONG State;  // 0
    volatile LONG Users;  // 4: the thread and the library
    HANDLE Left;          // 8: the thread's own handle
    void* Body;           // 12: a TBody, until the thread has run it or was kept out
};

struct TStartDeleter {
    void operator()(TStart* start) const { ::HeapFree(::GetProcessHeap(), 0, start); }
};

[[noreturn]] void RaiseNoThread() {
    throw EOSError("A call to an OS function failed");
}

TWin32Handle CopyOf(const TWin32Handle& handle) {
    HANDLE copy = nullptr;
    const HANDLE process = ::GetCurrentProcess();
    if (!::DuplicateHandle(process, handle.Get(), process, &copy, 0, FALSE, DUPLICATE_SAME_ACCESS))
        RaiseNoThread();
    return TWin32Handle(copy);
}

}  // namespace

struct TWin32Threads::TState {
    struct TBody {
        std::function<void()> Code;
        TState* Owner;
        TStart* Start;
    };
    /// A thread as the library knows it.
    struct TThread {
        TStart* Start;
        TLeftEvent Left;
    };

    std::mutex Lock;
    std::uint32_t Entry = 0;
    std::vector<TThread> Running;
    /// Out of their bodies; their events are set any moment.
    std::vector<TThread> Leaving;

    std::uint32_t MakeEntry();
    void Reap();
    static void Drop(TStart* start);
    static void __stdcall RunBody(TStart* start) noexcept;
};

// ------------------------------------------------------------------------------------------ the thread

/// A thread's beginning and end: enters the library unless it is kept out, and says when it has left.
std::uint32_t TWin32Threads::TState::MakeEntry() {
    constexpr std::size_t room = 160;
    const std::uint32_t address = TakeProcessMemory(room);
    if (address == 0) return 0;
    TMachineCode code(address);
    code.Bytes({0x53, 0x8B, 0x5C, 0x24, 8});  // push ebx; mov ebx, [esp+8]: the TStart
    code.Bytes({0x31, 0xC0, 0xBA}).Dword(HasEntered);
    code.Bytes({0xF0, 0x0F, 0xB1, 0x13});  // lock cmpxchg [ebx], edx: from IsNew
    const std::size_t keptOut = code.Jump(TMachineCode::JumpIfNotZero);
    code.Bytes({0x53}).CallOf(&RunBody);              // push ebx
    code.Bytes({0xFF, 0x73, 8}).CallOf(&::SetEvent);  // push [ebx+8]
    code.Land(keptOut);
    code.Bytes({0xFF, 0x73, 8}).CallOf(&::CloseHandle);  // push [ebx+8]
    code.Bytes({0xF0, 0xFF, 0x4B, 4});                   // lock dec dword [ebx+4]
    const std::size_t inUse = code.Jump(TMachineCode::JumpIfNotZero);
    code.Bytes({0x53}).Push(0);  // push ebx
    code.Push(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(::GetProcessHeap())));
    code.CallOf(&::HeapFree);
    code.Land(inUse);
    code.Bytes({0x31, 0xC0, 0x5B, 0xC2, 4, 0});  // xor eax, eax; pop ebx; ret 4
    Assert(code.Code().size() <= room);
    WriteProcessCode(address, code.Code());
    return address;
}

/// The border: nothing may leave it.
void __stdcall TWin32Threads::TState::RunBody(TStart* start) noexcept {
    auto* body = static_cast<TBody*>(std::exchange(start->Body, nullptr));
    TState& owner = *body->Owner;
    try {
        body->Code();
    } catch (...) {
        // Ends this thread and nothing else.
    }
    delete body;
    const std::lock_guard lock(owner.Lock);
    const auto own = std::find_if(owner.Running.begin(), owner.Running.end(),
                                  [&](const TThread& thread) { return thread.Start == start; });
    owner.Leaving.push_back(std::move(*own));
    std::swap(*own, owner.Running.back());
    owner.Running.pop_back();
}

void TWin32Threads::TState::Drop(TStart* start) {
    if (::InterlockedDecrement(&start->Users) == 0) TStartDeleter()(start);
}

void TWin32Threads::TState::Reap() {
    std::erase_if(Leaving, [](const TThread& thread) {
        if (thread.Left->WaitFor(0) != TWaitResult::Signalled) return false;
        Drop(thread.Start);
        return true;
    });
}

// ------------------------------------------------------------------------------------------ the class

TWin32Threads::TWin32Threads() : FState(std::make_unique<TState>()) {}

TWin32Threads::~TWin32Threads() {
    WaitForAll();
}

std::unique_ptr<TThreadHandle> TWin32Threads::Start(std::function<void()> code) {
    TState& state = *FState;
    const std::lock_guard lock(state.Lock);
    state.Reap();
    if (state.Entry == 0) state.Entry = state.MakeEntry();
    if (state.Entry == 0) RaiseNoThread();

    const auto left = std::make_shared<const TWin32Handle>(::CreateEventA(nullptr, TRUE, FALSE, nullptr));
    if (!*left) RaiseNoThread();
    TWin32Handle threadsOwn = CopyOf(*left);
    std::unique_ptr<TStart, TStartDeleter> start(
        static_cast<TStart*>(::HeapAlloc(::GetProcessHeap(), 0, sizeof(TStart))));
    if (!start) RaiseNoThread();
    auto body = std::make_unique<TState::TBody>(TState::TBody{std::move(code), &state, start.get()});
    *start = {IsNew, 2, threadsOwn.Get(), body.get()};
    state.Running.push_back({start.get(), left});
    const TWin32Handle thread(::CreateThread(
        nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(static_cast<std::uintptr_t>(state.Entry)),
        start.get(), 0, nullptr));
    if (!thread) {
        state.Running.pop_back();
        RaiseNoThread();
    }
    // From here on they are the thread's.
    static_cast<void>(threadsOwn.Detach());
    static_cast<void>(body.release());
    static_cast<void>(start.release());
    return std::make_unique<THandle>(left);
}

void TWin32Threads::KeepOutNew() {
    std::vector<std::unique_ptr<TState::TBody>> bodies;  // go when the lock has
    TState& state = *FState;
    const std::lock_guard lock(state.Lock);
    std::erase_if(state.Running, [&](const TState::TThread& thread) {
        if (::InterlockedCompareExchange(&thread.Start->State, IsKeptOut, IsNew) != IsNew) return false;
        bodies.emplace_back(static_cast<TState::TBody*>(std::exchange(thread.Start->Body, nullptr)));
        // The thread itself will not say it.
        ::SetEvent(thread.Left->Get());
        TState::Drop(thread.Start);
        return true;
    });
}

void TWin32Threads::WaitForAll() {
    KeepOutNew();
    std::vector<TState::TThread> threads;
    {
        const std::lock_guard lock(FState->Lock);
        threads = FState->Running;
        threads.insert(threads.end(), FState->Leaving.begin(), FState->Leaving.end());
    }
    for (const TState::TThread& thread : threads) thread.Left->WaitFor(WaitForever);
    const std::lock_guard lock(FState->Lock);
    FState->Reap();
}

}  // namespace rux
