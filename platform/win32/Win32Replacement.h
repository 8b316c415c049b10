// Replacing a file as a whole.
#pragma once

#include <string>
#include <string_view>

namespace rux {

/// By way of a temporary file in the same folder: others see the old content or the new one. Within the
/// process no two contents have the same time.
bool ReplaceFileContent(const std::string& name, std::string_view bytes);

}  // namespace rux
