#include "Engine/Start/RUXApplication.h"

#include "Engine/Host/RUXPort.h"
#include "Engine/Host/RUXServerControl.h"
#include "Engine/Start/RUXRegistration.h"
#include "Engine/TaskCenter/RUXAutoTask.h"
#include "Engine/TaskCenter/RUXShowWindowHook.h"
#include "platform/KernelService.h"
#include "rtl/CodePage.h"

namespace rux {

void CheckHost(TPlatform& platform) {
    TKernelService& kernel = platform.Kernel;
    const auto end = [&](std::string_view text, unsigned code) {
        kernel.MessageBoxA(Ansi(text), "RUX");
        kernel.ExitProcess(code);
    };
    if (kernel.HasOwnRunTime()) end("目标程序必须带 RTL、VCL 包编译", 255);
    if (!kernel.HasModule("vcl100.bpl")) end("目标程序必须使用 Delphi 2006/2007 编译", 254);
}

TRUXApplication::TRUXApplication(TPlatform& platform) : FRegisterClassHook(platform.Code), FState(platform) {
    RegisterEverything(FState);
}

TRUXApplication::~TRUXApplication() {
    Stop();
}

void TRUXApplication::Start() {
    FState.ServerPort = AcquireServerPort();
    CreateTaskCenter();
    const bool watched = InstallShowWindowHook();
    PrepareFolders();
    // Told only now: the folders that have just been made are the log's too.
    if (!watched) FState.Logger.Warn("ShowWindow cannot be patched: windows are not watched");
    FDaemon = std::make_unique<TRUXHttpDaemon>(FState.ServerPort, ProcessHttpRequest);
}

void TRUXApplication::Stop() {
    if (FDaemon) FDaemon->Terminate();
    RemoveShowWindowHook();
    FreeTaskCenter();
    // Nobody is left to serve what is still open.
    if (FDaemon) FDaemon->CloseConnections();
    FState.Threads.Release();
    FState.Threads.WaitForNone();
    FDaemon.reset();
    FState.Logger.Close();
}

}  // namespace rux
