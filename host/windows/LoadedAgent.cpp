#include "host/windows/LoadedAgent.h"

#include <windows.h>

#include <objbase.h>

namespace rux {

TLoadedAgent::TObjectThread::TObjectThread()
    : FThread(::GetCurrentThreadId()), FEntered(SUCCEEDED(::CoInitialize(nullptr))) {}

TLoadedAgent::TObjectThread::~TObjectThread() {
    // Another thread's share would be taken from whoever set that up.
    if (FEntered && FThread == ::GetCurrentThreadId()) ::CoUninitialize();
}

TLoadedAgent::TLoadedAgent() : FPlatform(FServices.Platform()), FApplication(FPlatform) {
    CheckHost(FPlatform);
    FApplication.Start();
}

TLoadedAgent::~TLoadedAgent() {
    FApplication.Stop();
}

}  // namespace rux
