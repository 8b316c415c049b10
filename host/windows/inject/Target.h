// A process that modules are placed into.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

namespace rux {

/// Raises std::runtime_error wherever the system refuses.
class TTarget {
 public:
    static TTarget Start(const std::string& commandLine);
    static TTarget Open(DWORD process);
    TTarget(TTarget&& other) noexcept;
    TTarget(const TTarget&) = delete;
    TTarget& operator=(const TTarget&) = delete;
    ~TTarget();

    DWORD Id() const { return FId; }
    /// A visible window of that class; nullptr for none.
    HWND FindWindow(const std::string& className) const;
    /// Waits for one. Raises when the process ends first, or after half a minute.
    HWND AwaitWindow(const std::string& className) const;
    /// Has a thread of the process load a library, and waits for that: where it was loaded, 0 when it was
    /// not, or the exit code of a process that has ended meanwhile.
    DWORD Load(const std::string& library) const;
    bool Ended() const { return WaitForSingleObject(FProcess, 0) == WAIT_OBJECT_0; }
    /// Its exit code.
    DWORD WaitForEnd() const;
    void End() const { TerminateProcess(FProcess, 0); }

 private:
    TTarget(HANDLE process, DWORD id) : FProcess(process), FId(id) {}

    HANDLE FProcess;
    DWORD FId;
};

/// The named mapping of three values that a controller leaves for the library in that process; for as long as
/// this object lives.
class TParameters {
 public:
    /// Raises std::runtime_error.
    TParameters(DWORD process, const std::uint32_t (&values)[3]);
    TParameters(const TParameters&) = delete;
    TParameters& operator=(const TParameters&) = delete;
    ~TParameters();

 private:
    HANDLE FMapping;
};

}  // namespace rux
