// The socket service on Windows.
#pragma once

#include <mutex>
#include <string>

#include "platform/SocketService.h"
#include "platform/shared/BlockSocket.h"
#include "platform/shared/ServiceLimits.h"
#include "platform/win32/Win32Clock.h"
#include "platform/win32/Win32Handle.h"

namespace rux {

/// The system's socket never blocks; waiting is done by events, in real time.
class TWin32Socket final : public TBlockSocket {
 public:
    TWin32Socket(TClockService& clock, std::uint32_t sendStall);
    ~TWin32Socket() override { Replace(INVALID_SOCKET); }

    void CreateSocket() override;
    TSocketHandle Accept() override;
    void SetSocket(TSocketHandle handle) override;
    void CloseSocket() override;
    /// A listening socket still keeps its port until it is closed.
    void Interrupt() override;

 protected:
    bool IsOpen() const override { return FSocket != INVALID_SOCKET; }
    int LingerOnClose(bool enabled, int seconds) override;
    int BindTo(const std::string& address, std::uint16_t port) override;
    int StartListening() override;
    int Await(TReady what, std::uint64_t deadline) override;
    TTransfer Receive(char* buffer, std::size_t length) override;
    TTransfer Send(std::string_view data) override;

 private:
    int ReadyNow(TReady what, bool& ready) const;
    int Arm(TReady what) const;
    void Replace(TSocketHandle socket);

    TClockService& FClock;
    /// Guards the change of the socket against Interrupt; only the socket's own thread changes it.
    std::mutex FLock;
    TSocketHandle FSocket = INVALID_SOCKET;
    /// Set by the network for FSocket, and once for good by Interrupt.
    const TWin32Handle FTraffic;
    const TWin32Handle FStop;
};

/// Its sockets must not outlive it.
class TWin32Sockets : public TSocketService {
 public:
    /// Starts the network, which may load libraries; the calls of the service load none. The network is not
    /// ended with the service: that would wait for threads of its own, which may need the loader's lock.
    explicit TWin32Sockets(std::uint32_t sendStall = SendStallLimit);
    /// Raises EOSError when the system has no more to give.
    std::unique_ptr<TTCPBlockSocket> CreateTCPBlockSocket() override;
    bool IsPortBound(std::uint16_t port) override;

 private:
    TWin32Clock FClock;
    const std::uint32_t FSendStall;
};

}  // namespace rux
