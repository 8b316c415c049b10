// Memory of the process that outlives the library: code that a thread may still be in when the library goes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace rux {

/// A piece of executable memory, aligned to 16 bytes, filled with zeros and of at most a page; 0 when there
/// is none left. Nothing is ever given back. Any thread.
std::uint32_t TakeProcessMemory(std::size_t size);
/// Makes instructions ready to run there.
void WriteProcessCode(std::uint32_t address, std::string_view code);

}  // namespace rux
