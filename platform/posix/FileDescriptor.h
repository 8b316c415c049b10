// A descriptor of the system that closes itself.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace rux {

class TFileDescriptor {
 public:
    TFileDescriptor() = default;
    explicit TFileDescriptor(int number) : FNumber(number) {}
    TFileDescriptor(TFileDescriptor&& other) noexcept : FNumber(other.Detach()) {}
    TFileDescriptor& operator=(TFileDescriptor&& other) noexcept {
        std::swap(FNumber, other.FNumber);
        return *this;
    }
    ~TFileDescriptor() {
        if (FNumber >= 0) ::close(FNumber);
    }

    int Get() const { return FNumber; }
    explicit operator bool() const { return FNumber >= 0; }
    int Detach() { return std::exchange(FNumber, -1); }

 private:
    int FNumber = -1;
};

/// Repeats a system call that a signal cut short.
template <class Call>
auto Retry(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) result = call();
    return result;
}

}  // namespace rux
