// The grammar of form files.
#pragma once

#include <string>
#include <string_view>

#include "platform/headless/forms/FormFile.h"

namespace rux {

/// Reads the bytes of a text form file. With a UTF-8 signature all text is UTF-8; without one, bytes are in
/// the system's code page already. `fileName` is for messages; nothing is read from disk.
///
/// A property whose value is missing, because the next property, object or `end` follows on the next line,
/// has an empty name for a value: some writers leave such properties behind.
///
/// Raises EFormFileError for everything else that is not a text form file, or that exceeds a bound of
/// FormLimits.h. May be called from any thread; needs little stack however deep the objects nest.
TFormFile ParseFormFile(std::string fileName, std::string_view bytes);

}  // namespace rux
