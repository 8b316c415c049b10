#include "platform/posix/SocketErrors.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

#include "platform/SocketService.h"

namespace rux {
namespace {

struct TSocketErrorRow {
    int System;
    int Number;
    const char* Text;
};

/// The first row of a number gives its text.
constexpr TSocketErrorRow Rows[] = {
    {EACCES, 10013, "Permission denied"},
    {EPERM, 10013, "Permission denied"},
    {EINVAL, WSAEINVAL, "Invalid argument"},
    {EMFILE, 10024, "Too many open sockets"},
    {ENFILE, 10024, "Too many open sockets"},
    {EAGAIN, WSAEWOULDBLOCK, "Operation would block"},
    {ENOTSOCK, WSAENOTSOCK, "Socket operation on nonsocket"},
    {EBADF, WSAENOTSOCK, "Socket operation on nonsocket"},
    {EMSGSIZE, WSAEMSGSIZE, "Message too long"},
    {EADDRINUSE, WSAEADDRINUSE, "Address already in use"},
    {EADDRNOTAVAIL, 10049, "Can't assign requested address"},
    {ENETDOWN, 10050, "Network is down"},
    {ENETUNREACH, 10051, "Network is unreachable"},
    {ECONNABORTED, 10053, "Software caused connection abort"},
    {ECONNRESET, WSAECONNRESET, "Connection reset by peer"},
    {EPIPE, WSAECONNRESET, "Connection reset by peer"},
    {ENOBUFS, 10055, "No buffer space available"},
    {ENOMEM, 10055, "No buffer space available"},
    {ENOTCONN, 10057, "Socket is not connected"},
    {ETIMEDOUT, WSAETIMEDOUT, "Connection timed out"},
    {ECONNREFUSED, 10061, "Connection refused"},
    {EHOSTUNREACH, 10065, "No route to host"},
};

template <class T>
const TSocketErrorRow* Find(T TSocketErrorRow::*member, T value) {
    const auto row = std::find_if(std::begin(Rows), std::end(Rows),
                                  [&](const TSocketErrorRow& r) { return r.*member == value; });
    return row == std::end(Rows) ? nullptr : row;
}

}  // namespace

int SocketErrorOf(int errorNumber) {
    const TSocketErrorRow* row = Find(&TSocketErrorRow::System, errorNumber);
    return row ? row->Number : WSASYSCALLFAILURE;
}

std::string SocketErrorText(int socketError) {
    if (socketError == 0) return {};
    const TSocketErrorRow* row = Find(&TSocketErrorRow::Number, socketError);
    return row ? row->Text : "System call failure";
}

}  // namespace rux
