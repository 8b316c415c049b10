#include "platform/win32/Win32Sockets.h"

#include <algorithm>

#include "platform/shared/SocketErrors.h"
#include "platform/win32/Headers.h"
#include "rtl/Exceptions.h"

namespace rux {
namespace {

constexpr WORD NetworkVersion = MAKEWORD(2, 2);
/// The system may take as much of a large piece into its own memory as it is given.
constexpr std::size_t SendChunk = 64 * 1024;
constexpr TSocketHandle NoSocket = -1;

SOCKET Raw(TSocketHandle socket) {
    return static_cast<SOCKET>(socket);
}

int LastNetworkError() {
    return ::WSAGetLastError();
}

/// The error of the call just made, 0 when it is done.
int ErrorUnless(bool done) {
    return done ? 0 : LastNetworkError();
}

/// However a connection ended, the peer is gone.
int TrafficError() {
    const int error = LastNetworkError();
    const bool gone = error == WSAECONNABORTED || error == WSAENETRESET || error == WSAESHUTDOWN;
    return gone ? WSAECONNRESET : error;
}

bool StopBlocking(SOCKET socket) {
    u_long on = 1;
    return ::ioctlsocket(socket, FIONBIO, &on) == 0;
}

/// No program that the host starts shall keep the port.
void KeepToThisProcess(SOCKET socket) {
    ::SetHandleInformation(reinterpret_cast<HANDLE>(socket), HANDLE_FLAG_INHERIT, 0);
}

SOCKET MakeSocket() {
    const SOCKET made = ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    if (made != INVALID_SOCKET) KeepToThisProcess(made);
    return made;
}

/// Only a socket that blocks lingers.
void CloseLingering(SOCKET socket) {
    u_long off = 0;
    ::WSAEventSelect(socket, nullptr, 0);
    ::ioctlsocket(socket, FIONBIO, &off);
    ::closesocket(socket);
}

int BindSocket(SOCKET socket, u_long address, std::uint16_t port) {
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_addr.s_addr = address;
    name.sin_port = htons(port);
    return ErrorUnless(::bind(socket, reinterpret_cast<const sockaddr*>(&name), sizeof name) == 0);
}

TWin32Handle MakeEvent() {
    TWin32Handle event(::CreateEventA(nullptr, TRUE, FALSE, nullptr));
    if (!event) throw EOSError("System Error.  Code: " + std::to_string(::GetLastError()) + ".");
    return event;
}

}  // namespace

// --------------------------------------------------------------------------------------------- opening

TWin32Socket::TWin32Socket(TClockService& clock, std::uint32_t sendStall)
    : TBlockSocket(clock, sendStall), FClock(clock), FTraffic(MakeEvent()), FStop(MakeEvent()) {}

void TWin32Socket::Replace(TSocketHandle socket) {
    {
        const std::lock_guard lock(FLock);
        std::swap(FSocket, socket);
    }
    // Behind the lock: that may linger.
    if (socket != NoSocket) CloseLingering(Raw(socket));
    ForgetReceived();
}

void TWin32Socket::CreateSocket() {
    if (FInterrupted) {
        Finish(WSAECONNRESET);
        return;
    }
    const SOCKET made = MakeSocket();
    const int error = ErrorUnless(made != INVALID_SOCKET && StopBlocking(made));
    Replace(static_cast<TSocketHandle>(made));
    Finish(error);
}

int TWin32Socket::LingerOnClose(bool enabled, int seconds) {
    const linger value{enabled, static_cast<u_short>(std::min(seconds, 0xFFFF))};
    const auto bytes = reinterpret_cast<const char*>(&value);
    return ErrorUnless(::setsockopt(Raw(FSocket), SOL_SOCKET, SO_LINGER, bytes, sizeof value) == 0);
}

int TWin32Socket::BindTo(const std::string& address, std::uint16_t port) {
    const u_long place = ::inet_addr(address.c_str());
    return place == INADDR_NONE ? WSAEINVAL : BindSocket(Raw(FSocket), place, port);
}

int TWin32Socket::StartListening() {
    return ErrorUnless(::listen(Raw(FSocket), SocketBacklog) == 0);
}

TSocketHandle TWin32Socket::Accept() {
    int error = Usable();
    SOCKET accepted = INVALID_SOCKET;
    if (!error) {
        accepted = ::accept(Raw(FSocket), nullptr, nullptr);
        error = ErrorUnless(accepted != INVALID_SOCKET);
    }
    if (accepted != INVALID_SOCKET) {
        // It came with the events of the listening one.
        ::WSAEventSelect(accepted, nullptr, 0);
        KeepToThisProcess(accepted);
        const BOOL on = TRUE;
        ::setsockopt(accepted, IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&on), sizeof on);
    }
    return Finish(error) ? static_cast<TSocketHandle>(accepted) : NoSocket;
}

