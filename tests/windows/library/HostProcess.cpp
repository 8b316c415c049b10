#include "HostProcess.h"

#include <tlhelp32.h>
#include <ws2tcpip.h>

#include <chrono>
#include <cstdio>

namespace rux::test {

namespace {

constexpr unsigned GoButton = 1, HangButton = 2;
HANDLE Hanging = nullptr;

template <class Condition>
bool Await(unsigned seconds, Condition&& condition) {
    for (unsigned i = 0; i < seconds * 100; ++i) {
        if (condition()) return true;
        ::Sleep(10);
    }
    return condition();
}

HWND Box() {
    const HWND box = ::FindWindowA("#32770", "Box");
    return box && ::IsWindowVisible(box) ? box : nullptr;
}

LRESULT CALLBACK FrameProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && LOWORD(wParam) == GoButton) ::MessageBoxA(window, "text", "Box", MB_OK);
    if (message == WM_COMMAND && LOWORD(wParam) == HangButton) ::WaitForSingleObject(Hanging, INFINITE);
    return ::DefWindowProcA(window, message, wParam, lParam);
}

HWND Register(const char* name, WNDPROC procedure, DWORD style, int size) {
    WNDCLASSA made{};
    made.lpfnWndProc = procedure;
    made.hInstance = ::GetModuleHandleA(nullptr);
    made.lpszClassName = name;
    ::RegisterClassA(&made);
    return ::CreateWindowA(name, "App", style, 100, 100, size, size, nullptr, nullptr, made.hInstance,
                           nullptr);
}

sockaddr_in Loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

SOCKET Open(std::uint16_t port) {
    const SOCKET made = ::socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = Loopback(port);
    if (::connect(made, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return made;
    ::closesocket(made);
    return INVALID_SOCKET;
}

}  // namespace

LRESULT CALLBACK THostThread::ApplicationProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefWindowProcA(window, message, wParam, lParam);
}

