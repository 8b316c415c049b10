// This test program as the process that the library is placed into: a thread with an application's hidden
// window and a button, and what may be asked of the process before and after.
#pragma once

#include <windows.h>
#include <winsock2.h>

#include <cstdint>
#include <optional>
#include <string>
#include <thread>

namespace rux::test {

inline constexpr const char* LibraryName = "rux.dll";

/// A user-interface thread with the toolkit's module loaded. "Go" shows a message box titled Box; "Hang" does
/// not come back until Release is called.
class THostThread {
 public:
    THostThread();
    /// Closes boxes, ends the thread.
    ~THostThread();
    THostThread(const THostThread&) = delete;
    THostThread& operator=(const THostThread&) = delete;

    HWND Application() const { return FApplication; }
    void Release() { ::SetEvent(FRelease); }
    /// Waits for a message box, at most `seconds`; nullptr if there is none.
    static HWND AwaitBox(unsigned seconds = 10);

 private:
    static LRESULT CALLBACK ApplicationProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Live(HANDLE ready);

    HWND FApplication = nullptr;
    HANDLE FRelease = ::CreateEventA(nullptr, FALSE, FALSE, nullptr);
    std::thread FThread;
};

/// What the library changes in its process.
struct TTraces {
    std::uintptr_t WindowProc = 0;
    /// Hexadecimal, of the code behind the jump in user32!ShowWindow.
    std::string ShowWindowBytes;
    friend bool operator==(const TTraces&, const TTraces&) = default;
};
TTraces LookAt(const THostThread& host);
unsigned CountThreads();
/// Waits until the process has no more than that many; a thread ends after it has left the library. False
/// after 10 seconds.
bool AwaitThreads(unsigned most);

/// Waits until the library is no longer loaded; False after 10 seconds.
bool AwaitUnloaded();
/// The lowest port from 4440 on that somebody listens on; 0 if there is none in reach within 10 seconds.
std::uint16_t FindPort();
bool Listens(std::uint16_t port);

/// A connection to a port of this machine.
class TConnection {
 public:
    explicit TConnection(std::uint16_t port);
    ~TConnection();
    TConnection(const TConnection&) = delete;
    TConnection& operator=(const TConnection&) = delete;
    void Send(const std::string& text) { ::send(FSocket, text.data(), static_cast<int>(text.size()), 0); }
    /// "211 False": the status and the body of one answer; nothing when the connection ends before, or the
    /// time passes.
    std::optional<std::string> Answer(unsigned seconds = 20);
    /// True once the other side has closed it.
    bool AwaitClosed(unsigned seconds = 10);

 private:
    SOCKET FSocket;
};
std::string Ask(std::uint16_t port, const std::string& request);

/// Runs this program with `scene` as its only argument. `during` gets the process while it runs. Answers its
/// exit code, or nothing after 20 seconds, when it is ended.
std::optional<unsigned> RunScene(const std::string& scene, void (*during)(DWORD process) = nullptr);

}  // namespace rux::test
