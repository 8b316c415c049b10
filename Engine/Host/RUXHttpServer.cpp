#include "Engine/Host/RUXHttpServer.h"

#include <algorithm>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXLimits.h"
#include "platform/KernelService.h"
#include "platform/SocketService.h"
#include "platform/toolkit/Forms.h"
#include "rtl/Exceptions.h"
#include "rtl/Numbers.h"

namespace rux {

namespace {

constexpr int LingerMilliseconds = 10000;
/// A listener that fails again and again, because the process has no descriptors left, must not eat a
/// processor.
constexpr std::uint32_t PauseAfterFailure = 100;

void DebugText(std::string_view format, std::initializer_list<TFormatArg> args) {
    Platform().Kernel.OutputDebugStringA(Format(format, args));
}

}  // namespace

// ------------------------------------------------------------------------------------------ connections

void THttpConnections::Add(TTCPBlockSocket& socket) {
    const std::lock_guard lock(FLock);
    FSockets.push_back(&socket);
    if (FInterrupted) socket.Interrupt();
}

void THttpConnections::Remove(TTCPBlockSocket& socket) {
    const std::lock_guard lock(FLock);
    std::erase(FSockets, &socket);
}

void THttpConnections::InterruptAll() {
    const std::lock_guard lock(FLock);
    FInterrupted = true;
    for (TTCPBlockSocket* socket : FSockets) socket->Interrupt();
}

// ------------------------------------------------------------------------------------------ the daemon

TRUXHttpDaemon::TRUXHttpDaemon(std::uint16_t port, THttpHandler handler)
    : FPort(port),
      FHandler(std::move(handler)),
      FListener(Platform().Sockets.CreateTCPBlockSocket()),
      FOpened(Platform().Kernel.CreateEventA()),
      FThread(Engine().Threads.Start([this] { Execute(); })) {}

TRUXHttpDaemon::~TRUXHttpDaemon() {
    Terminate();
}

bool TRUXHttpDaemon::WaitUntilListening() {
    FOpened->WaitFor(WaitForever);
    FOpened->SetEvent();  // for whoever asks next
    return FListening;
}

void TRUXHttpDaemon::Terminate() {
    FTerminated = true;
    FListener->Interrupt();
    Platform().Kernel.KeepOutNewThreads();
    FThread->WaitFor(WaitForever);
}

void TRUXHttpDaemon::Execute() {
    try {
        FListening = Open();
    } catch (const std::exception& error) {
        DebugText("svr bind %s", {error.what()});
    }
    FOpened->SetEvent();
    if (FListening) ServeListener();
    FListener->CloseSocket();
}

bool TRUXHttpDaemon::Open() {
    FListener->CreateSocket();
    FListener->SetLinger(true, LingerMilliseconds);
    FListener->Bind("0.0.0.0", IntToStr(FPort));
    if (FListener->LastError() == 0) FListener->Listen();
    if (FListener->LastError() == 0) return true;
    DebugText("svr bind %s", {FListener->LastErrorDesc()});
    return false;
}

void TRUXHttpDaemon::ServeListener() {
    FListener->SetRaiseExcept(true);
    auto& application = Cast<TApplication>(&Platform().Toolkit.Application());
    while (!FTerminated && !application.Terminated()) {
        try {
            if (FListener->CanRead(HttpAcceptTimeout)) AcceptOne();
        } catch (const std::exception& error) {
            if (FTerminated) return;
            DebugText("svr execute error %s", {error.what()});
            Platform().Kernel.Sleep(PauseAfterFailure);
        }
    }
}

void TRUXHttpDaemon::AcceptOne() {
    const TSocketHandle handle = FListener->Accept();
    if (FListener->LastError() != 0)
        DebugText("svr accept %s", {FListener->LastErrorDesc()});
    else if (handle == INVALID_SOCKET)
        DebugText("svr accept socket %s %d", {FListener->LastErrorDesc(), static_cast<long long>(handle)});
    else
        StartWorker(handle);
}

void TRUXHttpDaemon::StartWorker(std::intptr_t handle) {
    const std::shared_ptr<TTCPBlockSocket> socket = Platform().Sockets.CreateTCPBlockSocket();
    socket->SetSocket(handle);
    Engine().Threads.Start([this, socket] {
        FConnections.Add(*socket);
        struct TRemove {
            THttpConnections& Connections;
            TTCPBlockSocket& Socket;
            ~TRemove() { Connections.Remove(Socket); }
        } const remove{FConnections, *socket};
        THttpConnection(*socket, FHandler).Serve();
    });
}

}  // namespace rux
