// Redirects a loaded function of 32-bit x86 code to a replacement, and keeps a way to its old behaviour.
//
// The first five bytes of the function become a jump to the replacement. The whole instructions that they cut
// move to a page of their own, the trampoline, which ends in a jump back:
//
//     0          address of the patched function
//     4          count of moved bytes, 5 or more
//     5          the moved instructions, displacements adjusted: what the caller calls
//     5 + count  jump to the patched function + count
//
// No other thread is stopped meanwhile: patch in the start sequence. A function is to have one patch at a
// time.
#pragma once

#include "platform/CodeService.h"

namespace rux {

/// Patches `target`. `trampoline` becomes the address by which the old behaviour is called. False, and
/// nothing changed, when no code that can be written is at `target`, or none that can be decoded. A function
/// shorter than five bytes, or jumped into within them, is patched all the same: what follows it is then
/// overwritten. EAccessViolation when there is no memory for the trampoline; the function is as before then.
bool HookCode(TCodeService& code, TCodeAddress target, TCodeAddress replacement, TCodeAddress& trampoline);

/// Gives the function its bytes back, frees the trampoline and makes it 0. False, and nothing changed, when
/// it is 0 or the memory is not there any more.
bool UnhookCode(TCodeService& code, TCodeAddress& trampoline);

/// The code that the stub at `address` jumps to; `address` itself when there is no stub. 0 answers 0.
TCodeAddress ResolveCodeAddress(TCodeService& code, TCodeAddress address);

}  // namespace rux
