#include "Engine/TaskCenter/RUXAutoTask.h"

#include <algorithm>

#include "Engine/Core/RUXLimits.h"
#include "Engine/TaskCenter/RUXTaskMessages.h"
#include "Engine/TaskCenter/RUXUnexpectedWindows.h"
#include "platform/ClockService.h"
#include "platform/KernelService.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Forms.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"
#include "rtl/Stack.h"

namespace rux {

namespace {

constexpr const char* RegisteredMessageName = "RUX.{7F992E1A-1248-42F8-9435-EE05C546E924}";

}  // namespace

// ------------------------------------------------------------------------------------------ life

// The time in milliseconds runs ahead of the count of messages.
TRUXTaskCenter::TRUXTaskCenter() : FMail(static_cast<WParam>(Platform().Clock.TickCount())) {
    TWindowService& windows = Platform().Windows;
    FRegisteredMessage = windows.RegisterWindowMessageA(RegisteredMessageName);
    FWindow = Cast<TApplication>(&Platform().Toolkit.Application()).Handle();
    if (FWindow == 0) throw EOSError("A call to an OS function failed");
    const auto instance = [&](LResult (TRUXTaskCenter::*procedure)(HWnd, unsigned, WParam, LParam)) {
        return windows.MakeObjectInstance(
            [this, procedure](HWnd window, unsigned message, WParam wParam, LParam lParam) {
                return (this->*procedure)(window, message, wParam, lParam);
            });
    };
    FInstance = instance(&TRUXTaskCenter::WindowProc);
    FHandler = instance(&TRUXTaskCenter::TaskCenterWndProc);
    if (FInstance == 0 || FHandler == 0) {
        windows.FreeObjectInstance(FInstance);
        windows.FreeObjectInstance(FHandler);
        throw EOSError("A call to an OS function failed");
    }
    // Noted first: where the library is loaded by another thread, the next message may come at once.
    FPreviousProc = windows.GetWindowProc(FWindow);
    windows.SetWindowProc(FWindow, FInstance);
}

TRUXTaskCenter::~TRUXTaskCenter() {
    TWindowService& windows = Platform().Windows;
    windows.SetWindowProc(FWindow, FPreviousProc);
    windows.FreeObjectInstance(FInstance);
    windows.FreeObjectInstance(FHandler);
    // As far as they can be reached from this thread; what stays carries nothing that could be lost.
    TMessage message;
    while (windows.PeekMessageA(message, FWindow, RUXM_FIRST, RUXM_LAST)) {
    }
}

bool TRUXTaskCenter::PostTask(unsigned message, WParam wParam, LParam lParam) {
    return Platform().Windows.PostMessageA(FWindow, message, wParam, lParam);
}

bool TRUXTaskCenter::PostRequest(unsigned message, const TIntf<ITestRequest>& request, LParam lParam) {
    const WParam number = FMail.Send(request);
    if (PostTask(message, number, lParam)) return true;
    FMail.Take(number);  // nobody else will
    return false;
}

ITestRequest* TRUXTaskCenter::Running() const {
    return FFrames.empty() ? nullptr : FFrames.back().Request.Get();
}

// ------------------------------------------------------------------------------------------ nesting

LResult TRUXTaskCenter::WindowProc(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    if (message != RUXM_EXECUTE || wParam == 0)
        return Platform().Windows.CallWindowProcA(FHandler, window, message, wParam, lParam);
    if (TIntf<ITestRequest> request = FMail.Take(wParam)) {
        FSetAside.push_back(std::move(request));
        RunSetAside();
    }
    return 0;
}

bool TRUXTaskCenter::MayNest() const {
    return FFrames.size() < static_cast<std::size_t>(RequestNestingLimit) &&
           StackRoom() > RequestStackReserve;
}

void TRUXTaskCenter::RunSetAside() {
    // Whoever has come down to a depth that allows it runs what is waiting, in order.
    while (!FSetAside.empty() && MayNest()) {
        const WParam next = FMail.Send(std::move(FSetAside.front()));
        FSetAside.pop_front();
        Platform().Windows.CallWindowProcA(FHandler, FWindow, RUXM_EXECUTE, next, 0);
    }
}

// ------------------------------------------------------------------------------------------ dispatch

LResult TRUXTaskCenter::TaskCenterWndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    if (message == FRegisteredMessage) return 0;
    if (message >= RUXM_FIRST && message <= RUXM_LAST) {
        HandleTaskMessage(message, wParam, lParam);
        return 0;
    }
    if (message == WM_COPYDATA) HandleCopyData(lParam);
    return Platform().Windows.CallWindowProcA(FPreviousProc, window, message, wParam, lParam);
}

void TRUXTaskCenter::HandleCopyData(LParam lParam) {
    // A channel that nothing uses yet; the block goes on to the window's own procedure.
    Assert(lParam != 0);
}

