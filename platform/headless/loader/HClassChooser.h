// Which class serves an object of a form file.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/headless/forms/FormFile.h"
#include "platform/headless/toolkit/HClasses.h"

namespace rux {

/// Parents that a class file names for classes the toolkit does not know.
class HClassParents {
 public:
    /// Lines `TMyEdit=TEdit`; empty lines and lines that begin with `#` or `;` say nothing. Raises Exception
    /// with file and line for anything else, and for parents that form a circle.
    void Load(const std::string& fileName, std::string_view text);
    /// Empty if the file does not say.
    std::string ParentOf(std::string_view className) const;

 private:
    void CheckCircles(const std::string& fileName) const;
    std::unordered_map<std::string, std::string> FParents;
};

/// Chooses for the objects of one file. Unknown classes are served by the class that the class file names,
/// else by what the file shows: with controls on it, a container; with a size, a control; else a component.
class HClassChooser {
 public:
    HClassChooser(HClasses& classes, const HClassParents& parents, const TFormFile& file);
    const HClassDef& DefOf(std::size_t object);
    /// The class under its file name, served as `fallback` when nothing says better.
    const HClassDef& DefOf(const std::string& className, std::string_view fallback);

 private:
    std::string_view Guess(std::size_t object) const;

    HClasses& FClasses;
    const HClassParents& FParents;
    const TFormFile& FFile;
    std::vector<bool> FIsControl;
};

}  // namespace rux
