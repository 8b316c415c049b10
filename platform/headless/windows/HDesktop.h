// The window system of the desktop in memory: windows, their order and state, messages, focus, capture,
// cursor.
//
// One thread, the one that makes the desktop, owns all windows. PostMessageA, SendMessageA, IsWindow, atoms
// and Quit may be used from any thread.
#pragma once

#include <atomic>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/ClockService.h"
#include "platform/KernelService.h"
#include "platform/WindowService.h"
#include "platform/headless/code/HCodeSpace.h"
#include "platform/headless/windows/HJournal.h"
#include "platform/headless/windows/HMessageQueue.h"
#include "platform/headless/windows/HWindowTable.h"

namespace rux {

class HDesktop final : public TWindowService {
 public:
    /// Reports an error that a procedure installed from outside let through: the application's own report,
    /// which raises nothing itself.
    using TReport = std::function<void(const std::exception&)>;

    /// Exports the functions that others may patch into `code`.
    HDesktop(TKernelService& kernel, TClockService& clock, HCodeSpace& code);
    ~HDesktop() override;

    HJournal& Journal() { return FJournal; }
    HCodeSpace& CodeSpace() { return FCode; }
    /// From the bottom of the stacking order to its top.
    const std::vector<HWindow*>& TopLevel() const { return FTopLevel; }
    std::uint32_t ProcessId() { return FKernel.GetCurrentProcessId(); }
    void SetErrorReport(TReport report) { FReport = std::move(report); }

    // Windows. 0 or nothing happens when a handle is invalid.
    HWnd CreateWindowA(const HCreateParams& params);
    void DestroyWindow(HWnd window);
    HWindow* Find(HWnd window) const { return FTable.Find(window); }
    /// Calls the export of that name, which others may have patched. Answers whether the window was visible;
    /// a top-level one that was not comes to the top and is activated, as far as the command wants that. Any
    /// thread: from another one it waits until the owner's loop has shown it, and nothing is activated.
    bool ShowWindow(HWnd window, TShowCommand command);
    /// Shows or hides without that call, as windows do that change their state themselves.
    void SetWindowVisible(HWnd window, bool visible);
    /// Runs `code` on the owner's thread and waits for it; at once on that thread itself. Nothing runs once
    /// the loops are to end: False then. `code` raises nothing.
    bool RunOnOwner(const std::function<void()>& code);
    bool OnOwnerThread() const { return FKernel.GetCurrentThreadId() == FThread; }
    std::uintptr_t OwnerThread() const { return FThread; }
    TKernelService& Kernel() const { return FKernel; }
    /// Answers whether the window was disabled before.
    bool EnableWindow(HWnd window, bool enabled);
    /// New rectangle, in the parent's client area for child windows. Everything below moves along.
    void MoveWindow(HWnd window, const TRect& rect);
    void SetInsets(HWnd window, const HInsets& insets);
    void BringWindowToTop(HWnd window);
    /// Puts a child window among its siblings; see HCreateParams.
    void SetWindowOrder(HWnd window, std::int64_t order);
    /// 0 when there are too many.
    TAtom GlobalAddAtomA(const std::string& name);
    void SetPropA(HWnd window, TAtom atom, std::uintptr_t value);

    // Focus, activation, capture, keyboard and cursor.
    HWnd GetFocus() const { return FFocus; }
    /// Fails when the window or one of its parents is disabled.
    bool SetFocus(HWnd window) override;
    HWnd GetActiveWindow() const { return FActive; }
    HWnd GetCapture() const { return FCapture; }
    void SetCapture(HWnd window);
    void ReleaseCapture() { SetCapture(0); }
    /// Ends what the mouse is in the middle of: something modal is about to begin.
    void CancelMode();
    TPoint GetCursorPos() const { return FCursor; }
    /// Clipped to the screen.
    void SetCursorPos(TPoint point);
    /// As of the input that was taken out last, not of what still waits.
    bool KeyIsDown(unsigned key) const { return FKeys[key & 0xFF]; }

    // The message loop.
    /// Takes the next message out. False when there is none, and always once the loops are to end.
    bool PeekAny(TMessage& message);
    /// Waits until there may be a message, a message from another thread has been handled, or the loops are
    /// to end.
    void WaitMessage();
    void DispatchMessage(const TMessage& message);
    /// Makes all loops end, and everybody whose sent message has not been handled go on. Any thread.
    void Quit();
    bool Quitting() const { return FQuit; }
    /// Sets `event` at Quit, or at once when that was called already: for threads that wait for what only a
    /// loop can bring about. Any thread.
    void AddQuitEvent(TEvent& event);
    void RemoveQuitEvent(TEvent& event);
    /// What a window's own procedure leaves to the system.
    LResult DefWindowProc(HWnd window, unsigned message, WParam wParam, LParam lParam);
    /// Sends without a line in the journal: the system's own notifications.
    LResult Notify(HWnd window, unsigned message, WParam wParam, LParam lParam);
    /// While one of these lives, code of the application may be running, and nothing that is buried is freed.
    class THandling {
     public:
        explicit THandling(HDesktop& desktop) : FDesktop(desktop) { ++FDesktop.FDepth; }
        ~THandling() { --FDesktop.FDepth; }
        THandling(const THandling&) = delete;
        THandling& operator=(const THandling&) = delete;

