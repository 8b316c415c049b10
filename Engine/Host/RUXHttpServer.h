// The HTTP daemon: a listening thread, and a thread for each connection.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

#include "Engine/Host/RUXHttpConnection.h"

namespace rux {

class TEvent;
class TTCPBlockSocket;
class TThreadHandle;

/// The sockets of the connections that are being served.
class THttpConnections {
 public:
    void Add(TTCPBlockSocket& socket);
    void Remove(TTCPBlockSocket& socket);
    /// Ends all connections, and every one that is added from now on.
    void InterruptAll();

 private:
    std::mutex FLock;
    bool FInterrupted = false;
    std::vector<TTCPBlockSocket*> FSockets;
};

/// Listens on all addresses until it is terminated or the application is. There is no limit to the number of
/// workers; none of them is stopped by the daemon's end.
class TRUXHttpDaemon {
 public:
    /// Starts to listen at once, on a thread of its own. Raises EOSError when no thread can be made.
    TRUXHttpDaemon(std::uint16_t port, THttpHandler handler);
    ~TRUXHttpDaemon();

    /// Waits until the daemon listens; False when it could not, and has ended.
    bool WaitUntilListening();
    /// Tells the listening thread to end and waits until it has.
    void Terminate();
    /// Ends all connections: nobody is answered any more.
    void CloseConnections() { FConnections.InterruptAll(); }

 private:
    void Execute();
    bool Open();
    void ServeListener();
    void AcceptOne();
    void StartWorker(std::intptr_t handle);

    const std::uint16_t FPort;
    const THttpHandler FHandler;
    std::unique_ptr<TTCPBlockSocket> FListener;
    std::unique_ptr<TEvent> FOpened;
    std::atomic<bool> FListening{false};
    std::atomic<bool> FTerminated{false};
    THttpConnections FConnections;
    std::unique_ptr<TThreadHandle> FThread;
};

}  // namespace rux
