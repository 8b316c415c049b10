// Windows of the sample application that are no forms.
#pragma once

#include <string>

#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

/// The system's message box over the application's windows.
void ShowStock(HToolkit& kit);

/// A dialog of the system for a file name, a format and a folder; what was chosen, joined by blanks, or empty
/// when it was cancelled.
std::string AskForExport(HToolkit& kit);

}  // namespace rux
