// The classes that the headless toolkit can make, and the class references of everything alive.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/headless/toolkit/HProps.h"
#include "platform/shared/ClassTable.h"

namespace rux {

using HMaker = std::unique_ptr<HObject> (*)(HToolkit&, const HClassDef&);

/// One class: its reference, how an object of it is made, what it publishes.
struct HClassDef {
    const TClass* Class = nullptr;
    const HClassDef* Parent = nullptr;
    /// nil for classes that no form file can name.
    HMaker Make = nullptr;
    std::shared_ptr<const HPropTable> Props;
    /// Collections: class of their items.
    const HClassDef* Item = nullptr;
    /// False for classes that only a form file or a class file brought up.
    bool Known = true;
};

template <class T>
std::unique_ptr<HObject> HMake(HToolkit& kit, const HClassDef& def) {
    return std::make_unique<T>(kit, def);
}

/// User-interface thread.
class HClasses final : public TNamedClasses {
 public:
    /// A class of the toolkit. `parent` must have been added before; empty for the root. Without a maker the
    /// parent's is taken, without properties of its own the parent's table.
    const HClassDef& Add(std::string_view name, std::string_view parent, HMaker make = nullptr,
                         std::vector<HPropDef> props = {});
    /// A collection of items of a class that must have been added before.
    const HClassDef& AddCollection(std::string_view name, std::string_view item);
    /// A class that the toolkit does not know, served as its parent is. It publishes `props` as well, as far
    /// as the parent does not.
    const HClassDef& AddUnknown(std::string_view name, const HClassDef& parent,
                                std::vector<HPropDef> props = {});
    /// nil if there is none.
    const HClassDef* FindDef(std::string_view name) const;

 private:
    const HClassDef& Keep(HClassDef def);
    std::deque<HClassDef> FDefs;
    std::unordered_map<std::uint32_t, const HClassDef*> FDefByName;
};

}  // namespace rux
