// Code pages as the C library knows them.
#pragma once

#include "rtl/CodePage.h"

namespace rux {

/// The tables of a code page of the window system by its number, such as 936 or 1252. Every unit that can be
/// written reads back as itself; where several places hold one character, it is written to the first.
/// Raises Exception "Unknown code page <number>".
TCodePageTables LoadCodePage(unsigned number);

}  // namespace rux