void TRUXTaskCenter::HandleTaskMessage(unsigned message, WParam wParam, LParam lParam) {
    Assert(wParam != 0);
    switch (message) {
        case RUXM_CLOSEWINDOW:
            CloseUnexpectedWindow(static_cast<HWnd>(wParam));
            return;
        case RUXM_EXECUTE:
        case RUXM_FINISHSTEP:
        case RUXM_WINDOWSHOWN:
        case RUXM_SAVEWINDOWPIC:
            if (const TIntf<ITestRequest> request = FMail.Take(wParam))
                HandleRequestMessage(message, request, lParam);
            return;
        default:
            Assert(false, Ansi("未处理的消息类型"));
    }
}

void TRUXTaskCenter::HandleRequestMessage(unsigned message, const TIntf<ITestRequest>& request,
                                          LParam lParam) {
    const auto window = static_cast<HWnd>(lParam);
    if (message == RUXM_EXECUTE) return Execute(request);
    if (message == RUXM_FINISHSTEP) return FinishStep(request, static_cast<unsigned>(lParam));
    if (message == RUXM_WINDOWSHOWN) return HandleWindowShown(request, window);
    SaveUnexpectedWindowPic(*request, window);
}

// ------------------------------------------------------------------------------------------ running

void TRUXTaskCenter::Execute(const TIntf<ITestRequest>& request) {
    TEngineState& engine = Engine();
    engine.Logger.Info(LogTimeStamp() + "Execute Test:" + request->GetURL());
    engine.RequestStack.Add(request);
    engine.DeferredFinish = false;
    engine.SeenWindows.Clear();
    try {
        Invoke(request);
    } catch (...) {
        engine.Logger.Info("EXCEPTION:" + request->GetURL() + "-INVoke");
        request->SetInvokeFailed(true);
        // The application reports it in its own way; the request stays unfinished until something ends it.
        throw;
    }
    EmptyGraves();
    if (engine.DeferredFinish) return;  // the tool-bar pop-up's own thread finishes it
    if (!PostRequestTask(RUXM_FINISHSTEP, request, rfInvokeDone))
        engine.Logger.Info(request->GetURL() + "Error:" + IntToStr(Platform().Kernel.GetLastError()));
}

void TRUXTaskCenter::Invoke(const TIntf<ITestRequest>& request) {
    struct TFrameGuard {
        TRUXTaskCenter& Center;
        ~TFrameGuard() {
            const TFrame frame = std::move(Center.FFrames.back());
            Center.FFrames.pop_back();
            // Taken off the stack while its call was running: what it made was kept till now.
            if (frame.PoolOwner && !Engine().RequestStack.Contains(*frame.Request))
                frame.PoolOwner->GetObjectPool().FreeMadeBy(frame.Request.Get());
        }
    };
    FFrames.push_back({request, Engine().RequestStack.First()});
    const TFrameGuard guard{*this};
    request->Execute();
}

// ------------------------------------------------------------------------------------------ finishing

void TRUXTaskCenter::FinishStep(const TIntf<ITestRequest>& request, unsigned bit) {
    // A late message for a request that was cleared dies here.
    if (!Engine().RequestStack.Contains(*request)) return;
    request->AddFinishState(bit);
    const bool invokeDone = request->GetFinishState() & (1u << rfInvokeDone);
    const bool windowDone = request->GetFinishState() & (1u << rfWindowDone);
    const bool awaitsWindow = request->GetPopupWindow() || request->GetWaitForWindow();
    if (invokeDone && (windowDone || !awaitsWindow)) Pop(*request);
    if (request->GetWaitForWindow() && !windowDone) return;
    request->Finish();
}

void TRUXTaskCenter::Pop(ITestRequest& request) {
    const std::size_t count = Engine().RequestStack.Delete(request);
    FreeMadeBy(request);
    GetLogger().Info("StactCount:" + IntToStr(static_cast<std::int64_t>(count)) + " Pop:" + request.GetURL());
}

void TRUXTaskCenter::FreeMadeBy(const ITestRequest& request) {
    const auto running = [&](const TFrame& frame) { return frame.Request.Get() == &request; };
    if (std::any_of(FFrames.begin(), FFrames.end(), running)) return;
    if (const TIntf<ITestRequest> oldest = Engine().RequestStack.First())
        oldest->GetObjectPool().FreeMadeBy(&request);
}

void TRUXTaskCenter::Bury(TObjectPool pool) {
    const std::lock_guard lock(FGraveLock);
    FGraves.push_back(std::move(pool));
}

void TRUXTaskCenter::EmptyGraves() {
    std::vector<TObjectPool> graves;
    {
        const std::lock_guard lock(FGraveLock);
        graves.swap(FGraves);
    }
}

// ------------------------------------------------------------------------------------------ the instance

namespace {

TRUXTaskCenter* Instance() {
    return static_cast<TRUXTaskCenter*>(Engine().TaskCenter.Get());
}

}  // namespace

void CreateTaskCenter() {
    if (!Instance()) Engine().TaskCenter.Set(new TRUXTaskCenter);
}

void FreeTaskCenter() {
    TRUXTaskCenter* center = Instance();
    if (!center) return;
    Engine().TaskCenter.Set(nullptr);
    delete center;
    Engine().RequestStack.Clear();
    Engine().SeenWindows.Clear();
}

}  // namespace rux
