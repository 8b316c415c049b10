// Identifiers that stand for integers in form files: colours, cursors, character sets and their like.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace rux {

/// Compared without case; nothing for an identifier that is none of them.
std::optional<std::int64_t> IntegerOfIdent(std::string_view ident);

}  // namespace rux
