// The end of a request: what its caller gets to read, and what the log does.
#include "Engine/Core/RUXEngineState.h"
#include "Engine/Request/RUXTestFramework.h"
#include "platform/ClockService.h"
#include "platform/KernelService.h"
#include "rtl/Numbers.h"

namespace rux {

namespace {

constexpr double SecondsOfDay = 24.0 * 3600.0;
/// Added before formatting, so that a time of nothing is "0".
constexpr double RunTimeNudge = 1e-12;

/// The text of the answer. An error that an earlier request left behind is carried by whichever ends next.
std::string AnswerText(ITestRequest& request) {
    const std::string pending = Engine().PendingNodeError.Take();
    TLogger& log = GetLogger();
    std::string text;
    if (IsErrorCode(request.GetReturnCode())) {
        log.Error(LogTimeStamp() + request.GetURL());
        text = request.GetErrorMessage();
    } else if (!pending.empty()) {
        request.SetReturnCode(rcPreviousNodeFailed);
        log.Error(LogTimeStamp() + request.GetURL() + "::" + pending);
    } else {
        text = request.GetReturnValue();
    }
    return pending.empty() ? text : text + "\r\n" + pending;
}

}  // namespace

TRequestAnswer RunTestRequest(const std::string& url) {
    const TIntf<ITestRequest> request(new TTestRequest(url));
    TClockService& clock = Platform().Clock;
    const TDateTime start = clock.Now();
    request->Post();
    request->WaitFor();
    const double elapsed = clock.Now() - start;

    TRequestAnswer answer;
    answer.Text = AnswerText(*request);
    const TReturnCode code = request->GetReturnCode();
    answer.Status = ReturnCodeToStatus(code);
    answer.Comment = ReturnCodeComment(code);
    // The time inside the method is counted twice, once alone and once within the whole: controllers have
    // always been given this sum.
    answer.RunTime = FormatFloat4((request->GetRunTime() + elapsed) * SecondsOfDay + RunTimeNudge);
    GetLogger().Info(LogTimeStamp() + "Finished_" + url);
    return answer;
}

std::string GetMemoryUsage() {
    const std::optional<std::uint64_t> bytes = Platform().Kernel.GetPagefileUsage();
    return bytes ? FormatFixed(static_cast<double>(*bytes) / 1000 / 1000, 4) : std::string();
}

}  // namespace rux
