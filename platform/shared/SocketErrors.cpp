#include "platform/shared/SocketErrors.h"

#include <algorithm>
#include <iterator>

namespace rux {
namespace {

struct TErrorText {
    int Number;
    const char* Text;
};

constexpr TErrorText Rows[] = {
    {10004, "Interrupted function call"},
    {10009, "Bad file number"},
    {10013, "Permission denied"},
    {10014, "Bad address"},
    {WSAEINVAL, "Invalid argument"},
    {10024, "Too many open sockets"},
    {WSAEWOULDBLOCK, "Operation would block"},
    {10036, "Operation now in progress"},
    {WSAENOTSOCK, "Socket operation on nonsocket"},
    {WSAEMSGSIZE, "Message too long"},
    {10042, "Bad protocol option"},
    {WSAEADDRINUSE, "Address already in use"},
    {10049, "Can't assign requested address"},
    {10050, "Network is down"},
    {10051, "Network is unreachable"},
    {10052, "Network dropped connection on reset"},
    {10053, "Software caused connection abort"},
    {WSAECONNRESET, "Connection reset by peer"},
    {10055, "No buffer space available"},
    {10057, "Socket is not connected"},
    {10058, "Can't send after the socket's end"},
    {WSAETIMEDOUT, "Connection timed out"},
    {10061, "Connection refused"},
    {10064, "Host is down"},
    {10065, "No route to host"},
    {10067, "Too many users of the network"},
    {10091, "Network subsystem is unusable"},
    {10093, "Network was not started"},
};

}  // namespace

std::string SocketErrorText(int socketError) {
    if (socketError == 0) return {};
    const auto row = std::find_if(std::begin(Rows), std::end(Rows),
                                  [&](const TErrorText& r) { return r.Number == socketError; });
    return row == std::end(Rows) ? "System call failure" : row->Text;
}

}  // namespace rux
