#include "platform/posix/SocketErrors.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

namespace rux {
namespace {

struct TErrorNumber {
    int System;
    int Number;
};

constexpr TErrorNumber Rows[] = {
    {EACCES, 10013},
    {EPERM, 10013},
    {EINVAL, WSAEINVAL},
    {EMFILE, 10024},
    {ENFILE, 10024},
    {EAGAIN, WSAEWOULDBLOCK},
    {ENOTSOCK, WSAENOTSOCK},
    {EBADF, WSAENOTSOCK},
    {EMSGSIZE, WSAEMSGSIZE},
    {EADDRINUSE, WSAEADDRINUSE},
    {EADDRNOTAVAIL, 10049},
    {ENETDOWN, 10050},
    {ENETUNREACH, 10051},
    {ECONNABORTED, 10053},
    {ECONNRESET, WSAECONNRESET},
    {EPIPE, WSAECONNRESET},
    {ENOBUFS, 10055},
    {ENOMEM, 10055},
    {ENOTCONN, 10057},
    {ETIMEDOUT, WSAETIMEDOUT},
    {ECONNREFUSED, 10061},
    {EHOSTUNREACH, 10065},
};

}  // namespace

int SocketErrorOf(int errorNumber) {
    const auto row = std::find_if(std::begin(Rows), std::end(Rows),
                                  [&](const TErrorNumber& r) { return r.System == errorNumber; });
    return row == std::end(Rows) ? WSASYSCALLFAILURE : row->Number;
}

}  // namespace rux
