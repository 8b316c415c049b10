// testhost: an application for the agent to live in. It is one as far as the agent looks: a module of the
// toolkit's name is loaded, and there is the hidden window that the toolkit makes for the application.
//
//   testhost [--control PORT] [--title TEXT] [COMMAND ...]
//
// Commands (see Commands.cpp) run at the start, one for each argument; later they come over the control line.
#include <windows.h>

#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include "host/windows/common/AnsiText.h"
#include "host/windows/common/ControlLine.h"
#include "host/windows/testhost/Commands.h"
#include "host/windows/testhost/UserInterface.h"

namespace rux {

namespace {

constexpr int NoStandIn = 120;
constexpr int NoControl = 121;

struct TOptions {
    std::uint16_t Control = 0;
    std::string Title = "App";
    std::vector<std::string> Commands;
};

TOptions ReadOptions(int argc, char** argv) {
    TOptions options;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i], value = i + 1 < argc ? argv[i + 1] : "";
        if (arg == "--control") {
            options.Control = static_cast<std::uint16_t>(std::atoi(value.c_str()));
            ++i;
        } else if (arg == "--title") {
            options.Title = value;
            ++i;
        } else {
            options.Commands.push_back(arg);
        }
    }
    return options;
}

/// Enabled and of no size, as the toolkit has it; visible only when the host is ready.
HWND MakeApplicationWindow(const std::string& title) {
    WNDCLASSA type{};
    type.lpfnWndProc = &DefWindowProcA;
    type.hInstance = GetModuleHandleA(nullptr);
    type.lpszClassName = "TApplication";
    RegisterClassA(&type);
    return CreateWindowExA(0, type.lpszClassName, title.c_str(),
                           WS_POPUP | WS_CAPTION | WS_CLIPSIBLINGS | WS_SYSMENU | WS_MINIMIZEBOX,
                           GetSystemMetrics(SM_CXSCREEN) / 2, GetSystemMetrics(SM_CYSCREEN) / 2, 0, 0,
                           nullptr, nullptr, type.hInstance, nullptr);
}

/// Whoever places a library now may hold the loader's lock for long, and no thread begins meanwhile.
void TellReady(HWND application, const TOptions& options) {
    ShowWindow(application, SW_SHOWNOACTIVATE);
    for (const std::string& command : options.Commands) RunCommand(application, command);
}

void Control(HWND application, const TOptions& options) noexcept {
    try {
        if (options.Control == 0) return TellReady(application, options);
        TControlLine line(options.Control);
        TellReady(application, options);
        line.Serve([&](const auto& command) { return RunCommand(application, command); });
        EndIfAsked();
    } catch (const std::exception&) {
        ExitProcess(NoControl);
    }
}

int Run(const TOptions& options) {
    if (!LoadLibraryA("vcl100.bpl")) return NoStandIn;
    BeginUserInterface();
    const HWND application = MakeApplicationWindow(options.Title);
    std::thread(&Control, application, options).detach();
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}

}  // namespace

}  // namespace rux

int main(int argc, char** argv) {
    return rux::Run(rux::ReadOptions(argc, argv));
}
