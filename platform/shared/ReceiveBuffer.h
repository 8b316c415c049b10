// Bytes that came and were not yet asked for.
#pragma once

#include <string>
#include <string_view>

namespace rux {

class TReceiveBuffer {
 public:
    std::string_view Data() const { return std::string_view(FBytes).substr(FStart); }
    bool Empty() const { return FStart == FBytes.size(); }
    void Clear() {
        FBytes.clear();
        FStart = 0;
    }
    void Append(std::string_view bytes) {
        FBytes.erase(0, FStart);
        FStart = 0;
        FBytes.append(bytes);
    }
    void Consume(std::size_t count) {
        FStart += count;
        if (Empty()) Clear();
    }
    /// Moves up to `length` bytes to `buffer` and answers how many.
    std::size_t Take(char* buffer, std::size_t length) {
        const std::size_t count = Data().copy(buffer, length);
        Consume(count);
        return count;
    }

 private:
    std::string FBytes;
    std::size_t FStart = 0;
};

}  // namespace rux
