// Whole files by the system's own names.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/FileDescriptor.h"

namespace rux {

/// Writes all of it; False on any error.
bool WriteAll(int descriptor, std::string_view bytes);
/// Opens a regular file to read; never waits, not even for a pipe. `size` gets its length.
TFileDescriptor OpenToRead(const std::string& systemName, std::size_t& size);
/// The next bytes, as many as there are up to `size`; nothing on an error.
std::optional<std::string> ReadUpTo(int descriptor, std::size_t size);
/// Replaces a file by way of a temporary one in the same folder: others see the old content or the new one.
bool ReplaceFile(const std::string& systemName, std::string_view bytes);

}  // namespace rux
