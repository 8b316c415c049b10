// Which class serves an object of a form file.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
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

/// Chooses for the objects of some files. Unknown classes are served by the class that the class file names,
/// else by what all objects of the class together show: with controls on one of them, a container; with a
/// size, a control; else a component.
class HClassChooser {
 public:
    HClassChooser(HClasses& classes, const HClassParents& parents, const std::vector<TFormFile>& files);
    const HClassDef& DefOf(const std::string& className);

 private:
    /// In the order in which one object's evidence outweighs another's.
    enum class TShape { Component, Graphic, Windowed, Module, Form, Frame };
    void Look(const TFormFile& file);
    static TShape RootShape(const TFormObject& root);
    std::string_view ServerOf(const std::string& className) const;
    const HClassDef& AddUnknown(const std::string& className, const HClassDef& parent);

    HClasses& FClasses;
    const HClassParents& FParents;
    std::unordered_map<std::string, TShape> FShapes;
    /// Names of the properties that the files store for objects of unknown classes, by class.
    std::unordered_map<std::string, std::unordered_set<std::uint32_t>> FStored;
};

}  // namespace rux
