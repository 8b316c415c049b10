// Files that list the nodes of a tree: one in a line, as many tabs or blanks in front as there are levels
// above it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "rtl/StringList.h"

namespace rux {

/// The paths of the nodes that such a file lists, one after the other: together they may be far larger than
/// the file. The texts of a path are joined by `/`; one that holds a blank or a quote stands in double
/// quotes, so that such a path names no node. Controllers count on it.
class TTreeFileReader {
 public:
    /// Raises EFOpenError when the file cannot be read.
    explicit TTreeFileReader(const std::string& fileName);
    /// False at the end.
    bool Next(std::string& path);

 private:
    TStringList FLines;
    long long FNext = 0;
    /// Texts of the last line and of those above it; levels that a line left out are empty.
    std::vector<std::string> FRow;
};

}  // namespace rux
