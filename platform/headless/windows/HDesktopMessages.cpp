// Messages of the desktop: sending, posting, the loop, timers, window procedures.
#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/windows/HDesktop.h"
#include "platform/headless/windows/HMessageNames.h"
#include "rtl/CodePage.h"
#include "rtl/Exceptions.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// Base of the numbers that stand for a window's own target as a procedure.
constexpr TWndProc TargetProcBase = TWndProc{1} << 33;

/// Bytes of the text that a buffer of `room` takes without cutting a character.
std::size_t WholeCharacters(const std::string& text, std::size_t room) {
    if (text.size() <= room) return text.size();
    TTextCursor step(text);
    std::size_t end = 0;
    for (; !step.AtEnd() && step.Pos() <= room; step.Next()) end = step.Pos();
    return end;
}

}  // namespace

/// Code that another thread waits for: what a message does that it sends, for one.
struct HDesktop::TSentCode {
    /// nil once it has run, or when nobody waits for it any more.
    const std::function<void()>* Code = nullptr;
    std::unique_ptr<TEvent> Done;
};

LResult HDesktop::CallTarget(HWnd handle, unsigned message, WParam wParam, LParam lParam) {
    HWindow* window = FTable.Find(handle);
    if (!window) return 0;
    if (window->Target) return window->Target->WndProc(handle, message, wParam, lParam);
    return DefWindowProc(handle, message, wParam, lParam);
}

LResult HDesktop::Notify(HWnd handle, unsigned message, WParam wParam, LParam lParam) {
    const HWindow* window = FTable.Find(handle);
    if (!window) return 0;
    const THandling handling(*this);
    return window->Override ? CallWindowProcA(window->Override, handle, message, wParam, lParam)
                            : CallTarget(handle, message, wParam, lParam);
}

LResult HDesktop::SendMessageA(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    LResult result = 0;
    RunOnOwner([&] {
        JournalMessage(HEntry::Sent, "send ", window, message, wParam, lParam);
        result = Notify(window, message, wParam, lParam);
    });
    return result;
}

bool HDesktop::RunOnOwner(const std::function<void()>& code) {
    if (OnOwnerThread()) {
        code();
        return true;
    }
    const auto sent = std::make_shared<TSentCode>();
    sent->Code = &code;
    sent->Done = FKernel.CreateEventA();
    {
        const std::lock_guard lock(FSharedLock);
        if (FQuit) return false;
        FSent.push_back(sent);
    }
    FQueue.Wake();
    sent->Done->WaitFor(WaitForever);
    return sent->Code == nullptr;
}

bool HDesktop::RunSentMessages() {
    for (bool any = false;; any = true) {
        std::shared_ptr<TSentCode> sent;
        {
            const std::lock_guard lock(FSharedLock);
            if (FSent.empty()) return any;
            sent = FSent.front();
            FSent.pop_front();
        }
        (*sent->Code)();
        sent->Code = nullptr;
        sent->Done->SetEvent();
    }
}

bool HDesktop::PostMessageA(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    if (!FTable.Exists(window)) return false;
    if (FKernel.GetCurrentThreadId() == FThread)
        JournalMessage(HEntry::Posted, "post ", window, message, wParam, lParam);
    return FQueue.Put({window, message, wParam, lParam});
}

bool HDesktop::PeekMessageA(TMessage& message, HWnd window, unsigned first, unsigned last) {
    const HWindow* top = FTable.Find(window);
    if (!top) return false;
    const std::optional<TMessage> found = FQueue.TakeOf(
        [&](const TMessage& m) { return m.Number >= first && m.Number <= last && IsWithin(m.Window, top); });
    if (found) message = *found;
    return found.has_value();
}

unsigned HDesktop::RegisterWindowMessageA(const std::string& name) {
    const std::lock_guard lock(FSharedLock);
    const std::string key = UpperCase(name);
    if (const auto found = FRegistered.find(key); found != FRegistered.end()) return found->second;
    if (FRegistered.size() >= HAtomLimit) return 0;
    return FRegistered[key] = WM_REGISTERED_FIRST + static_cast<unsigned>(FRegistered.size());
}

// ---------------------------------------------------------------------------------------------- procedures

TWndProc HDesktop::MakeObjectInstance(TWindowProcedure procedure) {
    FNextProc += 16;
    FProcs[FNextProc] = std::make_shared<TWindowProcedure>(std::move(procedure));
    return FNextProc;
}

void HDesktop::FreeObjectInstance(TWndProc instance) {
    FProcs.erase(instance);
}

TWndProc HDesktop::GetWindowProc(HWnd handle) {
    const HWindow* window = FTable.Find(handle);
    if (!window) return 0;
    return window->Override ? window->Override : TargetProcBase + handle;
}

TWndProc HDesktop::SetWindowProc(HWnd handle, TWndProc procedure) {
    HWindow* window = FTable.Find(handle);
    if (!window) return 0;
    const TWndProc previous = GetWindowProc(handle);
    window->Override = procedure == TargetProcBase + handle ? 0 : procedure;
    return previous;
}

LResult HDesktop::CallWindowProcA(TWndProc procedure, HWnd window, unsigned message, WParam wParam,
                                  LParam lParam) {
    if (procedure >= TargetProcBase) return CallTarget(procedure - TargetProcBase, message, wParam, lParam);
    const auto found = FProcs.find(procedure);
    if (found == FProcs.end()) return 0;
    // The procedure may free its own instance while it runs.
    const std::shared_ptr<TWindowProcedure> function = found->second;
    LResult result = 0;
    Report([&] { result = (*function)(window, message, wParam, lParam); });
    return result;
}

