// Messages as a person reads them in a journal.
#pragma once

#include <string>

#include "platform/Types.h"

namespace rux {

/// "WM_LBUTTONDOWN 1 5,6" for mouse messages, "WM_CLOSE 0 0" for others; a text pointer is shown as the text.
std::string DescribeMessage(unsigned message, WParam wParam, LParam lParam);

}  // namespace rux
