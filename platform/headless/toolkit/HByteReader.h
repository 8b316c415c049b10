// Takes apart bytes that form files store beside properties.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "rtl/CodePage.h"

namespace rux {

/// Takes bytes off the front. Once there were too few it has failed, and everything it gives is empty or 0.
class HByteReader {
 public:
    explicit HByteReader(std::string_view bytes) : FRest(bytes) {}
    bool Failed() const { return FFailed; }

    std::string_view Take(std::size_t count) {
        FFailed = FFailed || count > FRest.size();
        if (FFailed) return {};
        const std::string_view taken = FRest.substr(0, count);
        FRest.remove_prefix(count);
        return taken;
    }
    /// Little endian, of one to four bytes.
    std::uint32_t Number(std::size_t size) {
        const std::string_view bytes = Take(size);
        std::uint32_t value = 0;
        for (std::size_t i = bytes.size(); i-- > 0;) value = value << 8 | ByteAt(bytes, i);
        return value;
    }
    /// A text of at most 255 characters behind their number, in the code page or in UTF-16.
    std::string Text(bool wide) {
        const std::size_t length = Number(1);
        const std::string_view bytes = Take(wide ? 2 * length : length);
        if (!wide) return std::string(bytes);
        std::u16string units;
        for (std::size_t i = 0; i < bytes.size(); i += 2)
            units += static_cast<char16_t>(ByteAt(bytes, i) | ByteAt(bytes, i + 1) << 8);
        return WideToAnsi(units);
    }

 private:
    static std::uint32_t ByteAt(std::string_view bytes, std::size_t place) {
        return static_cast<std::uint8_t>(bytes[place]);
    }
    std::string_view FRest;
    bool FFailed = false;
};

}  // namespace rux
