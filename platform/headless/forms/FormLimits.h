// Bounds of the reader of form files: no input can take more memory, stack or time than these allow.
#pragma once

#include <cstddef>

namespace rux {

/// Bytes of one form file. The largest files met hold pictures and stay far below.
inline constexpr std::size_t FormFileSizeLimit = std::size_t{64} << 20;
/// Lists and collections within each other. Values are read, written and freed by recursion.
inline constexpr int FormNestingLimit = 64;
/// Objects, properties, items, list values and set elements of one file together. Each costs some hundred
/// bytes of memory, but may cost only two in the file.
inline constexpr std::size_t FormPartLimit = std::size_t{1} << 20;
/// Bytes of offending text that an error message shows.
inline constexpr std::size_t FormQuoteLimit = 40;
/// Binary values up to this many bytes are dumped whole, longer ones as length and hash.
inline constexpr std::size_t FormDumpBinaryLimit = 32;
/// Levels up to which written files are indented; a deep chain would grow by the square of its depth.
inline constexpr int FormIndentLimit = 32;
/// UTF-16 units of a string, and bytes of a binary value, on one written line.
inline constexpr std::size_t FormStringWidth = 64;
inline constexpr std::size_t FormBinaryWidth = 32;

}  // namespace rux
