#include "platform/headless/loader/HClassChooser.h"

#include <algorithm>
#include <initializer_list>

#include "platform/headless/classes/HClassTables.h"
#include "rtl/StringList.h"
#include "rtl/Text.h"

namespace rux {

namespace {

bool HasProperties(const TFormObject& object, std::initializer_list<std::string_view> names) {
    return std::all_of(names.begin(), names.end(), [&](std::string_view name) {
        return std::any_of(object.Properties.begin(), object.Properties.end(),
                           [&](const TFormProperty& p) { return SameText(p.Name, name); });
    });
}

bool IsControlClass(const HClassDef* def) {
    return def && def->Class->Is(TFacetId::Control);
}

}  // namespace

// ------------------------------------------------------------------------------------------ class file

void HClassParents::Load(const std::string& fileName, std::string_view text) {
    TStringList lines;
    lines.SetText(text);
    for (std::size_t i = 0; i < lines.Count(); ++i) {
        const std::string_view line = Trim(lines.Items()[i]);
        if (line.empty() || line.front() == '#' || line.front() == ';') continue;
        const std::size_t equals = line.find('=');
        const std::string_view name = Trim(line.substr(0, equals));
        const std::string_view parent =
            equals == line.npos ? std::string_view() : Trim(line.substr(equals + 1));
        if (name.empty() || parent.empty())
            throw Exception(fileName + ":" + std::to_string(i + 1) + ": found \"" + std::string(line) +
                            "\", expected CLASS=PARENT");
        FParents[UpperCase(name)] = parent;
    }
    CheckCircles(fileName);
}

void HClassParents::CheckCircles(const std::string& fileName) const {
    // The first class of a walk that met the name; a walk that meets its own mark has gone round.
    std::unordered_map<std::string, const std::string*> marks;
    for (const auto& [name, parent] : FParents) {
        for (std::string step = name; !step.empty(); step = UpperCase(ParentOf(step))) {
            const auto [mark, isNew] = marks.emplace(step, &name);
            if (isNew) continue;
            if (mark->second == &name)
                throw Exception(fileName + ": the parents of " + step + " form a circle");
            break;
        }
    }
}

std::string HClassParents::ParentOf(std::string_view className) const {
    const auto found = FParents.find(UpperCase(className));
    return found == FParents.end() ? std::string() : found->second;
}

// ------------------------------------------------------------------------------------------ choice

HClassChooser::HClassChooser(HClasses& classes, const HClassParents& parents,
                             const std::vector<TFormFile>& files)
    : FClasses(classes), FParents(parents) {
    for (const TFormFile& file : files) Look(file);
}

HClassChooser::TShape HClassChooser::RootShape(const TFormObject& root) {
    if (HasProperties(root, {"TabOrder"})) return TShape::Frame;
    for (const std::string_view name :
         {"Caption", "ClientWidth", "ClientHeight", "PixelsPerInch", "BorderStyle", "Color", "Font.Name"})
        if (HasProperties(root, {name})) return TShape::Form;
    return HasProperties(root, {"Height", "Width"}) ? TShape::Module : TShape::Form;
}

void HClassChooser::Look(const TFormFile& file) {
    std::vector<bool> isControl(file.Objects.size());
    // Children stand behind their parents, so that going backwards meets them first.
    for (std::size_t i = file.Objects.size(); i-- > 0;) {
        const TFormObject& object = file.Objects[i];
        if (const HClassDef* known = FClasses.FindDef(object.ClassName)) {
            isControl[i] = IsControlClass(known);
            continue;
        }
        const bool holdsControls =
            std::any_of(object.Children.begin(), object.Children.end(),
                        [&](int child) { return isControl[static_cast<std::size_t>(child)]; });
        const bool sized = HasProperties(object, {"Left", "Top", "Width", "Height"}) ||
                           (object.Kind != TFormObjectKind::Object && HasProperties(object, {"Width"}));
        isControl[i] = object.Kind == TFormObjectKind::Inline || sized || holdsControls;
        // Only a control with a window of its own has children or a place in the tab order.
        const bool windowed = !object.Children.empty() || HasProperties(object, {"TabOrder"});
        const TShape shape = i == 0                                   ? RootShape(object)
                             : object.Kind == TFormObjectKind::Inline ? TShape::Frame
                             : !isControl[i]                          ? TShape::Component
                             : windowed                               ? TShape::Windowed
                                                                      : TShape::Graphic;
        const std::string className = UpperCase(object.ClassName);
        std::unordered_set<std::uint32_t>& stored = FStored[className];
        for (const TFormProperty& property : object.Properties)
            if (const TName name = FindName(property.Name)) stored.insert(name.Id);
        TShape& kept = FShapes.emplace(className, shape).first->second;
        kept = std::max(kept, shape);
    }
}

std::string_view HClassChooser::ServerOf(const std::string& className) const {
    static constexpr std::string_view Servers[] = {"TComponent",  "TGraphicControl", "TCustomControl",
                                                   "TDataModule", "TForm",           "TFrame"};
    const auto found = FShapes.find(UpperCase(className));
    return found == FShapes.end() ? std::string_view() : Servers[static_cast<std::size_t>(found->second)];
}

const HClassDef& HClassChooser::DefOf(const std::string& className) {
    // From the class upwards to the first that is known, then down again.
    std::vector<std::string> unknown;
    std::string step = className;
    const HClassDef* def = FClasses.FindDef(step);
    while (!def) {
        unknown.push_back(step);
        step = FParents.ParentOf(step);
        // What no class file explains is served by its looks: the topmost class's, else those of the class
        // itself.
        if (step.empty()) step = ServerOf(unknown.back());
        if (step.empty()) step = ServerOf(className);
        def = FClasses.FindDef(step);
    }
    for (auto name = unknown.rbegin(); name != unknown.rend(); ++name) def = &AddUnknown(*name, *def);
    return *def;
}

const HClassDef& HClassChooser::AddUnknown(const std::string& className, const HClassDef& parent) {
    if (!IsControlClass(&parent)) return FClasses.AddUnknown(className, parent);
    const auto stored = [&](TName name) {
        const auto found = FStored.find(UpperCase(className));
        return found != FStored.end() && found->second.count(name.Id) != 0;
    };
    const bool windowed = parent.Class->Is(TFacetId::WinControl);
    return FClasses.AddUnknown(className, parent, UnknownControlRows(windowed, stored));
}

}  // namespace rux