void TWin32Socket::SetSocket(TSocketHandle handle) {
    const bool usable = StopBlocking(Raw(handle));
    Replace(handle);
    Finish(usable ? Usable() : WSAENOTSOCK);
}

void TWin32Socket::CloseSocket() {
    Replace(NoSocket);
    Finish(0);
}

void TWin32Socket::Interrupt() {
    const std::lock_guard lock(FLock);
    FInterrupted = true;
    ::SetEvent(FStop.Get());
    if (FSocket != NoSocket) ::shutdown(Raw(FSocket), SD_BOTH);
}

// --------------------------------------------------------------------------------------------- traffic

int TWin32Socket::ReadyNow(TReady what, bool& ready) const {
    fd_set set;
    set.fd_count = 1;
    set.fd_array[0] = Raw(FSocket);
    timeval none{};
    fd_set* const read = what == TReady::ToRead ? &set : nullptr;
    const int count = ::select(0, read, read ? nullptr : &set, nullptr, &none);
    ready = count > 0;
    return ErrorUnless(count >= 0);
}

/// The network sets the event for each change from now on.
int TWin32Socket::Arm(TReady what) const {
    const long changes = what == TReady::ToRead ? FD_READ | FD_ACCEPT | FD_CLOSE : FD_WRITE | FD_CLOSE;
    ::ResetEvent(FTraffic.Get());
    return ErrorUnless(::WSAEventSelect(Raw(FSocket), FTraffic.Get(), changes) == 0);
}

int TWin32Socket::Await(TReady what, std::uint64_t deadline) {
    for (bool armed = false;;) {
        if (FInterrupted) return WSAECONNRESET;
        bool ready = false;
        if (const int error = ReadyNow(what, ready)) return error;
        if (ready) return 0;
        const std::uint64_t now = FClock.TickCount();
        if (now >= deadline) return WSAETIMEDOUT;
        if (armed) {
            const HANDLE events[] = {FTraffic.Get(), FStop.Get()};
            ::WaitForMultipleObjects(2, events, FALSE, static_cast<DWORD>(deadline - now));
        }
        // What changes between the look above and here is met by the look that follows.
        if (const int error = Arm(what)) return error;
        armed = true;
    }
}

TBlockSocket::TTransfer TWin32Socket::Receive(char* buffer, std::size_t length) {
    const int room = static_cast<int>(std::min<std::size_t>(length, 0x7FFFFFFF));
    const int got = ::recv(Raw(FSocket), buffer, room, 0);
    return got < 0 ? TTransfer{TrafficError(), 0} : TTransfer{0, static_cast<std::size_t>(got)};
}

TBlockSocket::TTransfer TWin32Socket::Send(std::string_view data) {
    const int sent = ::send(Raw(FSocket), data.data(), static_cast<int>(std::min(data.size(), SendChunk)), 0);
    return sent < 0 ? TTransfer{TrafficError(), 0} : TTransfer{0, static_cast<std::size_t>(sent)};
}

// --------------------------------------------------------------------------------------------- the service

TWin32Sockets::TWin32Sockets(std::uint32_t sendStall) : FSendStall(sendStall) {
    WSADATA data;
    if (::WSAStartup(NetworkVersion, &data) != 0) return;
    // The first socket and the first wait bring in what the network consists of.
    IsPortBound(0);
    const auto probe = CreateTCPBlockSocket();
    probe->CreateSocket();
    probe->CanRead(0);
}

std::unique_ptr<TTCPBlockSocket> TWin32Sockets::CreateTCPBlockSocket() {
    return std::make_unique<TWin32Socket>(FClock, FSendStall);
}

bool TWin32Sockets::IsPortBound(std::uint16_t port) {
    const SOCKET probe = MakeSocket();
    if (probe == INVALID_SOCKET) return false;
    const bool bound = BindSocket(probe, INADDR_ANY, port) == WSAEADDRINUSE;
    ::closesocket(probe);
    return bound;
}

}  // namespace rux
