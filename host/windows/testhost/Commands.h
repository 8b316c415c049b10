// What a test may ask of the host past the agent. One line in, one line out.
#pragma once

#include <windows.h>

#include <string>

namespace rux {

/// On a thread that is not the user interface's. `application` is the hidden window.
std::string RunCommand(HWND application, std::string line);
/// When no more commands come: ends the host if one asked for that.
void EndIfAsked();

}  // namespace rux
