#include "platform/headless/loader/HFormLoader.h"

#include <algorithm>
#include <unordered_map>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HMenus.h"
#include "rtl/Text.h"

namespace rux {

/// What one call of Load gathers.
struct HFormLoader::TPass {
    TPass(HToolkit& kit, const HClassParents& parents, const std::vector<TFormFile>& files)
        : Classes(kit.ClassDefs(), parents, files), Properties(kit) {
        for (const TFormFile& file : files) Files.emplace(UpperCase(file.Objects.front().ClassName), &file);
    }
    HClassChooser Classes;
    HPropertyReader Properties;
    std::unordered_map<std::string, const TFormFile*> Files;
    std::vector<HComponent*> Roots;
    /// In the order of their making.
    std::vector<HComponent*> Made;
    /// Components by scope and name: forms hold too many to search them one by one.
    std::unordered_map<const HComponent*, std::unordered_map<std::string, HComponent*>> Names;

    /// The file whose root is of that class; nil if it was not given.
    const TFormFile* FileOf(const std::string& className) const {
        const auto found = Files.find(UpperCase(className));
        return found == Files.end() ? nullptr : found->second;
    }
    HComponent* Find(const HComponent& scope, std::string_view name) const {
        const auto row = Names.find(&scope);
        if (row == Names.end()) return nullptr;
        const auto found = row->second.find(UpperCase(name));
        return found == row->second.end() ? nullptr : found->second;
    }
};

namespace {

bool IsIgnored(const HComponent& component, std::string_view property) {
    if (property.starts_with("Explicit")) return true;
    // Of a component that is no control these are the place of its icon on the design surface.
    const bool place = SameText(property, "Left") || SameText(property, "Top");
    return place && !component.ClassType().Is(TFacetId::Control);
}

}  // namespace

bool HFormLoader::LacksAncestor(const HComponent& component) const {
    return FLacking.count(component.RefNumber()) != 0;
}

std::vector<HComponent*> HFormLoader::Load(const std::vector<TFormFile>& files) {
    const HDesktop::THandling handling(FKit.Desktop());
    TPass pass(FKit, FParents, files);
    try {
        for (const TFormFile& file : files) Build(pass, file, MakeRoot(pass, file), 0);
    } catch (...) {
        for (HComponent* root : pass.Roots) root->Free();
        throw;
    }
    Finish(pass);
    std::erase_if(pass.Roots, [](const HComponent* root) { return root->Dead(); });
    return pass.Roots;
}

HComponent& HFormLoader::MakeRoot(TPass& pass, const TFormFile& file) {
    const HClassDef& def = pass.Classes.DefOf(file.Objects.front().ClassName);
    std::unique_ptr<HObject> made = def.Make ? def.Make(FKit, def) : nullptr;
    auto* root = dynamic_cast<HComponent*>(made.get());
    if (!root)
        throw Exception(file.FileName + ":1: a " + def.Class->Name() + " cannot be the root of a form file");
    static_cast<void>(made.release());
    FKit.App().Own(std::unique_ptr<HComponent>(root));
    pass.Roots.push_back(root);
    pass.Made.push_back(root);
    return *root;
}

void HFormLoader::Build(TPass& pass, const TFormFile& file, HComponent& root, std::size_t depth) {
    if (depth > HFormAncestryLimit)
        throw Exception(file.FileName + ":1: forms and frames stand on each other too deep");
    root.BeginLoading();
    const TFormObject& rootObject = file.Objects.front();
    if (rootObject.Kind == TFormObjectKind::Inherited) {
        if (const TFormFile* ancestor = pass.FileOf(FParents.ParentOf(rootObject.ClassName)))
            Build(pass, *ancestor, root, depth + 1);
        else
            FLacking.insert(root.RefNumber());
    }
    root.SetName(rootObject.Name);
    const auto read = [&](HComponent& component, const TFormObject& object, HComponent& scope) {
        for (const TFormProperty& property : object.Properties)
            if (!IsIgnored(component, property.Name)) pass.Properties.Read(component, property, scope);
    };
    read(root, rootObject, root);

    std::vector<HComponent*> made(file.Objects.size(), &root);
    // Objects inside an inline frame are looked up, and owned, there.
    std::vector<HComponent*> scopes(file.Objects.size(), &root);
    for (std::size_t i = 1; i < file.Objects.size(); ++i) {
        const TFormObject& object = file.Objects[i];
        const auto parent = static_cast<std::size_t>(object.Parent);
        HComponent& scope = *scopes[parent];
        HComponent* existing =
            object.Kind == TFormObjectKind::Inherited ? pass.Find(scope, object.Name) : nullptr;
        made[i] = existing ? existing : &MakeObject(pass, object, scope, made[parent], depth);
        if (existing) Place(*existing, nullptr, object);
        scopes[i] = object.Kind == TFormObjectKind::Inline ? made[i] : &scope;
        read(*made[i], object, scope);
    }
}

HComponent& HFormLoader::MakeObject(TPass& pass, const TFormObject& object, HComponent& scope,
                                    HComponent* parent, std::size_t depth) {
    if (pass.Made.size() >= HLoadedObjectLimit) throw Exception("The forms hold too many objects");
    const HClassDef& def = pass.Classes.DefOf(object.ClassName);
    std::unique_ptr<HObject> raw = def.Make ? def.Make(FKit, def) : nullptr;
    if (!dynamic_cast<HComponent*>(raw.get())) {
        // A class that is known, but not as something that forms hold.
        const HClassDef& plain = *FKit.ClassDefs().FindDef("TComponent");
        raw = plain.Make(FKit, FKit.ClassDefs().AddUnknown(object.ClassName, plain));
    }
    HComponent& made = scope.Own(std::unique_ptr<HComponent>(static_cast<HComponent*>(raw.release())));
    made.SetName(object.Name);
    made.BeginLoading();
    pass.Made.push_back(&made);
    if (!object.Name.empty()) pass.Names[&scope].emplace(UpperCase(object.Name), &made);
    Place(made, parent, object);
    if (object.Kind != TFormObjectKind::Inline) return made;
    if (const TFormFile* frame = pass.FileOf(object.ClassName))
        Build(pass, *frame, made, depth + 1);
    else
        FLacking.insert(made.RefNumber());
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

HComponent* HFormLoader::Target(const TPass& pass, const HReference& reference) const {
    const auto within = [&](const HComponent& scope, std::string_view name) {
        HComponent* found = pass.Find(scope, name);
        return found ? found : scope.FindComponent(name);
    };
    std::string_view path = reference.Target;
    const auto next = [&path] {
        const std::string_view part = path.substr(0, path.find('.'));
        path.remove_prefix(std::min(path.size(), part.size() + 1));
        return part;
    };
    // The first name is looked for from the reference outwards, up to the application's forms.
    const std::string_view first = next();
    HComponent* target = nullptr;
    for (HComponent* scope = reference.Scope; scope && !target; scope = scope->OwnerComponent()) {
        const bool outermost = !scope->OwnerComponent();
        target = SameText(scope->Name(), first) ? scope
                 : outermost                    ? scope->FindComponent(first)
                                                : pass.Find(*scope, first);
    }
    while (target && !path.empty()) target = within(*target, next());
    return target;
}

void HFormLoader::Resolve(const TPass& pass, const HReference& reference) {
    HComponent* target = Target(pass, reference);
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
    // Methods get their code first: a timer that is loaded asks whether there is any.
    if (FHook)
        for (HComponent* root : pass.Roots) FHook(*root);
    for (HComponent* component : pass.Made) component->Loaded();
    for (HComponent* root : pass.Roots) root->FireGuarded(FKit.Names().OnCreate);
}

void ShowLoadedForms(const std::vector<HComponent*>& roots) {
    for (HComponent* root : roots) {
        auto* form = dynamic_cast<HCustomForm*>(root);
        if (form && !form->Dead() && form->WantsShow()) form->Show();
    }
}

}  // namespace rux
