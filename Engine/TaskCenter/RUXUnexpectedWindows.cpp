#include "Engine/TaskCenter/RUXUnexpectedWindows.h"

#include <string>
#include <string_view>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXLimits.h"
#include "Engine/Core/RUXServerUtils.h"
#include "Engine/Core/RUXUtils.h"
#include "Engine/TaskCenter/RUXTaskMessages.h"
#include "Engine/TaskCenter/RUXWindowPic.h"
#include "Engine/Virtual/RUXVirtualControls.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Forms.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"
#include "rtl/RegExpr.h"
#include "rtl/Stack.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// PopupWindow's value: a whole caption, case aside, or with ".*" at its end a piece that stands anywhere in
/// the caption. Nothing matches everything.
bool MatchesPopup(std::string_view expected, std::string_view caption) {
    if (IsBlank(expected)) return true;
    if (!expected.ends_with(".*")) return SameText(expected, caption);
    const std::string_view piece = expected.substr(0, expected.size() - 2);
    return IsBlank(piece) || AnsiPos(piece, caption) > 0;
}

/// WaitForWindow's value is a pattern. One that cannot be read matches nothing: raised from here, its error
/// would come up as a box, and be met again by that box.
bool MatchesAwaited(const std::string& pattern, const std::string& caption) {
    if (IsBlank(pattern)) return true;
    try {
        TRegExpr expression(pattern);
        const bool found = expression.Exec(caption);
        if (expression.BudgetExceeded()) GetLogger().Warn("WaitForWindow=" + pattern + ": too many steps");
        return found;
    } catch (const Exception& error) {
        GetLogger().Warn("WaitForWindow=" + pattern + ": " + error.Message());
        return false;
    }
}

void Expect(const TIntf<ITestRequest>& request, const std::string& caption) {
    request->SetReturnValue(caption);
    request->SetReturnCode(rcWindowPopped);
    PostRequestTask(RUXM_FINISHSTEP, request, rfWindowDone);
}

/// The request's error, and the name under which the picture will be kept.
void Describe(ITestRequest& request, HWnd window) {
    const TVirtualWindow shown(window);
    const std::string description = shown.GetWindowReport();
    const std::string picture = BuildWindowPicName(request.GetURL(), shown.Caption());
    request.SetPicFileName(picture);
    request.SetErrorMessage(description + "\r\nPicFileName:" + GetPicUrlPrefix() + picture);
}

void ReportUnexpected(const TIntf<ITestRequest>& request, HWnd window, const std::string& caption) {
    TEngineState& engine = Engine();
    Describe(*request, window);
    engine.Logger.Info(request->GetURL() + " Unwin:" + caption +
                       " Expand:" + request->GetPopupWindowCaption());
    request->SetReturnCode(rcUnexpectedWindow);
    // The reports of windows that came up together nest here.
    if (StackRoom() > RequestStackReserve)
        Cast<TApplication>(&engine.Platform.Toolkit.Application()).ProcessMessages();
    // The picture is taken before the window is closed, since posted messages keep their order.
    PostRequestTask(RUXM_SAVEWINDOWPIC, request, static_cast<LParam>(window));
    if (request->GetCloseUnExpactPopupWindow()) engine.TaskCenter.PostTask(RUXM_CLOSEWINDOW, window, 0);
    if (request->GetInvokeFailed() || request->GetFinished()) {
        // Nobody will read this request's error, or nobody soon: whoever ends next carries it.
        engine.PendingNodeError.Append("\r\n" + Format(Ansi("[%s]执行异常"), {request->GetURL()}) + "\r\n" +
                                       request->GetErrorMessage());
        PostRequestTask(RUXM_FINISHSTEP, request, rfInvokeDone);
    }
    if (request->GetPopupWindow())
        PostRequestTask(RUXM_FINISHSTEP, request, rfWindowDone);
    else
        request->Finish();
}

}  // namespace

void HandleWindowShown(const TIntf<ITestRequest>& request, HWnd window) {
    if (Engine().RequestStack.Count() == 0) return;
    const std::string caption = GetWindowCaption(window);
    if (request->GetPopupWindow() && MatchesPopup(request->GetPopupWindowCaption(), caption)) {
        Expect(request, caption);
        return;
    }
    if (request->GetWaitForWindow()) {
        // Any other window is simply not the one, and stays up.
        if (MatchesAwaited(request->GetWaitForWindowCaption(), caption)) Expect(request, caption);
        return;
    }
    ReportUnexpected(request, window, caption);
}

void CloseUnexpectedWindow(HWnd window) {
    GetLogger().Info(LogTimeStamp() + "Close UnExWin:" + GetRawWindowText(window));
    Platform().Windows.SendMessageA(window, WM_CLOSE, 0, 0);
}

void SaveUnexpectedWindowPic(ITestRequest& request, HWnd window) {
    SaveWindowPic(window, GetPicDir() + "\\" + request.GetPicFileName());
}

}  // namespace rux
