// Deleting a folder with all it holds.
#pragma once

#include <string>

namespace rux {

/// Goes on past failures and answers whether all went; a folder that is not there is gone. Links are removed,
/// never followed, at any moment of the walk. Takes no more stack or descriptors for deep folders; what is
/// kept grows by one name for each level. Never deletes the root,
/// however it is spelt.
bool DeleteSystemTree(std::string path);

}  // namespace rux
