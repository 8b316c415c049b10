// Everything that bounds what a client can make the engine do.
#pragma once

#include <cstddef>
#include <cstdint>

namespace rux {

/// Request line and headers together; past it the connection ends without an answer.
inline constexpr std::size_t HttpHeadLimit = std::size_t{1} << 20;
/// Longest body that is read (and dropped); a larger length means no body.
inline constexpr long long HttpBodyLimit = 2147483647;
/// Bytes of a body that are in memory at once.
inline constexpr std::size_t HttpBodyPiece = 64 * 1024;
/// Milliseconds of every receive.
inline constexpr int HttpReceiveTimeout = 120000;
/// Milliseconds of one look at the listening socket.
inline constexpr int HttpAcceptTimeout = 1000;
/// Requests that run inside each other on the user-interface thread; a further one is set aside.
inline constexpr int RequestNestingLimit = 64;
/// Bytes of stack that must be left to begin one more nested request.
inline constexpr std::size_t RequestStackReserve = 256 * 1024;
/// Milliseconds that a caller waits for its request: one hour.
inline constexpr std::uint32_t RequestWaitTimeout = 3600000;
/// Steps of one locator, and position steps among them: each of those searches the application anew.
inline constexpr std::size_t LocatorStepLimit = 1024;
inline constexpr std::size_t LocatorPositionLimit = 32;
/// Bytes of a native window's text that are read: a window may claim any length.
inline constexpr std::size_t VirtualTextLimit = std::size_t{64} << 20;
/// Nodes of a native tree that one path is looked for in: the tree may answer as if it had no end.
inline constexpr std::size_t VirtualNodeLimit = std::size_t{1} << 20;
/// Steps that an expression has for the path of one node; a search through a tree has twice as many in all
/// for the nodes in which it goes beyond that.
inline constexpr std::uint64_t TreeNodeStepBudget = 5'000'000;
/// Levels above a line of a file of nodes: its blanks alone make them.
inline constexpr std::size_t TreeFileDepthLimit = std::size_t{1} << 16;
/// Bytes of a file of definitions, and elements within each other in it.
inline constexpr std::size_t XmlByteLimit = std::size_t{16} << 20;
inline constexpr std::size_t XmlDepthLimit = 256;

}  // namespace rux
