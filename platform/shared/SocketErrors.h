// Errors of the network in the window system's numbers, and their texts.
#pragma once

#include <string>

#include "platform/SocketService.h"

namespace rux {

inline constexpr int WSAEINVAL = 10022;
inline constexpr int WSAEWOULDBLOCK = 10035;
inline constexpr int WSAENOTSOCK = 10038;
inline constexpr int WSAEADDRINUSE = 10048;
inline constexpr int WSASYSCALLFAILURE = 10107;

/// A short English text; empty for 0.
std::string SocketErrorText(int socketError);

}  // namespace rux
