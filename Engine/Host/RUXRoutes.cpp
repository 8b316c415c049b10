#include "Engine/Host/RUXRoutes.h"

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXServerUtils.h"
#include "Engine/Host/RUXServerControl.h"
#include "Engine/Registry/RUXUsableControls.h"
#include "Engine/Request/RUXTestFramework.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {

namespace {

constexpr int FixedRouteStatus = 212;
constexpr int ExePathStatus = 213;
constexpr int RefusedStatus = 504;

/// The general route: a request to the application. The whole uri belongs to it, a question mark too.
std::string AnswerRequest(const std::string& uri, THttpAnswer& answer) {
    const std::string text = Utf8ToAnsi(DecodeURL(uri));
    const TRequestAnswer result = RunTestRequest(Copy(text, 2, static_cast<long long>(text.size())));
    answer.Status = result.Status;
    answer.Body = AnsiToUtf8(result.Text);
    answer.Headers.push_back("RunTime:" + result.RunTime);
    answer.Headers.push_back("MemoryUsage:" + GetMemoryUsage());
    return AnsiToUtf8(result.Comment);
}

}  // namespace

THttpAnswer ProcessHttpRequest(const std::string& method, const std::string& uri) {
    GetLogger().Info(LogTimeStamp() + "Request :" + uri);
    THttpAnswer answer;
    answer.Status = RefusedStatus;
    // The blank behind the value belongs to it.
    answer.Headers.push_back("Content-Type: text/plain ");
    std::string comment;
    const bool get = SameText(method, "GET"), post = SameText(method, "POST");
    if (get && SameText(uri, "/GetCanUseControls")) {
        answer.Status = FixedRouteStatus;
        answer.Body = AnsiToUtf8(GetUsableControlsText(false));
    } else if ((get || post) && SameText(uri, "/ClearServer")) {
        answer.Status = FixedRouteStatus;
        answer.Body = AnsiToUtf8(ClearServer());
    } else if (get && SameText(uri, "/GetExePath")) {
        answer.Status = ExePathStatus;
        answer.Body = AnsiToUtf8(GetExePath());
    } else if (get || post) {
        comment = AnswerRequest(uri, answer);
    }
    answer.Headers.push_back("ReturnCodeComment:" + comment);
    return answer;
}

}  // namespace rux
