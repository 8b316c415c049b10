// The request object, and the only entry of the request core.
#pragma once

#include <memory>
#include <mutex>
#include <string>

#include "Engine/Core/RUXClasses.h"
#include "Engine/Core/RUXLimits.h"
#include "Engine/Request/RUXRequestText.h"

namespace rux {

class TEvent;

/// Created on a worker, executed on the user-interface thread; lives as long as anything holds a reference.
class TTestRequest final : public TInterfacedObject<ITestRequest> {
 public:
    /// Raises EOSError when the system gives no event. `waitTimeout` in milliseconds.
    explicit TTestRequest(std::string url, std::uint32_t waitTimeout = RequestWaitTimeout);
    ~TTestRequest() override;

    bool GetPopupWindow() override;
    bool GetCloseUnExpactPopupWindow() override;
    TReturnCode GetReturnCode() override;
    void SetReturnCode(TReturnCode code) override;
    std::string GetReturnValue() override;
    void SetReturnValue(const std::string& value) override;
    std::string GetErrorMessage() override;
    void SetErrorMessage(const std::string& message) override;
    double GetRunTime() override;
    const std::string& GetURL() override { return FURL; }
    TObjectPool& GetObjectPool() override { return FObjectPool; }
    std::string GetPopupWindowCaption() override;
    std::string GetWaitForWindowCaption() override;
    std::uint8_t GetFinishState() override;
    bool GetWaitForWindow() override;
    std::string GetPicFileName() override;
    void SetPicFileName(const std::string& name) override;
    bool GetInvokeFailed() override;
    void SetInvokeFailed(bool value) override;
    bool GetIgnorePopupWindow() override;
    bool GetFinished() override;
    bool Execute() override;
    void Post() override;
    void WaitFor() override;
    void Finish() override;
    void AddFinishState(unsigned bit) override;

 private:
    void ParseText();
    void Invoke();
    TIntf<class IRUXAdapter> TakeAdapter(const std::string& target);
    void Call(class IRUXAdapter& adapter);
    void ParseAndInvoke();
    bool Fail(TReturnCode code, const std::string& message, bool clearsPopup);

    const std::string FURL;
    const std::uint32_t FWaitTimeout;
    /// After a time-out of the wait both threads may touch the request at once.
    mutable std::mutex FLock;
    TRequestText FText;
    TReturnCode FReturnCode = rcUnassigned;
    std::string FReturnValue;
    std::string FErrorMessage;
    double FRunTime = 0;
    bool FFinished = false;
    std::uint8_t FFinishState = 0;
    std::string FPicFileName;
    bool FInvokeFailed = false;
    TObjectPool FObjectPool;
    std::unique_ptr<TEvent> FFinishEvent;
};

/// What goes back to the caller of a request.
struct TRequestAnswer {
    int Status = 0;
    std::string Text;
    std::string Comment;
    std::string RunTime;
};

/// Runs a request to its end, on the calling worker thread, and renders its answer. All texts are in the code
/// page.
TRequestAnswer RunTestRequest(const std::string& url);

/// Committed memory of the process in millions of bytes with four decimals; empty when the system cannot
/// tell.
std::string GetMemoryUsage();

}  // namespace rux
