// The blocking TCP socket that the daemon speaks through. An object is used by one thread at a time, except
// for Interrupt.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace rux {

/// A connection that was accepted but not yet taken over by a socket object; INVALID_SOCKET for none.
using TSocketHandle = std::intptr_t;
inline constexpr TSocketHandle INVALID_SOCKET = -1;
/// LastError of a receive that ran out of time.
inline constexpr int WSAETIMEDOUT = 10060;
/// LastError when the peer is gone or the socket was interrupted.
inline constexpr int WSAECONNRESET = 10054;
/// LastError of RecvString when the line grew past the caller's limit.
inline constexpr int WSAEMSGSIZE = 10040;

class TTCPBlockSocket {
 public:
    /// Closes the socket.
    virtual ~TTCPBlockSocket() = default;

    /// Makes the following errors raise Exception with LastErrorDesc as text; off at first.
    virtual void SetRaiseExcept(bool value) = 0;
    virtual void CreateSocket() = 0;
    virtual void SetLinger(bool enabled, int milliseconds) = 0;
    /// The host may narrow the address "0.0.0.0" to one of its own choice.
    virtual void Bind(const std::string& address, const std::string& port) = 0;
    virtual void Listen() = 0;
    /// True when a connection waits to be accepted, or data to be read, within the time.
    virtual bool CanRead(int milliseconds) = 0;
    /// Does not wait: with no connection there, LastError says so.
    virtual TSocketHandle Accept() = 0;
    /// Takes over an accepted connection.
    virtual void SetSocket(TSocketHandle handle) = 0;

    /// A line up to CR LF, which is cut off; a lone LF is no end. Empty with LastError set on an error, on
    /// time running out between two packets, and past `limit` bytes.
    virtual std::string RecvString(int milliseconds, std::size_t limit) = 0;
    /// Up to `length` bytes into `buffer`; answers how many came before an error or the time-out.
    virtual std::size_t RecvBufferEx(char* buffer, std::size_t length, int milliseconds) = 0;
    /// Writes all of it, or sets LastError: also when the peer takes nothing for a long time.
    virtual void SendBuffer(std::string_view data) = 0;
    virtual void CloseSocket() = 0;

    /// 0 means that the last operation had no error.
    virtual int LastError() const = 0;
    virtual std::string LastErrorDesc() const = 0;
    /// Any thread: wakes the thread that waits in an operation; from now on all of them fail.
    virtual void Interrupt() = 0;
};

class TSocketService {
 public:
    virtual ~TSocketService() = default;
    virtual std::unique_ptr<TTCPBlockSocket> CreateTCPBlockSocket() = 0;
    /// True when binding `port` on any address fails because it is taken; False also when the network cannot
    /// be asked.
    virtual bool IsPortBound(std::uint16_t port) = 0;
};

}  // namespace rux
