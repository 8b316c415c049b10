// The calling thread's last error in the window system's numbers.
#pragma once

#include <cstdint>

namespace rux {

inline constexpr std::uint32_t ERROR_FILE_NOT_FOUND = 2;
inline constexpr std::uint32_t ERROR_ACCESS_DENIED = 5;
inline constexpr std::uint32_t ERROR_NOT_ENOUGH_MEMORY = 8;
inline constexpr std::uint32_t ERROR_INVALID_NAME = 123;
inline constexpr std::uint32_t ERROR_ALREADY_EXISTS = 183;

std::uint32_t LastSystemError();
void SetLastSystemError(std::uint32_t number);
/// The number for a failed call of the system.
std::uint32_t SystemErrorOf(int errorNumber);
/// Sets the last error and raises EOSError: the system has no more threads, descriptors or memory to give.
[[noreturn]] void RaiseOutOfResources();

}  // namespace rux
