#include "host/windows/testhost/Commands.h"

#include <map>
#include <optional>

#include "host/windows/common/AnsiText.h"
#include "host/windows/common/ControlLine.h"
#include "host/windows/testhost/Dialogs.h"
#include "host/windows/testhost/Fixture.h"
#include "host/windows/testhost/Scenes.h"
#include "host/windows/testhost/UserInterface.h"

namespace rux {

namespace {

/// Used by the thread that runs commands.
std::optional<int> EndCode;

std::string SizeOf(const std::string& title) {
    RECT place;
    const HWND dialog = FindDialog(title);
    if (!dialog || !GetWindowRect(dialog, &place)) return "none";
    return std::to_string(place.right - place.left) + "x" + std::to_string(place.bottom - place.top);
}

std::string Close(const std::string& title) {
    const HWND dialog = FindDialog(title);
    return dialog && PostMessageA(dialog, WM_CLOSE, 0, 0) ? "posted" : "none";
}

/// On the user-interface thread.
std::string There(const std::function<std::string()>& code) {
    std::string answer = "done";
    RunOnUserInterface([&] { answer = code(); });
    return answer;
}

std::string There(void (*code)()) {
    RunOnUserInterface(code);
    return "done";
}

}  // namespace

std::string RunCommand(HWND application, std::string line) {
    using TCommand = std::function<std::string(std::string)>;
    const std::map<std::string, TCommand> commands = {
        {"main", [](auto) { return There(&OpenMain); }},
        {"fixture", [](auto) { return There(&OpenFixture); }},
        // What Go does.
        {"go", [](auto scene) { return There([&] { return AgreeOn(scene) ? "agreed" : "no such scene"; }); }},
        // As a timer would bring it up.
        {"box", [](auto) { return There(&BoxFromNowhere); }},
        {"elapse", [](auto) { return There(&Elapse); }},
        // Comes back when all is handled that was posted before.
        {"settle", [](auto) { return There([] {}); }},
        // The same, and then has waited.
        {"idle",
         [](auto) {
             AwaitIdleUserInterface();
             return "done";
         }},
        {"size", &SizeOf},
        {"close", &Close},
        {"notes", [](auto) { return TakeNotes(); }},
        {"title",
         [=](auto text) { return SetWindowTextA(application, Ansi(text).c_str()) ? "done" : "failed"; }},
        {"codepage", [](auto) { return std::to_string(GetACP()); }},
        // Once the line is closed: the answer is to arrive.
        {"end",
         [](auto code) {
             EndCode = code.empty() ? 0 : std::stoi(code);
             return "done";
         }},
    };
    const auto found = commands.find(TakeWord(line));
    return found == commands.end() ? "no such command" : found->second(line);
}

void EndIfAsked() {
    if (EndCode) RunOnUserInterface([] { PostQuitMessage(*EndCode); });
}

}  // namespace rux