void THostThread::Live(HANDLE ready) {
    FApplication = Register("TApplication", &ApplicationProc, WS_POPUP | WS_VISIBLE, 0);
    const HWND frame = Register("Frame", &FrameProc, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 200);
    const auto button = [&](const char* text, unsigned id, int top) {
        ::CreateWindowA("BUTTON", text, WS_CHILD | WS_VISIBLE, 10, top, 80, 25, frame,
                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
    };
    button("Go", GoButton, 10);
    button("Hang", HangButton, 50);
    ::SetEvent(ready);
    MSG message;
    while (::GetMessageA(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
    ::DestroyWindow(frame);
    ::DestroyWindow(FApplication);
}

THostThread::THostThread() {
    ::LoadLibraryA("vcl100.bpl");
    Hanging = FRelease;
    const HANDLE ready = ::CreateEventA(nullptr, FALSE, FALSE, nullptr);
    FThread = std::thread([this, ready] { Live(ready); });
    ::WaitForSingleObject(ready, INFINITE);
    ::CloseHandle(ready);
}

THostThread::~THostThread() {
    Release();
    while (const HWND box = Box()) {
        ::PostMessageA(box, WM_CLOSE, 0, 0);
        ::Sleep(10);
    }
    const DWORD thread = ::GetWindowThreadProcessId(FApplication, nullptr);
    ::PostThreadMessageA(thread, WM_QUIT, 0, 0);
    FThread.join();
    ::CloseHandle(FRelease);
}

HWND THostThread::AwaitBox(unsigned seconds) {
    Await(seconds, [] { return Box() != nullptr; });
    return Box();
}

TTraces LookAt(const THostThread& host) {
    TTraces traces;
    traces.WindowProc = static_cast<std::uintptr_t>(::GetWindowLongA(host.Application(), GWL_WNDPROC));
    const auto* code = reinterpret_cast<const unsigned char*>(
        ::GetProcAddress(::GetModuleHandleA("user32.dll"), "ShowWindow"));
    if (code[0] == 0xFF && code[1] == 0x25)
        code = **reinterpret_cast<const unsigned char* const* const*>(code + 2);
    for (unsigned i = 0; i < 16; ++i) {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%02x", code[i]);
        traces.ShowWindowBytes += digits;
    }
    return traces;
}

unsigned CountThreads() {
    unsigned count = 0;
    const HANDLE all = ::CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = ::Thread32First(all, &entry); more; more = ::Thread32Next(all, &entry))
        if (entry.th32OwnerProcessID == ::GetCurrentProcessId()) ++count;
    ::CloseHandle(all);
    return count;
}

bool AwaitThreads(unsigned most) {
    return Await(10, [&] { return CountThreads() <= most; });
}

bool AwaitUnloaded() {
    return Await(10, [] { return ::GetModuleHandleA(LibraryName) == nullptr; });
}

bool Listens(std::uint16_t port) {
    const SOCKET made = Open(port);
    if (made == INVALID_SOCKET) return false;
    ::closesocket(made);
    return true;
}

std::uint16_t FindPort() {
    std::uint16_t found = 0;
    Await(10, [&] {
        for (std::uint16_t port = 4440; port < 4640 && found == 0; ++port)
            if (Listens(port)) found = port;
        return found != 0;
    });
    return found;
}

TConnection::TConnection(std::uint16_t port) : FSocket(Open(port)) {}

TConnection::~TConnection() {
    ::closesocket(FSocket);
}

std::optional<std::string> TConnection::Answer(unsigned seconds) {
    const DWORD limit = seconds * 1000;
    ::setsockopt(FSocket, SOL_SOCKET, SO_RCVTIMEO, reinterpret_cast<const char*>(&limit), sizeof limit);
    std::string text;
    const std::string lengthSign = "Content-length: ";
    while (true) {
        const std::size_t end = text.find("\r\n\r\n"), sign = text.find(lengthSign);
        if (end != text.npos && sign < end) {
            const std::size_t length = std::stoul(text.substr(sign + lengthSign.size()));
            if (text.size() >= end + 4 + length)
                return text.substr(text.find(' ') + 1, 3) + " " + text.substr(end + 4, length);
        }
        char piece[4096];
        const int got = ::recv(FSocket, piece, sizeof piece, 0);
        if (got <= 0) return std::nullopt;
        text.append(piece, static_cast<std::size_t>(got));
    }
}

bool TConnection::AwaitClosed(unsigned seconds) {
    const DWORD limit = seconds * 1000;
    ::setsockopt(FSocket, SOL_SOCKET, SO_RCVTIMEO, reinterpret_cast<const char*>(&limit), sizeof limit);
    char piece[4096];
    int got = 0;
    while ((got = ::recv(FSocket, piece, sizeof piece, 0)) > 0) {
    }
    return got == 0 || ::WSAGetLastError() == WSAECONNRESET;
}

std::string Ask(std::uint16_t port, const std::string& request) {
    TConnection connection(port);
    connection.Send("GET /" + request + " HTTP/1.1\r\n\r\n");
    return connection.Answer().value_or("no answer");
}

std::optional<unsigned> RunScene(const std::string& scene, void (*during)(DWORD process)) {
    char program[MAX_PATH];
    ::GetModuleFileNameA(nullptr, program, sizeof program);
    std::string line = "\"" + std::string(program) + "\" --scene=" + scene;
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION made{};
    if (!::CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &made))
        return std::nullopt;
    if (during) during(made.dwProcessId);
    std::optional<unsigned> result;
    DWORD code = 0;
    if (::WaitForSingleObject(made.hProcess, 20000) == WAIT_OBJECT_0 &&
        ::GetExitCodeProcess(made.hProcess, &code))
        result = code;
    else
        ::TerminateProcess(made.hProcess, 1);
    ::CloseHandle(made.hThread);
    ::CloseHandle(made.hProcess);
    return result;
}

}  // namespace rux::test
