// Calls of native code at a border of errors: what the callee raises as a structured exception comes out as
// an error of the run-time library.
#pragma once

#include <cstdint>
#include <span>

#include "platform/CodeService.h"

namespace rux {

/// Calls the function and puts the stack right afterwards, whatever it took off. EAccessViolation where the
/// function touches memory that it may not touch, EStackOverflow where it runs out of stack, Exception
/// "External exception <code>" for everything else that it raises; what such an exception carries is lost.
/// The callee's frames are left without their clean-up where they are C++: our own functions let nothing
/// through. Any thread.
std::uintptr_t CallGuarded(TCallKind kind, TCodeAddress function, std::span<const std::uintptr_t> arguments);

}  // namespace rux
