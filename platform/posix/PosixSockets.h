// The socket service on Linux.
#pragma once

#include <mutex>
#include <string>

#include "platform/SocketService.h"
#include "platform/posix/FileDescriptor.h"
#include "platform/posix/WaitClock.h"
#include "platform/shared/BlockSocket.h"
#include "platform/shared/ServiceLimits.h"

namespace rux {

struct TSocketOptions {
    /// What "0.0.0.0" is narrowed to when a socket is bound; empty leaves it alone.
    std::string AnyAddress = {};
};

/// The descriptor never blocks; waiting is done by the clock.
class TPosixSocket final : public TBlockSocket {
 public:
    TPosixSocket(TWaitClock& clock, const TSocketOptions& options)
        : TBlockSocket(clock, SendStallLimit), FClock(clock), FOptions(options) {}
    ~TPosixSocket() override { Replace({}); }

    void CreateSocket() override;
    /// Never waits: with nobody there the error is WSAEWOULDBLOCK.
    TSocketHandle Accept() override;
    void SetSocket(TSocketHandle handle) override;
    void CloseSocket() override;
    void Interrupt() override;

 protected:
    bool IsOpen() const override { return static_cast<bool>(FSocket); }
    int LingerOnClose(bool enabled, int seconds) override;
    int BindTo(const std::string& address, std::uint16_t port) override;
    int StartListening() override;
    int Await(TReady what, std::uint64_t deadline) override;
    TTransfer Receive(char* buffer, std::size_t length) override;
    TTransfer Send(std::string_view data) override;

 private:
    void Replace(TFileDescriptor socket);

    TWaitClock& FClock;
    const TSocketOptions& FOptions;
    /// Guards the change of the descriptor against Interrupt; only the socket's own thread changes it.
    std::mutex FLock;
    TFileDescriptor FSocket;
};

/// Its sockets must not outlive it.
class TPosixSockets : public TSocketService {
 public:
    explicit TPosixSockets(TWaitClock& clock, TSocketOptions options = {})
        : FClock(clock), FOptions(std::move(options)) {}
    std::unique_ptr<TTCPBlockSocket> CreateTCPBlockSocket() override;
    bool IsPortBound(std::uint16_t port) override;

 private:
    TWaitClock& FClock;
    const TSocketOptions FOptions;
};

}  // namespace rux
