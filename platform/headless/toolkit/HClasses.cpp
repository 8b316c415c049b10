#include "platform/headless/toolkit/HClasses.h"

#include "rtl/Text.h"

namespace rux {

const HClassDef* HClasses::FindDef(std::string_view name) const {
    const auto found = FDefByName.find(FindName(name).Id);
    return found == FDefByName.end() ? nullptr : found->second;
}

const HClassDef& HClasses::Keep(HClassDef def) {
    const HClassDef& kept = FDefs.emplace_back(std::move(def));
    FDefByName.emplace(InternName(kept.Class->Name()).Id, &kept);
    return kept;
}

const HClassDef& HClasses::Add(std::string_view name, std::string_view parentName, HMaker make,
                               std::vector<HPropDef> props) {
    const HClassDef* parent = parentName.empty() ? nullptr : FindDef(parentName);
    Assert(parentName.empty() || parent, "A class needs its parent first");
    HClassDef def;
    def.Class = &Define(name, parent ? parent->Class : nullptr);
    def.Parent = parent;
    def.Item = parent ? parent->Item : nullptr;
    def.Make = make || !parent ? make : parent->Make;
    def.Props = parent && props.empty()
                    ? parent->Props
                    : std::make_shared<HPropTable>(parent ? parent->Props.get() : nullptr, std::move(props));
    return Keep(std::move(def));
}

const HClassDef& HClasses::AddCollection(std::string_view name, std::string_view itemName) {
    const HClassDef* item = FindDef(itemName);
    Assert(item, "A collection needs the class of its items first");
    const HClassDef* parent = FindDef("TCollection");
    HClassDef def = *parent;
    def.Class = &Define(name, parent->Class);
    def.Parent = parent;
    def.Item = item;
    return Keep(std::move(def));
}

const HClassDef& HClasses::AddUnknown(std::string_view name, const HClassDef& parent,
                                      std::vector<HPropDef> props) {
    HClassDef def = parent;
    std::erase_if(props, [&](const HPropDef& prop) { return parent.Props->Find(prop.Name) != nullptr; });
    if (!props.empty()) def.Props = std::make_shared<HPropTable>(parent.Props.get(), std::move(props));
    def.Class = &Define(name, parent.Class);
    def.Parent = &parent;
    def.Known = false;
    return Keep(std::move(def));
}

}  // namespace rux
