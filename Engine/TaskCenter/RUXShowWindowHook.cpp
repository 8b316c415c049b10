#include "Engine/TaskCenter/RUXShowWindowHook.h"

#include <mutex>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXUtils.h"
#include "Engine/TaskCenter/RUXTaskMessages.h"
#include "platform/KernelService.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Forms.h"

namespace rux {

namespace {

bool BringsUp(int command) {
    switch (command) {
        case SW_SHOWNORMAL:
        case SW_SHOWMAXIMIZED:
        case SW_SHOW:
        case SW_RESTORE:
        case SW_SHOWDEFAULT:
            return true;
        default:
            return false;
    }
}

}  // namespace

TShowWindowHook::TShowWindowHook(TPlatform& platform)
    : FPlatform(platform),
      FThread(platform.Toolkit.MainThreadId()),
      FShowWindow(platform.Code, TCallKind::StdCall) {}

bool TShowWindowHook::Install() {
    const std::lock_guard lock(FLock);
    FActive = FShowWindow.Install("user32.dll", "ShowWindow", 2,
                                  [self = shared_from_this()](std::span<const std::uintptr_t> arguments) {
                                      return self->ShowWindowHook(arguments);
                                  });
    return FActive;
}

void TShowWindowHook::Remove() {
    {
        const std::lock_guard lock(FLock);
        FActive = false;
    }
    FShowWindow.Remove();
}

std::uintptr_t TShowWindowHook::ShowWindowHook(std::span<const std::uintptr_t> arguments) {
    const std::uintptr_t result = FShowWindow.CallOriginal(arguments);
    const HWnd window = arguments[0];
    const int command = static_cast<int>(arguments[1]);
    try {
        if (IsWindowOfInterest(window, command)) Report(window, IsModalOrForeignWindow(window));
    } catch (const std::exception&) {
        // Nobody may learn from the window system's own function that somebody watches: out of memory at
        // worst, and the window then goes unreported.
    }
    return result;
}

bool TShowWindowHook::IsWindowOfInterest(HWnd window, int command) {
    TWindowInfo info;
    if (!BringsUp(command) || !FPlatform.Windows.GetWindowInfo(window, info)) return false;
    if (!FPlatform.Windows.IsWindow(window)) return false;
    return !(info.Style & WS_CHILD) || (info.ExStyle & WS_EX_MDICHILD);
}

bool TShowWindowHook::IsModalOrForeignWindow(HWnd window) {
    // The toolkit's objects live on its one thread and make their windows there; whatever another thread
    // shows by itself is a window of another make, or no modal form.
    if (FPlatform.Kernel.GetCurrentThreadId() != FThread) return !HasVclMark(FPlatform, window);
    TObject* object = FindVclControl(FPlatform, window);
    return !object || (Is<TCustomForm>(object) && Cast<TCustomForm>(object).Modal());
}

void TShowWindowHook::Report(HWnd window, bool endsPopups) {
    const std::shared_lock lock(FLock);
    if (!FActive) return;
    TEngineState& engine = Engine();
    const TIntf<ITestRequest> request = engine.RequestStack.Last();
    if (!request || !engine.SeenWindows.Add(window)) return;
    if (endsPopups) {
        engine.CurrentPopup = nullptr;
        engine.RootPopup = nullptr;
    }
    if (!request->GetIgnorePopupWindow())
        PostRequestTask(RUXM_WINDOWSHOWN, request, static_cast<LParam>(window));
}

bool InstallShowWindowHook() {
    TEngineState& engine = Engine();
    if (engine.ShowWindowHook) return true;
    engine.ShowWindowHook = std::make_shared<TShowWindowHook>(engine.Platform);
    return engine.ShowWindowHook->Install();
}

void RemoveShowWindowHook() {
    TEngineState& engine = Engine();
    if (!engine.ShowWindowHook) return;
    engine.ShowWindowHook->Remove();
    engine.ShowWindowHook.reset();
}

}  // namespace rux
