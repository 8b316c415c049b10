#include "Engine/TaskCenter/RUXFinishNotify.h"

#include "Engine/Core/RUXEngineState.h"
#include "Engine/TaskCenter/RUXTaskMessages.h"

namespace rux {

namespace {

/// A sleep that the engine's end cuts short; the request is then no longer waited for.
void SleepUnlessEnding(std::uint32_t delay) {
    const std::unique_ptr<TEvent> event = Platform().Kernel.CreateEventA();
    if (!Engine().Threads.BeginWait(*event)) return;
    event->WaitFor(delay);
    Engine().Threads.EndWait(*event);
}

}  // namespace

std::unique_ptr<TThreadHandle> StartFinishNotifyThread(const TIntf<ITestRequest>& request,
                                                       std::uint32_t delay) {
    return Engine().Threads.Start([request, delay] {
        SleepUnlessEnding(delay);
        if (Engine().DeferredFinish)
            PostRequestTask(RUXM_FINISHSTEP, request, rfInvokeDone);
        else
            request->Finish();
    });
}

}  // namespace rux
