#include "rtl/Stack.h"

#include <atomic>

#include "rtl/Exceptions.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define RUX_WIDE_FRAMES 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define RUX_WIDE_FRAMES 1
#endif

namespace rux {
namespace {

constexpr std::size_t KiB = 1024;
#ifdef RUX_WIDE_FRAMES
// Sanitizers widen every frame, and their own run time uses the same stack.
constexpr std::size_t Reserve = 256 * KiB;
constexpr std::size_t AssumedRoom = 1024 * KiB;
#else
constexpr std::size_t Reserve = 96 * KiB;
constexpr std::size_t AssumedRoom = 256 * KiB;
#endif

thread_local constinit std::uintptr_t Lowest = 0;
constinit std::atomic<std::uintptr_t (*)()> Source{nullptr};

std::uintptr_t LowestToldOrGuessed(std::uintptr_t here) {
    if (!Lowest) Lowest = here > AssumedRoom ? here - AssumedRoom : 1;
    return Lowest;
}

}  // namespace

void SetStackLimit(std::uintptr_t lowest) {
    Lowest = lowest;
}

void SetStackLimitSource(std::uintptr_t (*lowestOfThisThread)()) {
    Source = lowestOfThisThread;
}

std::size_t StackRoom() {
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    const auto source = Source.load(std::memory_order_relaxed);
    const std::uintptr_t lowest = source ? source() : LowestToldOrGuessed(here);
    return here > lowest ? here - lowest : 0;
}

void CheckStack() {
    if (StackRoom() < Reserve) throw EStackOverflow("Stack overflow");
}

}  // namespace rux
