// Identifiers of classes and properties, interned without regard to ASCII case.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace rux {

/// A name as a small number; equal names (without case) have equal numbers. 0 is no name.
struct TName {
    std::uint32_t Id = 0;
    explicit operator bool() const { return Id != 0; }
    friend bool operator==(TName, TName) = default;
};

/// The number of `text`, made on first use. For names that come from code and form files, which are bounded.
TName InternName(std::string_view text);
/// The number of `text` if it was ever interned, else no name. For names that a client sends.
TName FindName(std::string_view text);
/// The spelling of the first interning.
const std::string& NameText(TName name);

}  // namespace rux
