// Deleting a folder with all it holds.
#pragma once

#include <string>

namespace rux {

/// Goes on past failures and answers whether all went; a folder that is not there is gone. Read-only files
/// go, too. What is a link when its folder is listed is removed, not followed. Never the root of a drive or
/// share. What lies deeper than a name can tell, or bears a name that the code page lacks, stays.
bool DeleteFolderTree(std::string name);

}  // namespace rux
