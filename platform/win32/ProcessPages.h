// Memory of the process that outlives the library: code that a thread may still be in when the library goes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace rux {

/// A piece of executable memory, aligned to 16 bytes, filled with zeros and of at most a page; 0 when there
/// is none left. Nothing is ever given back. Any thread.
std::uint32_t TakeProcessMemory(std::size_t size);

}  // namespace rux
