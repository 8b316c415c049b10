#include "platform/headless/toolkit/HObject.h"

#include <algorithm>

#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

HObject::HObject(HToolkit& kit, const HClassDef& def) : FKit(kit), FDef(def), FRef(kit.NewRefNumber()) {
    FKit.Remember(*this);
}

HObject::~HObject() {
    FKit.Forget(*this);
}

const TClass& HObject::ClassType() const {
    return *FDef.Class;
}

bool HObject::GetProp(TName name, TPropValue& value) {
    if (FDead) return false;
    const HPropDef* def = FDef.Props->Find(name);
    if (def && def->Get) {
        def->Get(*this, value);
        return true;
    }
    if (const TPropValue* stored = Stored(name)) {
        value = *stored;
        return true;
    }
    if (!def) return false;
    value = def->Default;
    if (def->Kind == TTypeKind::Class && !value.Text.empty()) {
        // A part that exists as soon as somebody asks for it.
        value = HObjectValue(&Adopt(FKit.Make(value.Text)));
        Store(name, value);
    }
    return true;
}

void HObject::SetProp(TName name, TPropValue value) {
    const HPropDef* def = FDef.Props->Find(name);
    if (def && def->Set)
        def->Set(*this, value);
    else if (!def || !def->Get)
        Store(name, std::move(value));
}

const TPropValue* HObject::Stored(TName name) const {
    const auto found =
        std::find_if(FBag.begin(), FBag.end(), [&](const auto& row) { return row.first == name; });
    return found == FBag.end() ? nullptr : &found->second;
}

void HObject::Store(TName name, TPropValue value) {
    const auto found =
        std::find_if(FBag.begin(), FBag.end(), [&](const auto& row) { return row.first == name; });
    if (found == FBag.end())
        FBag.emplace_back(name, std::move(value));
    else
        found->second = std::move(value);
}

const std::string* HObject::Blob(TName name) const {
    const auto found =
        std::find_if(FBlobs.begin(), FBlobs.end(), [&](const auto& row) { return row.first == name; });
    return found == FBlobs.end() ? nullptr : &found->second;
}

HObject& HObject::Adopt(std::unique_ptr<HObject> part) {
    return *FParts.emplace_back(std::move(part));
}

}  // namespace rux
