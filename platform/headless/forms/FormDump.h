// A form file as canonical text: equal contents give equal texts, and different ones different texts.
#pragma once

#include <string>

#include "platform/headless/forms/FormFile.h"

namespace rux {

/// One line for each object and property, in seven-bit text. File name and line numbers are left out.
///
///     0: object Form1: TForm1
///       Font.Style = [fsBold]
///     1 in 0: inherited TMenuItem [2]
///       Caption = 'It\x27s'
///
/// A missing value is `-`. A float always has a point or an exponent, and its suffix. Bytes that are not
/// printable, quotes and backslashes are \xHH. Items stand as `<item Width = 1; Text = 'x' end item [0]
/// end>`; a binary value as its digits, a long one as `{length bytes, hash}`.
std::string DumpFormFile(const TFormFile& file);

}  // namespace rux
