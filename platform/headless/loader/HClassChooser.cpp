#include "platform/headless/loader/HClassChooser.h"

#include <algorithm>
#include <initializer_list>

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
    for (const auto& [name, parent] : FParents) {
        std::string step = parent;
        for (std::size_t count = 0; !step.empty(); ++count) {
            if (count > FParents.size())
                throw Exception(fileName + ": the parents of " + name + " form a circle");
            step = ParentOf(step);
        }
    }
}

std::string HClassParents::ParentOf(std::string_view className) const {
    const auto found = FParents.find(UpperCase(className));
    return found == FParents.end() ? std::string() : found->second;
}

// ------------------------------------------------------------------------------------------ choice

HClassChooser::HClassChooser(HClasses& classes, const HClassParents& parents, const TFormFile& file)
    : FClasses(classes), FParents(parents), FFile(file), FIsControl(file.Objects.size()) {
    // Children stand behind their parents, so that going backwards meets them first.
    for (std::size_t i = file.Objects.size(); i-- > 0;) {
        const TFormObject& object = file.Objects[i];
        const HClassDef* known = FClasses.FindDef(object.ClassName);
        const bool inherits = object.Kind != TFormObjectKind::Object;
        FIsControl[i] =
            known ? IsControlClass(known)
                  : object.Kind == TFormObjectKind::Inline ||
                        HasProperties(object, {"Left", "Top", "Width", "Height"}) ||
                        (inherits && HasProperties(object, {"Width"})) ||
                        std::any_of(object.Children.begin(), object.Children.end(),
                                    [&](int child) { return FIsControl[static_cast<std::size_t>(child)]; });
    }
}

std::string_view HClassChooser::Guess(std::size_t index) const {
    const TFormObject& object = FFile.Objects[index];
    if (object.Kind == TFormObjectKind::Inline) return "TFrame";
    if (!FIsControl[index]) return "TComponent";
    // Only a control with a window of its own has children or a place in the tab order.
    const bool windowed = !object.Children.empty() || HasProperties(object, {"TabOrder"});
    return windowed ? "TCustomControl" : "TGraphicControl";
}

const HClassDef& HClassChooser::DefOf(std::size_t object) {
    return DefOf(FFile.Objects[object].ClassName, Guess(object));
}

const HClassDef& HClassChooser::DefOf(const std::string& className, std::string_view fallback) {
    // From the class upwards to the first that is known, then down again.
    std::vector<std::string> unknown;
    std::string step = className;
    const HClassDef* def = FClasses.FindDef(step);
    while (!def) {
        unknown.push_back(step);
        step = FParents.ParentOf(step);
        if (step.empty()) step = fallback;
        def = FClasses.FindDef(step);
    }
    for (auto name = unknown.rbegin(); name != unknown.rend(); ++name)
        def = &FClasses.AddUnknown(*name, *def);
    return *def;
}

}  // namespace rux
