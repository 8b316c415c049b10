#include "host/windows/testhost/Scenes.h"

#include <map>
#include <utility>

#include "host/windows/testhost/Dialogs.h"
#include "host/windows/testhost/UserInterface.h"

namespace rux {

namespace {

constexpr int GoId = 100, OpenId = 101;
constexpr unsigned Soon = 10;
constexpr RECT DialogPlace{5, 5, 225, 145};

std::function<void()> OnTimer;
std::function<void(HWND owner)> OnGo;

void Box(HWND owner, UINT type = MB_OK) {
    const int answer = MessageBoxA(owner, "text", "Box", type);
    Note("ended " + std::to_string(answer));
}

void CloseBox() {
    if (const HWND box = FindDialog("Box")) PostMessageA(box, WM_CLOSE, 0, 0);
}

void BoxFromTimer(HWND owner) {
    OnTimer = [owner] { Box(owner); };
}

void BoxThatIsClosed(HWND owner) {
    OnTimer = &CloseBox;
    Box(owner);
}

void TwoBoxes(HWND owner) {
    WhenIdle([] {
        WhenIdle([] { Note("second"); });
        Box(FindDialog("Box"));
    });
    Box(owner);
}

void BoxOnSecondThread(HWND) {
    ServeUntilDone([] {
        WhenIdle([] { Note("shown"); });
        Box(nullptr);
    });
}

void ModalDialog(HWND owner) {
    const auto build = [](HWND dialog) { AddControl(dialog, "Button", "Fine", {10, 10, 85, 35}); };
    RunDialog({"Box", DialogPlace, build, {}}, owner);
    Note("ended");
}

void Command(HWND dialog, WPARAM command);

void AddGo(HWND dialog) {
    AddControl(dialog, "Button", "Go", {10, 10, 60, 35}, GoId);
}

void ModalBase(HWND owner) {
    RunDialog({"Base", DialogPlace, &AddGo, &Command}, owner);
}

void Command(HWND dialog, WPARAM command) {
    if (HIWORD(command) != BN_CLICKED) return;
    if (LOWORD(command) == OpenId) ModalBase(dialog);
    if (LOWORD(command) != GoId) return;
    Note("go");
    if (OnGo) OnGo(dialog);
    Note("back");
}

}  // namespace

void OpenMain() {
    const auto build = [](HWND dialog) {
        AddGo(dialog);
        AddControl(dialog, "Button", "Open", {80, 10, 130, 35}, OpenId);
        AddControl(dialog, "Static", "Label", {10, 50, 85, 75});
        AddControl(dialog, "Static", "Café", {90, 50, 165, 75});
    };
    OpenDialog({"Main", DialogPlace, build, &Command});
}

bool AgreeOn(const std::string& scene) {
    static const std::map<std::string, std::function<void(HWND)>> scenes = {
        {"box", [](HWND owner) { Box(owner); }},
        {"yesno", [](HWND owner) { Box(owner, MB_YESNO); }},
        {"modal", &ModalDialog},
        {"two", &TwoBoxes},
        {"later", &BoxFromTimer},
        {"closed", &BoxThatIsClosed},
        {"thread", &BoxOnSecondThread},
    };
    const auto found = scenes.find(scene);
    if (found == scenes.end()) return false;
    OnGo = found->second;
    return true;
}

void BoxFromNowhere() {
    After(Soon, [] { Box(nullptr); });
}

void Elapse() {
    if (OnTimer) After(Soon, std::exchange(OnTimer, {}));
}

}  // namespace rux
