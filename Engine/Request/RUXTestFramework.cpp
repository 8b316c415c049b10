#include "Engine/Request/RUXTestFramework.h"

#include "Engine/Core/RUXAdapter.h"
#include "Engine/Core/RUXEngineState.h"
#include "Engine/Registry/RUXGroupClassFile.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "Engine/Request/RUXConversion.h"
#include "Engine/Request/RUXInvoker.h"
#include "Engine/TaskCenter/RUXTaskMessages.h"
#include "platform/ClockService.h"
#include "platform/KernelService.h"
#include "platform/toolkit/Forms.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"

namespace rux {

namespace {

constexpr std::string_view ToolKitTarget = "ToolKit";

/// Puts the cursor back where a person had it, also when the call fails.
class TCursorKeeper {
 public:
    TCursorKeeper() : FPos(Platform().Toolkit.Mouse().CursorPos()) {}
    TCursorKeeper(const TCursorKeeper&) = delete;
    TCursorKeeper& operator=(const TCursorKeeper&) = delete;
    ~TCursorKeeper() { Platform().Toolkit.Mouse().SetCursorPos(FPos); }

 private:
    TPoint FPos;
};

}  // namespace

TTestRequest::TTestRequest(std::string url, std::uint32_t waitTimeout)
    : FURL(std::move(url)), FWaitTimeout(waitTimeout), FFinishEvent(Platform().Kernel.CreateEventA()) {}

TTestRequest::~TTestRequest() {
    // What it owns may only go on the user-interface thread; the last reference is mostly a worker's.
    if (FObjectPool.Count() > 0) Engine().TaskCenter.Bury(std::move(FObjectPool));
}

// ------------------------------------------------------------------------------------------ fields

bool TTestRequest::GetPopupWindow() {
    const std::lock_guard lock(FLock);
    return FText.PopupWindow;
}

bool TTestRequest::GetCloseUnExpactPopupWindow() {
    const std::lock_guard lock(FLock);
    return FText.CloseUnExpactPopupWindow;
}

TReturnCode TTestRequest::GetReturnCode() {
    const std::lock_guard lock(FLock);
    return FReturnCode;
}

void TTestRequest::SetReturnCode(TReturnCode code) {
    const std::lock_guard lock(FLock);
    FReturnCode = code;
}

std::string TTestRequest::GetReturnValue() {
    const std::lock_guard lock(FLock);
    return FReturnValue;
}

void TTestRequest::SetReturnValue(const std::string& value) {
    const std::lock_guard lock(FLock);
    FReturnValue = value;
}

std::string TTestRequest::GetErrorMessage() {
    const std::lock_guard lock(FLock);
    return FErrorMessage;
}

void TTestRequest::SetErrorMessage(const std::string& message) {
    const std::lock_guard lock(FLock);
    FErrorMessage = message;
}

double TTestRequest::GetRunTime() {
    const std::lock_guard lock(FLock);
    return FRunTime;
}

std::string TTestRequest::GetPopupWindowCaption() {
    const std::lock_guard lock(FLock);
    return FText.PopupWindowCaption;
}

std::string TTestRequest::GetWaitForWindowCaption() {
    const std::lock_guard lock(FLock);
    return FText.WaitForWindowCaption;
}

std::uint8_t TTestRequest::GetFinishState() {
    const std::lock_guard lock(FLock);
    return FFinishState;
}

bool TTestRequest::GetWaitForWindow() {
    const std::lock_guard lock(FLock);
    return FText.WaitForWindow;
}

std::string TTestRequest::GetPicFileName() {
    const std::lock_guard lock(FLock);
    return FPicFileName;
}

void TTestRequest::SetPicFileName(const std::string& name) {
    const std::lock_guard lock(FLock);
    FPicFileName = name;
}

bool TTestRequest::GetInvokeFailed() {
    const std::lock_guard lock(FLock);
    return FInvokeFailed;
}

void TTestRequest::SetInvokeFailed(bool value) {
    const std::lock_guard lock(FLock);
    FInvokeFailed = value;
}

bool TTestRequest::GetIgnorePopupWindow() {
    const std::lock_guard lock(FLock);
    return FText.IgnorePopupWindow;
}

bool TTestRequest::GetFinished() {
    const std::lock_guard lock(FLock);
    return FFinished;
}

void TTestRequest::AddFinishState(unsigned bit) {
    if (bit >= 8) return;
    const std::lock_guard lock(FLock);
    FFinishState = static_cast<std::uint8_t>(FFinishState | (1u << bit));
}

// ------------------------------------------------------------------------------------------ between the
// threads

void TTestRequest::Post() {
    PostRequestTask(RUXM_EXECUTE, TIntf<ITestRequest>(this), 0);
}

void TTestRequest::WaitFor() {
    TEngineState& engine = Engine();
    if (!engine.Threads.BeginWait(*FFinishEvent)) return;
    const TWaitResult result = FFinishEvent->WaitFor(FWaitTimeout);
    engine.Threads.EndWait(*FFinishEvent);
    // The regular result is logged too, normally with 0, and a time-out is not. Readers of the log count on
    // it.
    if (result != TWaitResult::TimedOut)
        engine.Logger.Error("WaitForSingleObject Error:" + IntToStr(engine.Platform.Kernel.GetLastError()));
}

void TTestRequest::Finish() {
    {
        const std::lock_guard lock(FLock);
        if (FFinished) return;
        FFinished = true;
    }
    FFinishEvent->SetEvent();
}

// ------------------------------------------------------------------------------------------ execution

bool TTestRequest::Fail(TReturnCode code, const std::string& message, bool clearsPopup) {
    const std::lock_guard lock(FLock);
    FErrorMessage = message;
    FReturnCode = code;
    if (clearsPopup) FText.PopupWindow = false;
    return false;
}

bool TTestRequest::Execute() {
    try {
        ParseAndInvoke();
        return true;
    } catch (const ERUX_URL_ParseError& error) {
        return Fail(rcParseError, error.Message(), true);
    } catch (const ERUX_NotFoundError& error) {
        Fail(rcNotFound, error.Message(), true);
        if (FText.IsFind) {
            // A control that is not there is an answer to Find, not a failure.
            SetReturnCode(rcReturned);
            SetReturnValue(BoolToStr(false));
        }
        return false;
    } catch (const ERUX_NotUniqueError& error) {
        return Fail(rcNotUnique, error.Message(), true);
    } catch (const ERUXException& error) {
        return Fail(rcOtherError, error.Message(), true);
    } catch (const EAdapterException& error) {
        return Fail(rcOtherError, error.Message(), true);
    } catch (const std::exception& error) {
        Fail(rcOtherError, error.what(), false);
        throw;
    }
}

void TTestRequest::ParseAndInvoke() {
    try {
        ParseText();
        const TCursorKeeper keeper;
        Invoke();
    } catch (...) {
        // A failed request never waits for a window.
        const std::lock_guard lock(FLock);
        FText.WaitForWindow = false;
        throw;
    }
}

void TTestRequest::ParseText() {
    TRequestText text;
    try {
        ParseURL(FURL, text);
    } catch (...) {
        const std::lock_guard lock(FLock);
        FText = std::move(text);
        throw;
    }
    const std::lock_guard lock(FLock);
    FText = std::move(text);
}

TIntf<IRUXAdapter> TTestRequest::TakeAdapter(const std::string& target) {
    if (!SameText(target, ToolKitTarget)) {
        Cast<TApplication>(&Platform().Toolkit.Application()).ProcessMessages();
        UpdateFormActions();
        return FindAdapter(FText.Locator, FText.PartMatch);
    }
    const TAdapterEntry* entry = Engine().Registry->FindNamedAdapter("TRUXToolKitAdapter");
    if (!entry) throw ERUXException("TRUXToolKit" + Ansi("没有找到适配器"));
    return entry->Make(nullptr);
}

void TTestRequest::Invoke() {
    const TIntf<IRUXAdapter> adapter = TakeAdapter(GetLocatorTarget(FText.Locator));
    Assert(static_cast<bool>(adapter));
    if (!FText.IsFind) {
        Call(*adapter);
        return;
    }
    SetReturnValue(BoolToStr(true));
    SetReturnCode(rcReturned);
}

void TTestRequest::Call(IRUXAdapter& adapter) {
    const TIntfMethEntry* method =
        FindMethod(GetIntfMetaData(adapter.InterfaceInfo()), FText.MethodName, FText.Args.size());
    if (!method)
        throw ERUXException(Format(Ansi("适配器%s没有方法%s"), {adapter.AdapterName(), FText.MethodName}));
    const std::unique_ptr<TInvContext> context = method->MakeContext();
    ConvertArguments(*method, *context, FText.Args);

    const std::string target = GetLocatorTarget(FText.Locator);
    if (CheckEnabledMethodGroup().IsCheckedMethod(target, FText.MethodName) && !adapter.Enabled())
        throw ERUXException(Format(Ansi("控件[%s]方法[%s]不可用"), {target, FText.MethodName}));
    if (SameText(method->Name, "SetMainFormFront")) {
        // The call brings a form to the front, and that window is no event.
        const std::lock_guard lock(FLock);
        FText.IgnorePopupWindow = true;
    }

    const TDateTime start = Platform().Clock.Now();
    method->Invoke(adapter, *context);
    const double elapsed = Platform().Clock.Now() - start;

    const std::string value =
        method->ResultType ? ValueToText(*method->ResultType, context->GetResultPointer()) : "";
    const std::lock_guard lock(FLock);
    FRunTime = elapsed;
    if (method->ResultType) {
        FReturnValue = value;
        FReturnCode = rcReturned;
    } else if (FReturnCode == rcUnassigned) {
        // A code set during the call stands, such as that of a window which came up meanwhile.
        FReturnCode = rcSuccess;
    }
}

}  // namespace rux