     private:
        HDesktop& FDesktop;
    };
    /// Keeps something that is dead until nothing is being handled any more.
    void Bury(std::shared_ptr<void> dead);
    /// Frees what was buried, if nothing is being handled.
    void EmptyGraveyard();

    using TTimerProc = std::function<void()>;
    /// Calls `proc` every `milliseconds` from the message loop. What it raises is reported. Answers the
    /// timer's number.
    unsigned SetTimer(std::uint32_t milliseconds, TTimerProc proc);
    void KillTimer(unsigned timer);

    // TWindowService
    LResult SendMessageA(HWnd window, unsigned message, WParam wParam, LParam lParam) override;
    bool PostMessageA(HWnd window, unsigned message, WParam wParam, LParam lParam) override;
    bool PeekMessageA(TMessage& message, HWnd window, unsigned first, unsigned last) override;
    unsigned RegisterWindowMessageA(const std::string& name) override;
    TWndProc MakeObjectInstance(TWindowProcedure procedure) override;
    void FreeObjectInstance(TWndProc instance) override;
    TWndProc GetWindowProc(HWnd window) override;
    TWndProc SetWindowProc(HWnd window, TWndProc procedure) override;
    LResult CallWindowProcA(TWndProc procedure, HWnd window, unsigned message, WParam wParam,
                            LParam lParam) override;
    bool IsWindow(HWnd window) override { return FTable.Exists(window); }
    bool GetWindowInfo(HWnd window, TWindowInfo& info) override;
    bool IsWindowVisible(HWnd window) override;
    bool IsWindowEnabled(HWnd window) override;
    bool GetWindowRect(HWnd window, TRect& rect) override;
    std::string GetWindowTextA(HWnd window) override;
    std::string GetClassNameA(HWnd window) override;
    std::uint32_t GetWindowProcessId(HWnd window) override;
    void EnumWindows(const TEnumWindowsProc& proc) override;
    void EnumChildWindows(HWnd parent, const TEnumWindowsProc& proc) override;
    TAtom GlobalFindAtomA(const std::string& name) override;
    std::uintptr_t GetPropA(HWnd window, TAtom atom) override;
    TPoint ClientToScreen(HWnd window, TPoint point) override;
    TPoint ScreenToClient(HWnd window, TPoint point) override;
    HWnd SetActiveWindow(HWnd window) override;
    bool PrintWindow(HWnd window, TBitmap& picture) override;
    bool CopyScreen(const TRect& place, TBitmap& picture) override;
    void keybd_event(std::uint8_t key, std::uint8_t scan, std::uint32_t flags, std::uintptr_t extra) override;

 private:
    struct TSentCode;
    struct TTimer {
        std::uint64_t Due = 0;
        std::uint32_t Interval = 0;
        TTimerProc Proc;
    };

    LResult CallTarget(HWnd window, unsigned message, WParam wParam, LParam lParam);
    void ExportFunctions();
    /// What the export does.
    bool ShowNow(HWnd window, int command, bool onOwnThread);
    /// False when there were none.
    bool RunSentMessages();
    bool NextMessage(TMessage& message);
    bool ResolveKey(TMessage& message);
    bool DueTimer(TMessage& message);
    std::uint32_t TimeToNextTimer();
    void RunTimer(unsigned timer);
    void TranslateKey(const TMessage& message);
    template <class Code>
    void Report(Code code);

    /// The ancestor itself, or a window that stands on it; False for no window.
    bool IsWithin(HWnd window, const HWindow* ancestor) const {
        const HWindow* found = FTable.Find(window);
        return found && ancestor && found->IsWithin(*ancestor);
    }
    std::vector<HWindow*>& Siblings(const HWindow& window);
    void Place(HWindow& window);
    void Raise(HWindow& window);
    /// The window and everything below it, each directly followed by its own children, from the top.
    std::vector<HWnd> Subtree(HWnd window) const;
    void MoveBelow(HWnd window, TPoint by);
    void DestroyOwned(HWnd owner);
    void Remove(HWnd window);
    void ActivateNext(HWnd leaving);
    void DropInput(HWnd window);
    void JournalMessage(HEntry kind, const char* verb, HWnd window, unsigned message, WParam wParam,
                        LParam lParam);

    TKernelService& FKernel;
    TClockService& FClock;
    HCodeSpace& FCode;
    TCodeAddress FShowWindow = 0;
    const std::uintptr_t FThread;
    HJournal FJournal;
    TReport FReport;

    HWindowTable FTable;
    std::vector<HWindow*> FTopLevel;  // bottom to top
    HMessageQueue FQueue;
    std::atomic<bool> FQuit{false};
    int FDepth = 0;
    std::vector<std::shared_ptr<void>> FGraveyard;

    /// Guards what other threads reach: atoms, registered messages, sent messages, who waits for the end.
    std::mutex FSharedLock;
    std::vector<TEvent*> FQuitEvents;
    std::map<std::string, TAtom> FAtoms;
    std::map<std::string, unsigned> FRegistered;
    std::deque<std::shared_ptr<TSentCode>> FSent;

    std::unordered_map<TWndProc, std::shared_ptr<TWindowProcedure>> FProcs;
    TWndProc FNextProc = 0;

    std::map<unsigned, TTimer> FTimers;
    unsigned FNextTimer = 1;

    HWnd FFocus = 0, FActive = 0, FCapture = 0;
    TPoint FCursor;
    std::vector<bool> FKeys = std::vector<bool>(256);
};

}  // namespace rux
