// The task centre: requests travel through the application's own message queue to its hidden window, and
// whatever message loop is running dispatches them. So they nest on the stack of the user-interface thread,
// and RequestStack mirrors that nesting.
#pragma once

#include <cstdint>
#include <deque>
#include <mutex>
#include <vector>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/TaskCenter/RUXRequestMail.h"
#include "platform/Types.h"

namespace rux {

/// Its handlers all run on the user-interface thread; they are re-entrant. It is made and freed on the thread
/// that loads and unloads the library, which may be another one; never freed while a handler runs.
class TRUXTaskCenter final : public ITaskCenter {
 public:
    /// Subclasses the application's hidden window. Raises EOSError when there is none.
    TRUXTaskCenter();
    /// Puts the window's procedure back and drops the messages that are still queued.
    ~TRUXTaskCenter();

    bool PostTask(unsigned message, WParam wParam, LParam lParam) override;
    bool PostRequest(unsigned message, const TIntf<ITestRequest>& request, LParam lParam) override;
    ITestRequest* Running() const override;
    void Bury(TObjectPool pool) override;

    /// A channel that is reserved: the message is answered 0 and goes no further.
    unsigned RegisteredMessage() const { return FRegisteredMessage; }

 private:
    LResult WindowProc(HWnd window, unsigned message, WParam wParam, LParam lParam);
    void RunSetAside();
    bool MayNest() const;

    LResult TaskCenterWndProc(HWnd window, unsigned message, WParam wParam, LParam lParam);
    void HandleTaskMessage(unsigned message, WParam wParam, LParam lParam);
    void HandleRequestMessage(unsigned message, const TIntf<ITestRequest>& request, LParam lParam);
    void HandleCopyData(LParam lParam);
    void Execute(const TIntf<ITestRequest>& request);
    void Invoke(const TIntf<ITestRequest>& request);
    void FinishStep(const TIntf<ITestRequest>& request, unsigned bit);
    void Pop(ITestRequest& request);
    void FreeMadeBy(const ITestRequest& request);
    void EmptyGraves();

    TRequestMail FMail;
    HWnd FWindow = 0;
    unsigned FRegisteredMessage = 0;
    /// The procedure in the window, and the one under it that runs a request. What a request lets through
    /// ends in the border around the second one, so that the first goes on with the requests that wait.
    TWndProc FInstance = 0;
    TWndProc FHandler = 0;
    TWndProc FPreviousProc = 0;

    /// Requests whose Execute is on the stack, outermost first, each with the request whose pool it fills.
    struct TFrame {
        TIntf<ITestRequest> Request;
        TIntf<ITestRequest> PoolOwner;
    };
    std::vector<TFrame> FFrames;
    /// Requests that wait for the stack to come down, in order.
    std::deque<TIntf<ITestRequest>> FSetAside;

    std::mutex FGraveLock;
    std::vector<TObjectPool> FGraves;
};

/// Both do nothing when called a second time.
void CreateTaskCenter();
void FreeTaskCenter();

}  // namespace rux
