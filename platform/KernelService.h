// Events, named objects, processes and threads, modules. Safe from any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace rux {

enum class TWaitResult { Signalled, TimedOut, Failed };

inline constexpr std::uint32_t WaitForever = 0xFFFFFFFF;

/// An auto-reset event, unsignalled at first. Signalling is kept until one waiter has taken it.
class TEvent {
 public:
    virtual ~TEvent() = default;
    /// Whoever it wakes may free the event while this call is still returning.
    virtual void SetEvent() = 0;
    /// Milliseconds of the platform's clock.
    virtual TWaitResult WaitFor(std::uint32_t milliseconds) = 0;
};

/// A thread that somebody may wait for. Destroying the handle does not end the thread.
class TThreadHandle {
 public:
    virtual ~TThreadHandle() = default;
    /// True once the thread's function has returned and nothing of it runs any more.
    virtual bool Ended() const = 0;
    virtual TWaitResult WaitFor(std::uint32_t milliseconds) = 0;
};

class TKernelService {
 public:
    virtual ~TKernelService() = default;

    /// Raises EOSError when the system has no more to give.
    virtual std::unique_ptr<TEvent> CreateEventA() = 0;
    /// Starts `body` on a thread of its own; what leaves `body` as an exception ends that thread only. Raises
    /// EOSError when no thread can be made.
    virtual std::unique_ptr<TThreadHandle> StartThread(std::function<void()> body) = 0;
    /// Keeps threads that have been started and have not begun from ever running; their bodies are destroyed.
    /// For whoever waits for threads where none can begin: a library that is being unloaded holds up every
    /// new one. Does nothing on a system where threads always begin.
    virtual void KeepOutNewThreads() = 0;
    virtual void Sleep(std::uint32_t milliseconds) = 0;
    virtual std::uint32_t GetCurrentProcessId() = 0;
    virtual std::uintptr_t GetCurrentThreadId() = 0;
    /// The calling thread's last error of the system, in the window system's numbers; 0 for none.
    virtual std::uint32_t GetLastError() = 0;

    /// True when a mutex of that name exists, in this process or another.
    virtual bool OpenMutexA(const std::string& name) = 0;
    /// Opens or makes the mutex, open to everyone, and holds it until the process ends. Answers True when
    /// this call made it. A failure is not reported and answers False.
    virtual bool CreateMutexA(const std::string& name) = 0;
    /// The first `size` bytes of a named file mapping; nothing when it does not exist or is smaller.
    virtual std::optional<std::string> ReadFileMapping(const std::string& name, std::size_t size) = 0;

    /// Path of the host's executable, with backslashes.
    virtual std::string GetModuleName() = 0;
    /// Path of the library itself; the names of its configuration files are made from it.
    virtual std::string GetLibraryName() = 0;
    /// True when a module of that name is loaded into the process.
    virtual bool HasModule(const std::string& name) = 0;
    /// True when the run-time library's base class comes from this library itself and not from a package that
    /// it shares with the host.
    virtual bool HasOwnRunTime() = 0;
    /// Committed private memory of the process in bytes; nothing when the system cannot tell.
    virtual std::optional<std::uint64_t> GetPagefileUsage() = 0;
    virtual void OutputDebugStringA(const std::string& text) = 0;
    /// A message box before the engine stands; waits until it is closed.
    virtual void MessageBoxA(const std::string& text, const std::string& title) = 0;
    /// Ends the host. Only the host check at load may call it.
    [[noreturn]] virtual void ExitProcess(unsigned code) = 0;
};

}  // namespace rux
