#include "HostProcess.h"

#include <tlhelp32.h>
#include <ws2tcpip.h>

namespace rux::test {

namespace {

constexpr unsigned GoButton = 1, HangButton = 2;
HANDLE Hanging = nullptr;

template <class Condition>
bool Await(Condition&& condition) {
    for (unsigned i = 0; i < 1000 && !condition(); ++i) ::Sleep(10);
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

}  // namespace

void THostThread::Live(HANDLE ready) {
    FApplication = Register("TApplication", &::DefWindowProcA, WS_POPUP | WS_VISIBLE, 0);
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

HWND THostThread::AwaitBox() {
    Await([] { return Box() != nullptr; });
    return Box();
}

TTraces LookAt(const THostThread& host) {
    TTraces traces;
    traces.WindowProc = static_cast<std::uintptr_t>(::GetWindowLongA(host.Application(), GWL_WNDPROC));
    const auto* code = reinterpret_cast<const unsigned char*>(
        ::GetProcAddress(::GetModuleHandleA("user32.dll"), "ShowWindow"));
    if (code[0] == 0xFF && code[1] == 0x25)
        code = **reinterpret_cast<const unsigned char* const* const*>(code + 2);
    traces.ShowWindowBytes.assign(code, code + 16);
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
    return Await([&] { return CountThreads() <= most; });
}

bool AwaitUnloaded() {
    return Await([] { return ::GetModuleHandleA(LibraryName) == nullptr; });
}

/// Wine's server may keep the listening socket of a process that has ended: what listens there never answers.
bool Serves(std::uint16_t port) {
    TConnection connection(port);
    connection.Send("GetExePath");
    return connection.Answer(1) != "no answer";
}

std::uint16_t FindPort() {
    std::uint16_t found = 0;
    Await([&] {
        for (std::uint16_t port = 4440; port < 4640 && found == 0; ++port)
            if (Listens(port) && Serves(port)) found = port;
        return found != 0;
    });
    return found;
}

TConnection::TConnection(std::uint16_t port) : FSocket(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in to{};
    to.sin_family = AF_INET;
    to.sin_port = htons(port);
    to.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    FOpen = ::connect(FSocket, reinterpret_cast<const sockaddr*>(&to), sizeof to) == 0;
}

bool TConnection::Fill(unsigned seconds) {
    const DWORD limit = seconds * 1000;
    ::setsockopt(FSocket, SOL_SOCKET, SO_RCVTIMEO, reinterpret_cast<const char*>(&limit), sizeof limit);
    char piece[4096];
    const int got = ::recv(FSocket, piece, sizeof piece, 0);
    if (got > 0) FText.append(piece, static_cast<std::size_t>(got));
    FOpen = got > 0 || (got < 0 && ::WSAGetLastError() != WSAECONNRESET);
    return got > 0;
}

std::string TConnection::Answer(unsigned seconds) {
    const std::string sign = "Content-length: ";
    std::size_t end, length;
    do {
        end = FText.find("\r\n\r\n");
        length = end == FText.npos ? end : std::stoul(FText.substr(FText.find(sign) + sign.size()));
        if (end != FText.npos && FText.size() >= end + 4 + length)
            return FText.substr(FText.find(' ') + 1, 3) + " " + FText.substr(end + 4, length);
    } while (Fill(seconds));
    return "no answer";
}

std::string Ask(std::uint16_t port, const std::string& request) {
    TConnection connection(port);
    connection.Send(request);
    return connection.Answer();
}

unsigned RunScene(const std::string& scene, void (*during)(DWORD process)) {
    char program[MAX_PATH];
    ::GetModuleFileNameA(nullptr, program, sizeof program);
    std::string line = "\"" + std::string(program) + "\" --scene=" + scene;
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION made{};
    if (!::CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &made))
        return 1001;
    if (during) during(made.dwProcessId);
    if (::WaitForSingleObject(made.hProcess, 20000) != WAIT_OBJECT_0) ::TerminateProcess(made.hProcess, 1000);
    DWORD code = 0;
    ::GetExitCodeProcess(made.hProcess, &code);
    ::CloseHandle(made.hThread);
    ::CloseHandle(made.hProcess);
    return code;
}

}  // namespace rux::test
