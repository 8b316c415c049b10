// Bounds and measures that the services of every system have in common.
#pragma once

#include <cstddef>
#include <cstdint>

namespace rux {

/// Connections that may wait to be accepted; the system cuts it to its own bound.
inline constexpr int SocketBacklog = 1024;
/// Bytes that one read of a socket brings at most; a line's limit can be overstepped by so much in memory.
inline constexpr std::size_t SocketChunk = 16 * 1024;
/// Milliseconds after which a peer that takes nothing of what is sent counts as gone.
inline constexpr std::uint32_t SendStallLimit = 120000;
/// Largest file that is read as a whole.
inline constexpr std::size_t ReadFileLimit = std::size_t{64} << 20;
/// Largest piece of a named file mapping.
inline constexpr std::size_t FileMappingLimit = std::size_t{1} << 20;
/// Tries to find a free name for a temporary file.
inline constexpr int TemporaryNameAttempts = 100;
/// Entries that cannot be deleted, after which the deletion of a folder is given up.
inline constexpr std::size_t DeleteTreeFailureLimit = 1000;
/// Entries of a folder that are read at most.
inline constexpr std::size_t FolderEntryLimit = std::size_t{1} << 16;

}  // namespace rux
