// Identifiers of classes and properties, interned without regard to ASCII case.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace rux {

/// A name as a small number, dense from 1; equal names (without case) have equal numbers. 0 is no name, and
/// the empty text is none. All functions may be called on any thread.
struct TName {
    std::uint32_t Id = 0;
    explicit operator bool() const { return Id != 0; }
    friend bool operator==(TName, TName) = default;
};

/// The number of `text`, made on first use. For names that come from code and form files, which are bounded.
TName InternName(std::string_view text);
/// The number of `text` if it was ever interned, else no name. For names that a client sends.
TName FindName(std::string_view text);
/// The spelling of the first interning; empty for no name. The reference stays valid until the process ends.
const std::string& NameText(TName name);

}  // namespace rux
