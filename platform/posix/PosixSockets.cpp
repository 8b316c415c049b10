#include "platform/posix/PosixSockets.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include "platform/posix/SocketErrors.h"

namespace rux {
namespace {

constexpr const char* AnyAddress = "0.0.0.0";
constexpr int On = 1;

int LastSystemSocketError() {
    return SocketErrorOf(errno);
}

/// The error of the call just made, 0 when it is done.
int ErrorUnless(bool done) {
    return done ? 0 : LastSystemSocketError();
}

TFileDescriptor MakeSocket() {
    return TFileDescriptor(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

int BindDescriptor(int socket, in_addr address, std::uint16_t port) {
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_addr = address;
    name.sin_port = htons(port);
    // A port whose last connections are still dying down is free; one that is listened on is not.
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &On, sizeof On);
    return ErrorUnless(::bind(socket, reinterpret_cast<const sockaddr*>(&name), sizeof name) == 0);
}

}  // namespace

// --------------------------------------------------------------------------------------------- opening

void TPosixSocket::Replace(TFileDescriptor socket) {
    {
        const std::lock_guard lock(FLock);
        std::swap(FSocket, socket);
    }
    // The old one is closed behind the lock: that may linger.
    ForgetReceived();
}

void TPosixSocket::CreateSocket() {
    if (FInterrupted) {
        Finish(WSAECONNRESET);
        return;
    }
    TFileDescriptor socket = MakeSocket();
    const int error = ErrorUnless(static_cast<bool>(socket));
    Replace(std::move(socket));
    Finish(error);
}

int TPosixSocket::LingerOnClose(bool enabled, int seconds) {
    const linger value{enabled, seconds};
    return ErrorUnless(::setsockopt(FSocket.Get(), SOL_SOCKET, SO_LINGER, &value, sizeof value) == 0);
}

int TPosixSocket::BindTo(const std::string& address, std::uint16_t port) {
    const bool narrowed = address == AnyAddress && !FOptions.AnyAddress.empty();
    in_addr place{};
    const bool valid = ::inet_pton(AF_INET, (narrowed ? FOptions.AnyAddress : address).c_str(), &place) == 1;
    return valid ? BindDescriptor(FSocket.Get(), place, port) : WSAEINVAL;
}

int TPosixSocket::StartListening() {
    return ErrorUnless(::listen(FSocket.Get(), SocketBacklog) == 0);
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

// --------------------------------------------------------------------------------------------- traffic

int TPosixSocket::Await(TReady what, std::uint64_t deadline) {
    if (FInterrupted) return WSAECONNRESET;
    pollfd entry{FSocket.Get(), static_cast<short>(what == TReady::ToRead ? POLLIN : POLLOUT), 0};
    const int ready = FClock.Poll({&entry, 1}, deadline);
    if (ready < 0) return LastSystemSocketError();
    if (FInterrupted) return WSAECONNRESET;
    return ready == 0 ? WSAETIMEDOUT : 0;
}

TBlockSocket::TTransfer TPosixSocket::Receive(char* buffer, std::size_t length) {
    const ssize_t got = Retry([&] { return ::recv(FSocket.Get(), buffer, length, 0); });
    return got < 0 ? TTransfer{LastSystemSocketError(), 0} : TTransfer{0, static_cast<std::size_t>(got)};
}

TBlockSocket::TTransfer TPosixSocket::Send(std::string_view data) {
    const ssize_t sent = Retry([&] { return ::send(FSocket.Get(), data.data(), data.size(), MSG_NOSIGNAL); });
    return sent < 0 ? TTransfer{LastSystemSocketError(), 0} : TTransfer{0, static_cast<std::size_t>(sent)};
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
