// Lengths of 32-bit x86 instructions: as much of a decoder as the moving of a function's first bytes asks
// for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace rux {

using TCodeBytes = std::span<const std::uint8_t>;

/// No instruction that InstructionLength measures has more bytes.
inline constexpr std::size_t InstructionSizeLimit = 32;

/// Bytes of the instruction that `code` starts with, its prefixes included; 0 when it has more than 16
/// prefixes or `code` ends within it. `opcode` becomes the place of the opcode byte behind the prefixes.
///
/// The answer is what the flag tables say, and they are coarser than the processor: of an x87 instruction two
/// bytes are counted, and what came after SSE2 is not known.
std::size_t InstructionLength(TCodeBytes code, std::size_t& opcode);

/// True when the opcode that `code` starts with is marked as one with a 32-bit displacement relative to the
/// instruction's end. The mark is on all of FF too, whose operand is none.
bool IsRelativeInstruction(TCodeBytes code);

}  // namespace rux
