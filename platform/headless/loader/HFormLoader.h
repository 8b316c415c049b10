// Brings form files to life: one live object for each object of a file.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "platform/headless/forms/FormFile.h"
#include "platform/headless/loader/HClassChooser.h"
#include "platform/headless/loader/HPropertyReader.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

/// User-interface thread. Every loaded root is owned by the application object.
class HFormLoader {
 public:
    HFormLoader(HToolkit& kit, const HClassParents& parents) : FKit(kit), FParents(parents) {}

    /// Called for each root before the first component is told that it is loaded: the place to give its
    /// methods their code.
    using TRootHook = std::function<void(HComponent& root)>;
    void SetRootHook(TRootHook hook) { FHook = std::move(hook); }

    /// Makes the objects of all files. A file may stand on another one of the same call: the frame behind an
    /// inline object, the ancestor behind an inherited form (which the class file names). Roots come in the
    /// order of the files, without those that code of the application has freed already. Nothing is shown.
    /// Raises Exception when the objects cannot be made; then none of them is left.
    std::vector<HComponent*> Load(const std::vector<TFormFile>& files);

    /// True for a component whose file stands on another one that was not given.
    bool LacksAncestor(const HComponent& component) const;

 private:
    struct TPass;
    HComponent& MakeRoot(TPass& pass, const TFormFile& file);
    void Build(TPass& pass, const TFormFile& file, HComponent& root, std::size_t depth);
    HComponent& MakeObject(TPass& pass, const TFormObject& object, HComponent& scope, HComponent* parent,
                           std::size_t depth);
    HComponent* Target(const TPass& pass, const HReference& reference) const;
    void Resolve(const TPass& pass, const HReference& reference);
    void Place(HComponent& component, HComponent* parent, const TFormObject& object);
    void Finish(TPass& pass);

    HToolkit& FKit;
    const HClassParents& FParents;
    TRootHook FHook;
    std::unordered_set<std::uint64_t> FLacking;
};

/// Roots that the application shows once everything is loaded: forms with Visible = True in their file.
void ShowLoadedForms(const std::vector<HComponent*>& roots);

}  // namespace rux