/// The border around other people's procedures.
template <class Code>
void HDesktop::Report(Code code) {
    try {
        code();
    } catch (const std::exception& error) {
        if (FReport) FReport(error);
    } catch (...) {
        if (FReport) FReport(Exception("Unknown exception"));
    }
}

LResult HDesktop::DefWindowProc(HWnd handle, unsigned message, WParam wParam, LParam lParam) {
    HWindow* window = FTable.Find(handle);
    if (!window) return 0;
    switch (message) {
        case WM_GETTEXT: {
            if (wParam == 0) return 0;
            const std::size_t count = WholeCharacters(window->Text, wParam - 1);
            char* buffer = reinterpret_cast<char*>(lParam);
            std::copy_n(window->Text.begin(), count, buffer);
            buffer[count] = 0;
            return static_cast<LResult>(count);
        }
        case WM_GETTEXTLENGTH:
            return static_cast<LResult>(window->Text.size());
        case WM_SETTEXT:
            window->Text = lParam ? reinterpret_cast<const char*>(lParam) : "";
            return 1;
        case WM_CLOSE:
            DestroyWindow(handle);
            return 0;
        case WM_CANCELMODE:
            if (FCapture == handle) ReleaseCapture();
            return 0;
        default:
            return 0;
    }
}

// ---------------------------------------------------------------------------------------------- the loop

bool HDesktop::NextMessage(TMessage& message) {
    RunSentMessages();
    while (const std::optional<TMessage> posted = FQueue.Take()) {
        message = *posted;
        if (FTable.Find(message.Window)) return true;
    }
    while (const std::optional<TMessage> input = FQueue.TakeInput()) {
        message = *input;
        if (ResolveKey(message)) return true;
    }
    return DueTimer(message);
}

bool HDesktop::PeekAny(TMessage& message) {
    EmptyGraveyard();
    return !FQuit && NextMessage(message);
}

void HDesktop::WaitMessage() {
    EmptyGraveyard();
    while (!FQuit && !RunSentMessages() && FQueue.Empty()) {
        const std::uint32_t time = TimeToNextTimer();
        if (time == 0) return;
        FQueue.Wait(time);
    }
}

void HDesktop::AddQuitEvent(TEvent& event) {
    const std::lock_guard lock(FSharedLock);
    FQuitEvents.push_back(&event);
    if (FQuit) event.SetEvent();
}

void HDesktop::RemoveQuitEvent(TEvent& event) {
    const std::lock_guard lock(FSharedLock);
    std::erase(FQuitEvents, &event);
}

void HDesktop::Quit() {
    std::deque<std::shared_ptr<TSentCode>> waiting;
    {
        const std::lock_guard lock(FSharedLock);
        FQuit = true;
        waiting.swap(FSent);
        for (TEvent* event : FQuitEvents) event->SetEvent();
    }
    for (const std::shared_ptr<TSentCode>& sent : waiting) sent->Done->SetEvent();
    FQueue.Wake();
}

void HDesktop::DispatchMessage(const TMessage& message) {
    if (message.Number == WM_TIMER && message.Window == 0) {
        RunTimer(static_cast<unsigned>(message.WParameter));
        return;
    }
    TranslateKey(message);
    Notify(message.Window, message.Number, message.WParameter, message.LParameter);
}

unsigned HDesktop::SetTimer(std::uint32_t milliseconds, TTimerProc proc) {
    const unsigned timer = FNextTimer++;
    FTimers[timer] = {FClock.TickCount() + milliseconds, milliseconds, std::move(proc)};
    return timer;
}

void HDesktop::KillTimer(unsigned timer) {
    FTimers.erase(timer);
}

bool HDesktop::DueTimer(TMessage& message) {
    if (FTimers.empty()) return false;
    const std::uint64_t now = FClock.TickCount();
    // The one that has waited longest: a timer that is always due must not keep the others from their turn.
    const auto next = std::min_element(FTimers.begin(), FTimers.end(), [](const auto& a, const auto& b) {
        return a.second.Due < b.second.Due;
    });
    if (next->second.Due > now) return false;
    next->second.Due = now + std::max<std::uint32_t>(next->second.Interval, 1);
    message = {0, WM_TIMER, next->first, 0};
    return true;
}

std::uint32_t HDesktop::TimeToNextTimer() {
    if (FTimers.empty()) return WaitForever;
    std::uint64_t due = UINT64_MAX;
    for (const auto& [number, timer] : FTimers) due = std::min(due, timer.Due);
    const std::uint64_t now = FClock.TickCount();
    return due <= now ? 0 : static_cast<std::uint32_t>(std::min<std::uint64_t>(due - now, WaitForever - 1));
}

void HDesktop::RunTimer(unsigned number) {
    const auto found = FTimers.find(number);
    if (found == FTimers.end()) return;
    const TTimerProc proc = found->second.Proc;
    const THandling handling(*this);
    Report(proc);
}

void HDesktop::JournalMessage(HEntry kind, const char* verb, HWnd handle, unsigned message, WParam wParam,
                              LParam lParam) {
    if (!FJournal.Wants(kind)) return;
    const HWindow* window = FTable.Find(handle);
    std::string line = verb;
    line += !window          ? std::string("nothing")
            : window->Target ? window->Target->JournalName()
                             : window->ClassName;
    FJournal.Add(kind, line + " " + DescribeMessage(message, wParam, lParam));
}

}  // namespace rux
