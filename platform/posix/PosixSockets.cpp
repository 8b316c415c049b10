#include "platform/posix/PosixSockets.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <algorithm>

#include "platform/posix/PosixLimits.h"
#include "platform/posix/SocketErrors.h"
#include "rtl/Exceptions.h"
#include "rtl/Numbers.h"

namespace rux {
namespace {

constexpr const char* AnyAddress = "0.0.0.0";
constexpr std::string_view LineEnd = "\r\n";
constexpr int On = 1;

int LastSystemSocketError() {
    return SocketErrorOf(errno);
}

TFileDescriptor MakeSocket() {
    return TFileDescriptor(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

std::uint32_t NotNegative(int milliseconds) {
    return static_cast<std::uint32_t>(std::max(milliseconds, 0));
}

int BindDescriptor(int socket, in_addr address, std::uint16_t port) {
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_addr = address;
    name.sin_port = htons(port);
    // A port whose last connections are still dying down is free; one that is listened on is not.
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &On, sizeof On);
    const bool bound = ::bind(socket, reinterpret_cast<const sockaddr*>(&name), sizeof name) == 0;
    return bound ? 0 : LastSystemSocketError();
}

/// Bytes that a line without an end has at least: a CR at the very end may belong to its end.
std::size_t UnfinishedLength(std::string_view data) {
    return data.ends_with(LineEnd.front()) ? data.size() - 1 : data.size();
}

}  // namespace

// --------------------------------------------------------------------------------------------- errors

bool TPosixSocket::Finish(int error) {
    FLastError = error;
    if (error != 0 && FRaiseExcept) throw Exception(LastErrorDesc());
    return error == 0;
}

std::string TPosixSocket::LastErrorDesc() const {
    return SocketErrorText(FLastError);
}

int TPosixSocket::Usable() const {
    if (FInterrupted) return WSAECONNRESET;
    return FSocket ? 0 : WSAENOTSOCK;
}

// --------------------------------------------------------------------------------------------- opening

void TPosixSocket::Replace(TFileDescriptor socket) {
    {
        const std::lock_guard lock(FLock);
        std::swap(FSocket, socket);
    }
    // The old one is closed behind the lock: that may linger.
    FBuffer.Clear();
}

void TPosixSocket::CreateSocket() {
    if (FInterrupted) {
        Finish(WSAECONNRESET);
        return;
    }
    TFileDescriptor socket = MakeSocket();
    const int error = socket ? 0 : LastSystemSocketError();
    Replace(std::move(socket));
    Finish(error);
}

int TPosixSocket::SetOption(int level, int option, const void* value, unsigned size) {
    if (const int error = Usable()) return error;
    return ::setsockopt(FSocket.Get(), level, option, value, size) == 0 ? 0 : LastSystemSocketError();
}

void TPosixSocket::SetLinger(bool enabled, int milliseconds) {
    linger value{};
    value.l_onoff = enabled;
    value.l_linger = static_cast<int>((NotNegative(milliseconds) + 999) / 1000);
    Finish(SetOption(SOL_SOCKET, SO_LINGER, &value, sizeof value));
}

void TPosixSocket::Bind(const std::string& address, const std::string& port) {
    Finish(BindTo(address, port));
}

int TPosixSocket::BindTo(const std::string& address, const std::string& port) {
    if (const int error = Usable()) return error;
    const bool narrowed = address == AnyAddress && !FOptions.AnyAddress.empty();
    in_addr place{};
    const int number = StrToIntDef(port, -1);
    const bool valid = ::inet_pton(AF_INET, (narrowed ? FOptions.AnyAddress : address).c_str(), &place) == 1;
    if (!valid || number < 0 || number > 0xFFFF) return WSAEINVAL;
    return BindDescriptor(FSocket.Get(), place, static_cast<std::uint16_t>(number));
}

void TPosixSocket::Listen() {
    int error = Usable();
    if (!error && ::listen(FSocket.Get(), SocketBacklog) != 0) error = LastSystemSocketError();
    Finish(error);
}

TSocketHandle TPosixSocket::Accept() {
    int error = Usable();
    TFileDescriptor accepted;
    if (!error) {
        accepted = TFileDescriptor(
            Retry([&] { return ::accept4(FSocket.Get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK); }));
        if (!accepted) error = LastSystemSocketError();
    }
    if (accepted) ::setsockopt(accepted.Get(), IPPROTO_TCP, TCP_NODELAY, &On, sizeof On);
    return Finish(error) ? accepted.Detach() : INVALID_SOCKET;
}

void TPosixSocket::SetSocket(TSocketHandle handle) {
    TFileDescriptor socket(static_cast<int>(handle));
    const int flags = ::fcntl(socket.Get(), F_GETFL);
    const bool usable = flags >= 0 && ::fcntl(socket.Get(), F_SETFL, flags | O_NONBLOCK) == 0;
    Replace(std::move(socket));
    Finish(usable ? Usable() : WSAENOTSOCK);
}

void TPosixSocket::CloseSocket() {
    Replace({});
    Finish(0);
}

void TPosixSocket::Interrupt() {
    const std::lock_guard lock(FLock);
    FInterrupted = true;
    // Wakes whoever waits on the descriptor, a listening one too, and whoever is about to.
    if (FSocket) ::shutdown(FSocket.Get(), SHUT_RDWR);
}

// --------------------------------------------------------------------------------------------- receiving

int TPosixSocket::Await(short events, std::uint64_t deadline) {
    if (const int error = Usable()) return error;
    pollfd entry{FSocket.Get(), events, 0};
    const int ready = FClock.Poll({&entry, 1}, deadline);
    if (ready < 0) return LastSystemSocketError();
    if (FInterrupted) return WSAECONNRESET;
    return ready == 0 ? WSAETIMEDOUT : 0;
}

bool TPosixSocket::CanRead(int milliseconds) {
    if (!FBuffer.Empty()) return Finish(Usable());
    const int error = Await(POLLIN, FClock.DeadlineAfter(NotNegative(milliseconds)));
    return Finish(error == WSAETIMEDOUT ? 0 : error) && error == 0;
}

int TPosixSocket::ReceiveSome(std::uint64_t deadline) {
    char chunk[SocketChunk];
    while (true) {
        if (const int error = Await(POLLIN, deadline)) return error;
        const ssize_t count = Retry([&] { return ::recv(FSocket.Get(), chunk, sizeof chunk, 0); });
        if (count == 0) return WSAECONNRESET;
        if (count > 0) {
            FBuffer.Append({chunk, static_cast<std::size_t>(count)});
            return 0;
        }
        if (errno != EAGAIN) return LastSystemSocketError();
    }
}

int TPosixSocket::ReceiveLine(std::string& line, int milliseconds, std::size_t limit) {
    if (const int error = Usable()) return error;
    std::size_t searchFrom = 0;
    while (true) {
        const std::string_view data = FBuffer.Data();
        const std::size_t end = data.find(LineEnd, searchFrom);
        const bool found = end != data.npos;
        if ((found ? end : UnfinishedLength(data)) > limit) return WSAEMSGSIZE;
        if (found) {
            line.assign(data.substr(0, end));
            FBuffer.Consume(end + LineEnd.size());
            return 0;
        }
        searchFrom = UnfinishedLength(data);
        const int error = ReceiveSome(FClock.DeadlineAfter(NotNegative(milliseconds)));
        if (error) return error;
    }
}

std::string TPosixSocket::RecvString(int milliseconds, std::size_t limit) {
    std::string line;
    Finish(ReceiveLine(line, milliseconds, limit));
    return line;
}

int TPosixSocket::ReceiveInto(char* buffer, std::size_t length, std::uint64_t deadline, std::size_t& count) {
    if (const int error = Usable()) return error;
    count = FBuffer.Take(buffer, length);
    while (count < length) {
        const ssize_t got = Retry([&] { return ::recv(FSocket.Get(), buffer + count, length - count, 0); });
        if (got == 0) return WSAECONNRESET;
        if (got < 0 && errno != EAGAIN) return LastSystemSocketError();
        if (got < 0) {
            if (const int error = Await(POLLIN, deadline)) return error;
            continue;
        }
        count += static_cast<std::size_t>(got);
        // A peer that never pauses must not outrun the time of the call.
        if (count < length && FClock.TickCount() >= deadline) return WSAETIMEDOUT;
    }
    return 0;
}

std::size_t TPosixSocket::RecvBufferEx(char* buffer, std::size_t length, int milliseconds) {
    std::size_t count = 0;
    Finish(ReceiveInto(buffer, length, FClock.DeadlineAfter(NotNegative(milliseconds)), count));
    return count;
}

// --------------------------------------------------------------------------------------------- sending

int TPosixSocket::SendAll(std::string_view data) {
    if (const int error = Usable()) return error;
    while (!data.empty()) {
        const ssize_t sent =
            Retry([&] { return ::send(FSocket.Get(), data.data(), data.size(), MSG_NOSIGNAL); });
        if (sent > 0) {
            data.remove_prefix(static_cast<std::size_t>(sent));
            continue;
        }
        if (sent < 0 && errno != EAGAIN) return LastSystemSocketError();
        if (const int error = Await(POLLOUT, FClock.DeadlineAfter(SendStallLimit))) return error;
    }
    return 0;
}

void TPosixSocket::SendBuffer(std::string_view data) {
    Finish(SendAll(data));
}

// --------------------------------------------------------------------------------------------- the service

std::unique_ptr<TTCPBlockSocket> TPosixSockets::CreateTCPBlockSocket() {
    return std::make_unique<TPosixSocket>(FClock, FOptions);
}

bool TPosixSockets::IsPortBound(std::uint16_t port) {
    const TFileDescriptor socket = MakeSocket();
    return socket && BindDescriptor(socket.Get(), {INADDR_ANY}, port) == WSAEADDRINUSE;
}

}  // namespace rux
