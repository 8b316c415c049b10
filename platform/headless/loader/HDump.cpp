#include "platform/headless/loader/HDump.h"

#include <algorithm>
#include <unordered_map>

#include "platform/headless/loader/HContent.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HMenus.h"
#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/Numbers.h"

namespace rux {

namespace {

constexpr std::size_t IndentLimit = 32;

struct TLine {
    HComponent* Component;
    std::size_t Depth;
};

HComponent* ParentOf(HComponent& component) {
    auto* control = dynamic_cast<HControl*>(&component);
    if (control && control->ParentControl()) return control->ParentControl();
    if (auto* item = dynamic_cast<HMenuItem*>(&component);
        item && item->Parent() && !item->Parent()->PlainName().empty())
        return item->Parent();
    if (component.ParentComponent()) return component.ParentComponent();
    return component.OwnerComponent();
}

std::string Quoted(const std::string& text) {
    std::string result = "'";
    for (const char c : text) {
        if (c == '\r' || c == '\n')
            result += c == '\r' ? "\\r" : "\\n";
        else
            result += c;
    }
    return result + "'";
}

std::string RectText(HComponent& component) {
    auto* control = dynamic_cast<HControl*>(&component);
    if (!control) return "-";
    const TRect r = control->ScreenRect();
    return "(" + IntToStr(r.Left) + "," + IntToStr(r.Top) + ")-(" + IntToStr(r.Right) + "," +
           IntToStr(r.Bottom) + ")";
}

/// Text of a published property, empty for none.
std::string PropText(HComponent& component, std::string_view name) {
    TPropValue value;
    return component.GetProp(FindName(name), value) ? value.Text : std::string();
}

std::string Caption(HComponent& component) {
    if (auto* control = dynamic_cast<HControl*>(&component)) return control->Text();
    return PropText(component, "Caption");
}

std::string Flag(HComponent& component, std::string_view name) {
    auto* control = dynamic_cast<HControl*>(&component);
    if (!control) {
        const std::string text = PropText(component, name);
        return text.empty() ? "-" : text;
    }
    return BoolToStr(name == "Visible" ? control->Visible() : control->Enabled());
}

std::string NameOf(const HComponent* component) {
    return !component || component->PlainName().empty() ? "-" : component->PlainName();
}

const std::string& KnownClass(const HClassDef& def) {
    const HClassDef* step = &def;
    while (!step->Known) step = step->Parent;
    return step->Class->Name();
}

std::string Describe(HComponent& component, const HComponent* parent, bool lacksAncestor) {
    std::string line = component.ClassName() + " " + NameOf(&component) + " parent=" + NameOf(parent) +
                       " rect=" + RectText(component) + " visible=" + Flag(component, "Visible") +
                       " enabled=" + Flag(component, "Enabled") + " caption=" + Quoted(Caption(component));
    if (!component.Def().Known) line += " [unknown class, served as " + KnownClass(component.Def()) + "]";
    if (lacksAncestor) line += " [no ancestor]";
    return line;
}

std::string Indent(std::size_t depth) {
    return std::string(2 * std::min(depth, IndentLimit), ' ');
}

/// What the component holds that is no component: "- node 'text' [selected]".
std::string DescribeContent(HComponent& component, std::size_t depth) {
    std::string text;
    for (const HContentLine& line : ContentOf(component)) {
        text += Indent(depth + line.Depth) + "- " + std::string(line.Kind);
        for (const std::string& column : line.Texts) text += " " + Quoted(column);
        text += (line.State.empty() ? "" : " [" + line.State + "]") + "\n";
    }
    return text;
}

/// All components below the roots, by parent, in the order of their making.
std::unordered_map<const HComponent*, std::vector<HComponent*>> ChildrenByParent(
    const std::vector<HComponent*>& roots) {
    std::unordered_map<const HComponent*, std::vector<HComponent*>> children;
    std::vector<HComponent*> owners = roots;
    for (std::size_t i = 0; i < owners.size(); ++i) {
        for (const auto& component : owners[i]->Components()) {
            owners.push_back(component.get());
            // A menu's root item is part of the menu and not of the file.
            const bool hidden = dynamic_cast<HMenu*>(owners[i]) && component->PlainName().empty();
            if (!hidden) children[ParentOf(*component)].push_back(component.get());
        }
    }
    return children;
}

}  // namespace

std::string DumpComponents(const std::vector<HComponent*>& roots,
                           const std::function<bool(const HComponent&)>& lacksAncestor) {
    const auto children = ChildrenByParent(roots);
    std::string text;
    std::vector<TLine> pending;
    for (auto root = roots.rbegin(); root != roots.rend(); ++root) pending.push_back({*root, 0});
    while (!pending.empty()) {
        const TLine line = pending.back();
        pending.pop_back();
        const HComponent* parent = line.Depth == 0 ? nullptr : ParentOf(*line.Component);
        text += Indent(line.Depth) + Describe(*line.Component, parent, lacksAncestor(*line.Component)) + "\n";
        text += DescribeContent(*line.Component, line.Depth + 1);
        const auto below = children.find(line.Component);
        if (below == children.end()) continue;
        for (auto child = below->second.rbegin(); child != below->second.rend(); ++child)
            pending.push_back({*child, line.Depth + 1});
    }
    return text;
}

}  // namespace rux
