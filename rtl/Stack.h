// Room on the current thread's stack. Running out of it is an error like any other, never a crash.
#pragma once

#include <cstddef>
#include <cstdint>

namespace rux {

/// Told by the platform for each thread that it starts: the lowest usable address of the thread's stack.
void SetStackLimit(std::uintptr_t lowest);
/// Told once by a platform that can say it of any thread at any time: then it is asked, and what
/// SetStackLimit told counts no more.
void SetStackLimitSource(std::uintptr_t (*lowestOfThisThread)());
/// Bytes left; where no limit was told, counted from a cautious guess made at the thread's first question.
std::size_t StackRoom();
/// Raises EStackOverflow when less than a fixed reserve is left, enough to unwind and to report.
void CheckStack();

}  // namespace rux
