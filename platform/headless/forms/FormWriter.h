// Form files to text.
#pragma once

#include <string>

#include "platform/headless/forms/FormFile.h"

namespace rux {

/// A text form file, which reads as `file` again; lines end with CR LF.
///
/// Seven-bit text as far as the content allows: characters beyond go by number. Names beyond ASCII make the
/// file UTF-8 with a signature. A text that is not made of characters of the current code page keeps its
/// bytes as they are, and such a file has no signature.
///
/// `file` must be as the reader gives it: names are names, parents stand before their children and these
/// before the parent's next sibling, values nest up to FormNestingLimit.
std::string WriteFormFile(const TFormFile& file);

}  // namespace rux
