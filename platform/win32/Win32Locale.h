// The system's code page and the user's regional settings, as the run-time library wants them.
#pragma once

#include "rtl/CodePage.h"
#include "rtl/Dates.h"

namespace rux {

/// The tables of the system's code page, or of another by its number. Every unit that can be written reads
/// back as itself; where several places hold one character, it is written to the system's choice. Raises
/// Exception "Unknown code page <number>", also for a page with characters of more than two bytes.
TCodePageTables LoadSystemCodePage(unsigned number = 0);

/// The settings of the user that the process runs as. Texts are in the code page, which has to be set before.
TLocaleFacts LoadLocaleFacts();

/// A date picture of the system in the run-time library's spelling, which knows no eras.
std::string TranslateDatePicture(std::string_view picture);

}  // namespace rux
