// Brings form files to life: one live object for each object of a file.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
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

    /// Called for each root before OnCreate fires: the place to give its methods their code.
    using TRootHook = std::function<void(HComponent& root)>;
    void SetRootHook(TRootHook hook) { FHook = std::move(hook); }

    /// Makes the objects of all files. A file may stand on another one of the same call: the frame behind an
    /// inline object, the ancestor behind an inherited form (which the class file names). Roots come in the
    /// order of the files. Nothing is shown. Raises Exception when the objects cannot be made.
    std::vector<HComponent*> Load(const std::vector<TFormFile>& files);

    /// True for a component whose file stands on another one that was not given.
    bool LacksAncestor(const HComponent& component) const;

 private:
    struct TPass;
    void Build(TPass& pass, const TFormFile& file, HComponent& root, std::size_t depth);
    HComponent& MakeObject(TPass& pass, const TFormObject& object, const HClassDef& def, HComponent& scope,
                           HComponent* parent, std::size_t depth);
    void Resolve(const TPass& pass, const HReference& reference);
    void Place(HComponent& component, HComponent* parent, const TFormObject& object);
    void Finish(TPass& pass);
    const TFormFile* FileOfClass(const std::string& className) const;

    HToolkit& FKit;
    const HClassParents& FParents;
    TRootHook FHook;
    std::unordered_map<std::string, const TFormFile*> FFilesByClass;
    std::vector<const HComponent*> FLacking;
};

/// Roots that the application shows once everything is loaded: forms with Visible = True in their file.
void ShowLoadedForms(const std::vector<HComponent*>& roots);

}  // namespace rux
