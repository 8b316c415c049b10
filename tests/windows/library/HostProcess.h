// This test program as the process that the library is placed into: a thread with an application's hidden
// window and a button, and what may be asked of the process before and after.
#pragma once

#include <windows.h>
#include <winsock2.h>

#include <cstdint>
#include <string>
#include <thread>
#include <vector>

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
    /// Waits for a message box, at most 10 seconds; nullptr if there is none.
    static HWND AwaitBox();

 private:
    void Live(HANDLE ready);

    HWND FApplication = nullptr;
    HANDLE FRelease = ::CreateEventA(nullptr, FALSE, FALSE, nullptr);
    std::thread FThread;
};

/// What the library changes in its process.
struct TTraces {
    std::uintptr_t WindowProc = 0;
    /// Of the code behind the jump in user32!ShowWindow.
    std::vector<unsigned char> ShowWindowBytes;
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

/// A connection to a port of this machine.
class TConnection {
 public:
    explicit TConnection(std::uint16_t port);
    ~TConnection() { ::closesocket(FSocket); }
    TConnection(const TConnection&) = delete;
    TConnection& operator=(const TConnection&) = delete;
    void Send(const std::string& request) { SendBytes("GET /" + request + " HTTP/1.1\r\n\r\n"); }
    void SendBytes(const std::string& text) {
        ::send(FSocket, text.data(), static_cast<int>(text.size()), 0);
    }
    /// "211 False": the status and the body of one answer; "no answer" when the connection ends before, or
    /// the time passes.
    std::string Answer(unsigned seconds = 20);
    bool IsOpen() const { return FOpen; }
    /// True once the other side has closed it.
    bool AwaitClosed() {
        while (Fill(10)) {
        }
        return !FOpen;
    }

 private:
    bool Fill(unsigned seconds);

    const SOCKET FSocket;
    bool FOpen;
    std::string FText;
};
inline bool Listens(std::uint16_t port) {
    return TConnection(port).IsOpen();
}
std::string Ask(std::uint16_t port, const std::string& request);

/// Runs this program with `scene` as its only argument. `during` gets the process while it runs. Answers its
/// exit code; 1000 after 20 seconds, when it is ended.
unsigned RunScene(const std::string& scene, void (*during)(DWORD process) = nullptr);

}  // namespace rux::test
