// The socket service on Linux.
#pragma once

#include <atomic>
#include <mutex>
#include <string>

#include "platform/SocketService.h"
#include "platform/posix/FileDescriptor.h"
#include "platform/posix/ReceiveBuffer.h"
#include "platform/posix/WaitClock.h"

namespace rux {

struct TSocketOptions {
    /// What "0.0.0.0" is narrowed to when a socket is bound; empty leaves it alone.
    std::string AnyAddress = {};
};

/// The descriptor never blocks; waiting is done by the clock. Negative times count as 0.
class TPosixSocket final : public TTCPBlockSocket {
 public:
    TPosixSocket(TWaitClock& clock, const TSocketOptions& options) : FClock(clock), FOptions(options) {}
    ~TPosixSocket() override { Replace({}); }

    void SetRaiseExcept(bool value) override { FRaiseExcept = value; }
    void CreateSocket() override;
    /// Lingers in whole seconds, rounded up. Closing waits in real time.
    void SetLinger(bool enabled, int milliseconds) override;
    void Bind(const std::string& address, const std::string& port) override;
    void Listen() override;
    bool CanRead(int milliseconds) override;
    /// Never waits: with nobody there the error is WSAEWOULDBLOCK.
    TSocketHandle Accept() override;
    void SetSocket(TSocketHandle handle) override;
    std::string RecvString(int milliseconds, std::size_t limit) override;
    std::size_t RecvBufferEx(char* buffer, std::size_t length, int milliseconds) override;
    /// A peer that takes nothing for SendStallLimit is an error.
    void SendBuffer(std::string_view data) override;
    void CloseSocket() override;
    int LastError() const override { return FLastError; }
    std::string LastErrorDesc() const override;
    void Interrupt() override;

 private:
    // These answer an error, 0 for none.
    int Usable() const;
    int Await(short events, std::uint64_t deadline);
    int ReceiveSome(std::uint64_t deadline);
    int ReceiveLine(std::string& line, int milliseconds, std::size_t limit);
    int ReceiveInto(char* buffer, std::size_t length, std::uint64_t deadline, std::size_t& count);
    int SendAll(std::string_view data);
    int BindTo(const std::string& address, const std::string& port);
    int SetOption(int level, int option, const void* value, unsigned size);

    /// Notes the error of an operation and raises it where that was asked for; answers whether there is none.
    bool Finish(int error);
    void Replace(TFileDescriptor socket);

    TWaitClock& FClock;
    const TSocketOptions& FOptions;
    /// Guards the change of the descriptor against Interrupt; only the socket's own thread changes it.
    std::mutex FLock;
    TFileDescriptor FSocket;
    TReceiveBuffer FBuffer;
    std::atomic<bool> FInterrupted{false};
    bool FRaiseExcept = false;
    int FLastError = 0;
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
