// What the server does to its surroundings: folders at start, the log and the stack on demand.
#pragma once

#include <string>

namespace rux {

/// Removes the working folder of an earlier run on this port with all it holds, and makes it anew with the
/// folder of the pictures. Failures are ignored.
void PrepareFolders();

/// Empties the log and the stack of requests. Requests that are waited for go on being waited for; what they
/// post later is ignored. Answers "True". Any thread.
std::string ClearServer();

}  // namespace rux
