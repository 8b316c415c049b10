// A blocking socket over few calls of the system: lines, blocks, time-outs and errors are the same
// everywhere.
#pragma once

#include <atomic>
#include <cstdint>
#include <string>

#include "platform/ClockService.h"
#include "platform/SocketService.h"
#include "platform/shared/ReceiveBuffer.h"

namespace rux {

/// Negative times count as 0.
class TBlockSocket : public TTCPBlockSocket {
 public:
    void SetRaiseExcept(bool value) override { FRaiseExcept = value; }
    /// Lingers in whole seconds, rounded up. Closing waits in real time.
    void SetLinger(bool enabled, int milliseconds) override;
    void Bind(const std::string& address, const std::string& port) override;
    void Listen() override;
    bool CanRead(int milliseconds) override;
    std::string RecvString(int milliseconds, std::size_t limit) override;
    std::size_t RecvBufferEx(char* buffer, std::size_t length, int milliseconds) override;
    /// A peer that takes nothing for the time of `sendStall` is an error.
    void SendBuffer(std::string_view data) override;
    int LastError() const override { return FLastError; }
    std::string LastErrorDesc() const override;

 protected:
    enum class TReady { ToRead, ToWrite };
    struct TTransfer {
        int Error = 0;
        std::size_t Count = 0;
    };

    /// `sendStall` in milliseconds.
    TBlockSocket(TClockService& clock, std::uint32_t sendStall) : FClock(clock), FSendStall(sendStall) {}

    // The system's share, on an open socket that never blocks. Errors are answered, 0 for none.
    virtual bool IsOpen() const = 0;
    virtual int LingerOnClose(bool enabled, int seconds) = 0;
    virtual int BindTo(const std::string& address, std::uint16_t port) = 0;
    virtual int StartListening() = 0;
    /// Waits until the tick of the clock: WSAETIMEDOUT when it comes first, WSAECONNRESET once interrupted.
    virtual int Await(TReady what, std::uint64_t deadline) = 0;
    /// These do not wait, WSAEWOULDBLOCK. Nothing received without an error: the peer has ended.
    virtual TTransfer Receive(char* buffer, std::size_t length) = 0;
    virtual TTransfer Send(std::string_view data) = 0;

    /// Notes the error of an operation and raises it where that was asked for; answers whether there is none.
    bool Finish(int error);
    /// The error of a socket that cannot be used.
    int Usable() const;
    void ForgetReceived() { FBuffer.Clear(); }

    std::atomic<bool> FInterrupted{false};

 private:
    std::uint64_t DeadlineAfter(int milliseconds) const;
    int ReceiveSome(std::uint64_t deadline);
    int ReceiveLine(std::string& line, int milliseconds, std::size_t limit);
    int ReceiveInto(char* buffer, std::size_t length, std::uint64_t deadline, std::size_t& count);
    int SendAll(std::string_view data);

    TClockService& FClock;
    const std::uint32_t FSendStall;
    TReceiveBuffer FBuffer;
    bool FRaiseExcept = false;
    int FLastError = 0;
};

}  // namespace rux
