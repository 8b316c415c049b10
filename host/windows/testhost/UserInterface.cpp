#include "host/windows/testhost/UserInterface.h"

#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <utility>

namespace rux {

namespace {

constexpr UINT RunNext = WM_APP;
constexpr DWORD Patience = 10000;
constexpr unsigned Soon = 15;

struct TTask {
    std::function<void()> Code;
    HANDLE Done = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    ~TTask() { CloseHandle(Done); }
};

void Await(const TTask& task) {
    if (WaitForSingleObject(task.Done, Patience) != WAIT_OBJECT_0)
        throw std::runtime_error("the user interface does not come to it");
}

std::mutex Lock;
std::deque<std::shared_ptr<TTask>> Tasks;
std::string Notes;
HWND Window = nullptr;
/// By thread and number.
std::map<std::pair<DWORD, UINT_PTR>, std::function<void()>> Timers;

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message != RunNext) return DefWindowProcA(window, message, wParam, lParam);
    std::unique_lock lock(Lock);
    const std::shared_ptr<TTask> task = Tasks.front();
    Tasks.pop_front();
    lock.unlock();
    task->Code();
    SetEvent(task->Done);
    return 0;
}

void CALLBACK TimerProc(HWND, UINT, UINT_PTR timer, DWORD) noexcept {
    KillTimer(nullptr, timer);
    std::unique_lock lock(Lock);
    const auto found = Timers.extract({GetCurrentThreadId(), timer});
    lock.unlock();
    if (found) found.mapped()();
}

}  // namespace

void BeginUserInterface() {
    WNDCLASSA type{};
    type.lpfnWndProc = &WindowProc;
    type.hInstance = GetModuleHandleA(nullptr);
    type.lpszClassName = "HostControl";
    RegisterClassA(&type);
    // No window of the screen: nobody comes across it.
    Window = CreateWindowExA(0, type.lpszClassName, "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, type.hInstance,
                             nullptr);
}

void RunOnUserInterface(std::function<void()> code) {
    const auto task = std::make_shared<TTask>();
    task->Code = std::move(code);
    {
        const std::lock_guard lock(Lock);
        Tasks.push_back(task);
    }
    PostMessageA(Window, RunNext, 0, 0);
    Await(*task);
}

void AwaitIdleUserInterface() {
    const auto task = std::make_shared<TTask>();
    RunOnUserInterface([=] { WhenIdle([=] { SetEvent(task->Done); }); });
    Await(*task);
}

void After(unsigned milliseconds, std::function<void()> code) {
    const std::lock_guard lock(Lock);
    const UINT_PTR timer = SetTimer(nullptr, 0, milliseconds, &TimerProc);
    Timers[{GetCurrentThreadId(), timer}] = std::move(code);
}

void WhenIdle(std::function<void()> code) {
    // One alone may be due before the loop that is running has come to wait.
    After(Soon, [code = std::move(code)] { After(Soon, [code] { After(Soon, code); }); });
}

void ServeUntilDone(const std::function<void()>& body) {
    const HANDLE done = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    std::thread thread([&]() noexcept {
        body();
        SetEvent(done);
    });
    while (MsgWaitForMultipleObjects(1, &done, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0)
        for (MSG message; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);) DispatchMessageA(&message);
    thread.join();
    CloseHandle(done);
}

void Note(const std::string& text) {
    const std::lock_guard lock(Lock);
    Notes += (Notes.empty() ? "" : "; ") + text;
}

std::string TakeNotes() {
    const std::lock_guard lock(Lock);
    return std::exchange(Notes, {});
}

}  // namespace rux
