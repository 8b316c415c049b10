// Bounds and measures of the services on Linux.
#pragma once

#include <cstddef>

namespace rux {

/// Stack of a thread that the kernel service starts, unless the host says otherwise.
inline constexpr std::size_t WorkerStackSize = 512 * 1024;
/// Tries to create a named mutex while other processes are creating it, too.
inline constexpr int MutexAttempts = 1000;
/// What a file mapping's size is rounded up to; the window system's measure.
inline constexpr std::size_t MappingPage = 4096;

}  // namespace rux
