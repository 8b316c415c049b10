#include "Engine/Core/RUXThreads.h"

#include <algorithm>

#include "Engine/Core/RUXEngineState.h"
#include "platform/KernelService.h"

namespace rux {

TEngineThreads::TEngineThreads() = default;
TEngineThreads::~TEngineThreads() = default;

std::unique_ptr<TThreadHandle> TEngineThreads::Start(std::function<void()> body) {
    {
        const std::lock_guard lock(FLock);
        if (!FNone) FNone = Platform().Kernel.CreateEventA();
        ++FRunning;
    }
    // Leaves when the thread's own copy of the body goes, also when the body raises or no thread could be
    // made.
    const auto leave = [this](std::function<void()>* held) {
        delete held;
        Leave();
    };
    const std::shared_ptr<std::function<void()>> held(new std::function<void()>(std::move(body)), leave);
    return Platform().Kernel.StartThread([held] { (*held)(); });
}

void TEngineThreads::Leave() {
    const std::lock_guard lock(FLock);
    if (--FRunning == 0) FNone->SetEvent();
}

bool TEngineThreads::BeginWait(TEvent& event) {
    const std::lock_guard lock(FLock);
    if (!FReleased) FWaiting.push_back(&event);
    return !FReleased;
}

void TEngineThreads::EndWait(TEvent& event) {
    const std::lock_guard lock(FLock);
    std::erase(FWaiting, &event);
}

void TEngineThreads::Release() {
    Platform().Kernel.KeepOutNewThreads();
    const std::lock_guard lock(FLock);
    FReleased = true;
    for (TEvent* event : FWaiting) event->SetEvent();
}

void TEngineThreads::WaitForNone() {
    while (true) {
        {
            const std::lock_guard lock(FLock);
            if (FRunning == 0) return;
        }
        FNone->WaitFor(WaitForever);
    }
}

}  // namespace rux
