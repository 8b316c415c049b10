#include "platform/headless/loader/HFormLoader.h"

#include <algorithm>
#include <unordered_set>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HMenus.h"
#include "rtl/Text.h"

namespace rux {

/// What one call of Load gathers.
struct HFormLoader::TPass {
    explicit TPass(HToolkit& kit) : Properties(kit) {}
    HPropertyReader Properties;
    std::vector<HComponent*> Roots;
    /// In the order of their making.
    std::vector<HComponent*> Made;
    std::unordered_set<const HComponent*> Known;
    /// Components by scope and name: forms hold too many to search them one by one.
    std::map<const HComponent*, std::unordered_map<std::string, HComponent*>> Names;

    HComponent* Find(const HComponent& scope, std::string_view name) const {
        const auto row = Names.find(&scope);
        if (row == Names.end()) return nullptr;
        const auto found = row->second.find(UpperCase(name));
        return found == row->second.end() ? nullptr : found->second;
    }
};

namespace {

/// What serves a root that neither the toolkit nor the class file knows.
std::string_view RootKind(const TFormFile& file) {
    const TFormObject& root = file.Objects.front();
    const auto has = [&](std::string_view name) {
        return std::any_of(root.Properties.begin(), root.Properties.end(),
                           [&](const TFormProperty& p) { return SameText(p.Name, name); });
    };
    if (has("TabOrder")) return "TFrame";
    const bool form = has("Caption") || has("ClientWidth") || has("ClientHeight") || has("PixelsPerInch") ||
                      has("BorderStyle") || has("Color") || has("Font.Name");
    const bool module = !form && has("Height") && has("Width");
    return module ? "TDataModule" : "TForm";
}

bool IsIgnored(const HComponent& component, std::string_view property) {
    if (property.starts_with("Explicit")) return true;
    // Of a component that is no control these are the place of its icon on the design surface.
    const bool place = SameText(property, "Left") || SameText(property, "Top");
    return place && !component.ClassType().Is(TFacetId::Control);
}

}  // namespace

const TFormFile* HFormLoader::FileOfClass(const std::string& className) const {
    const auto found = FFilesByClass.find(UpperCase(className));
    return found == FFilesByClass.end() ? nullptr : found->second;
}

bool HFormLoader::LacksAncestor(const HComponent& component) const {
    return std::find(FLacking.begin(), FLacking.end(), &component) != FLacking.end();
}

std::vector<HComponent*> HFormLoader::Load(const std::vector<TFormFile>& files) {
    for (const TFormFile& file : files)
        FFilesByClass.emplace(UpperCase(file.Objects.front().ClassName), &file);
    TPass pass(FKit);
    for (const TFormFile& file : files) {
        HClassChooser chooser(FKit.ClassDefs(), FParents, file);
        const HClassDef& def = chooser.DefOf(file.Objects.front().ClassName, RootKind(file));
        std::unique_ptr<HObject> made = def.Make ? def.Make(FKit, def) : nullptr;
        auto* root = dynamic_cast<HComponent*>(made.get());
        if (!root)
            throw Exception(file.FileName + ":1: a " + def.Class->Name() +
                            " cannot be the root of a form file");
        made.release();
        FKit.App().Own(std::unique_ptr<HComponent>(root));
        pass.Roots.push_back(root);
        Build(pass, file, *root, 0);
    }
    Finish(pass);
    return pass.Roots;
}

void HFormLoader::Build(TPass& pass, const TFormFile& file, HComponent& root, std::size_t depth) {
    if (depth > HFormAncestryLimit)
        throw Exception(file.FileName + ":1: forms and frames stand on each other too deep");
    const TFormObject& rootObject = file.Objects.front();
    if (rootObject.Kind == TFormObjectKind::Inherited) {
        if (const TFormFile* ancestor = FileOfClass(FParents.ParentOf(rootObject.ClassName)))
            Build(pass, *ancestor, root, depth + 1);
        else
            FLacking.push_back(&root);
    }
    if (pass.Known.insert(&root).second) pass.Made.push_back(&root);
    root.BeginLoading();
    root.SetName(rootObject.Name);
    const auto read = [&](HComponent& component, const TFormObject& object, HComponent& scope) {
        for (const TFormProperty& property : object.Properties)
            if (!IsIgnored(component, property.Name)) pass.Properties.Read(component, property, scope);
    };
    read(root, rootObject, root);

    HClassChooser chooser(FKit.ClassDefs(), FParents, file);
    std::vector<HComponent*> made(file.Objects.size(), &root);
    // Objects inside an inline frame are looked up, and owned, there.
    std::vector<HComponent*> scopes(file.Objects.size(), &root);
    for (std::size_t i = 1; i < file.Objects.size(); ++i) {
        const TFormObject& object = file.Objects[i];
        const auto parent = static_cast<std::size_t>(object.Parent);
        HComponent& scope = *scopes[parent];
        HComponent* existing =
            object.Kind == TFormObjectKind::Inherited ? pass.Find(scope, object.Name) : nullptr;
        made[i] =
            existing ? existing : &MakeObject(pass, object, chooser.DefOf(i), scope, made[parent], depth);
        if (existing) Place(*existing, nullptr, object);
        scopes[i] = object.Kind == TFormObjectKind::Inline ? made[i] : &scope;
        read(*made[i], object, scope);
    }
}

HComponent& HFormLoader::MakeObject(TPass& pass, const TFormObject& object, const HClassDef& def,
                                    HComponent& scope, HComponent* parent, std::size_t depth) {
    if (pass.Made.size() >= HLoadedObjectLimit) throw Exception("The forms hold too many objects");
    std::unique_ptr<HObject> raw = def.Make ? def.Make(FKit, def) : nullptr;
    if (!dynamic_cast<HComponent*>(raw.get())) {
        // A class that is known, but not as something that forms hold.
        const HClassDef& plain = *FKit.ClassDefs().FindDef("TComponent");
        raw = plain.Make(FKit, FKit.ClassDefs().AddUnknown(object.ClassName, plain));
    }
    HComponent& made = scope.Own(std::unique_ptr<HComponent>(static_cast<HComponent*>(raw.release())));
    made.SetName(object.Name);
    made.BeginLoading();
    pass.Known.insert(&made);
    pass.Made.push_back(&made);
    if (!object.Name.empty()) pass.Names[&scope].emplace(UpperCase(object.Name), &made);
    Place(made, parent, object);
    if (object.Kind != TFormObjectKind::Inline) return made;
    if (const TFormFile* frame = FileOfClass(object.ClassName))
        Build(pass, *frame, made, depth + 1);
    else
        FLacking.push_back(&made);
    made.SetName(object.Name);
    return made;
}

void HFormLoader::Place(HComponent& component, HComponent* parent, const TFormObject& object) {
    if (parent) component.SetParentComponent(parent);
    auto* control = dynamic_cast<HControl*>(&component);
    if (control && !control->ParentControl() && !dynamic_cast<HCustomForm*>(control)) {
        HComponent* step = parent;
        while (step && !dynamic_cast<HWinControl*>(step)) step = step->ParentComponent();
        control->SetParent(dynamic_cast<HWinControl*>(step));
    }
    if (control && control->ParentControl() && object.Order)
        control->ParentControl()->SetControlIndex(*control, *object.Order);
    auto* item = dynamic_cast<HMenuItem*>(&component);
    if (!item || item->Parent()) return;
    if (auto* menu = dynamic_cast<HMenu*>(parent)) menu->Root().AddItem(*item);
    if (auto* above = dynamic_cast<HMenuItem*>(parent)) above->AddItem(*item);
}

void HFormLoader::Resolve(const TPass& pass, const HReference& reference) {
    HComponent* target = nullptr;
    const std::size_t dot = reference.Target.find('.');
    if (dot == std::string::npos) {
        for (HComponent* scope = reference.Scope; scope && !target; scope = scope->OwnerComponent())
            target = SameText(scope->Name(), reference.Target) ? scope : pass.Find(*scope, reference.Target);
    } else {
        for (const HComponent* root : pass.Roots)
            if (!target && SameText(root->PlainName(), reference.Target.substr(0, dot)))
                target = pass.Find(*root, reference.Target.substr(dot + 1));
    }
    const HPropDef* def = reference.Object->Def().Props->Find(reference.Property);
    if (target && (!def || def->Kind == TTypeKind::Class)) {
        reference.Object->SetProp(reference.Property, HObjectValue(target));
        return;
    }
    // An element of an enumeration that nobody knows, or a component of a module that is not loaded.
    if (!def || !def->Get)
        reference.Object->Store(reference.Property,
                                {.Kind = TTypeKind::Enumeration, .Ordinal = -1, .Text = reference.Target});
}

void HFormLoader::Finish(TPass& pass) {
    for (const HReference& reference : pass.Properties.References()) Resolve(pass, reference);
    for (HComponent* component : pass.Made) component->Loaded();
    for (HComponent* root : pass.Roots) {
        if (FHook) FHook(*root);
        root->Fire(FKit.Names().OnCreate);
    }
}

void ShowLoadedForms(const std::vector<HComponent*>& roots) {
    for (HComponent* root : roots) {
        auto* form = dynamic_cast<HCustomForm*>(root);
        if (form && !form->Dead() && form->ShowOnLoad()) form->Show();
    }
}

}  // namespace rux
