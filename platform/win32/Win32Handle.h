// A handle of the system that closes itself.
#pragma once

#include <cstdint>
#include <utility>

#include "platform/KernelService.h"

namespace rux {

class TWin32Handle {
 public:
    TWin32Handle() = default;
    /// Both of the system's ways to say "none" are none.
    explicit TWin32Handle(void* handle) : FHandle(IsNone(handle) ? nullptr : handle) {}
    TWin32Handle(TWin32Handle&& other) noexcept : FHandle(other.Detach()) {}
    TWin32Handle& operator=(TWin32Handle&& other) noexcept {
        std::swap(FHandle, other.FHandle);
        return *this;
    }
    ~TWin32Handle() { Close(); }

    void* Get() const { return FHandle; }
    explicit operator bool() const { return FHandle != nullptr; }
    void* Detach() { return std::exchange(FHandle, nullptr); }
    void Close();
    /// Until the object behind it is signalled, at most for that many milliseconds.
    TWaitResult WaitFor(std::uint32_t milliseconds) const;

 private:
    static bool IsNone(void* handle) { return reinterpret_cast<std::intptr_t>(handle) == -1; }
    void* FHandle = nullptr;
};

}  // namespace rux
