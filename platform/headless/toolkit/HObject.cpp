#include "platform/headless/toolkit/HObject.h"

#include <algorithm>

#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

HObject* HAnyRef::Get() const {
    // The pointer alone does not tell: its place in memory may belong to another object by now.
    return FKit && FKit->Find(FRef) == FObject ? FObject : nullptr;
}

void HAnyRef::Set(HObject* object) {
    FObject = object;
    FKit = object ? &object->Kit() : nullptr;
    FRef = object ? object->RefNumber() : 0;
}

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
    return GetKept(name, value);
}

bool HObject::GetKept(TName name, TPropValue& value) {
    if (const TPropValue* stored = Stored(name)) {
        value = *stored;
        // Ordinal is the number of the object; what was freed reads as nil.
        if (value.Object && FKit.Find(static_cast<std::uint64_t>(value.Ordinal)) != value.Object)
            value.Object = nullptr;
        return true;
    }
    const HPropDef* def = FDef.Props->Find(name);
    if (!def) return false;
    value = def->Default;
    if (def->Kind == TTypeKind::Class && !value.Text.empty()) {
        // A part that exists as soon as somebody asks for it.
        std::unique_ptr<HObject> part = FKit.Make(value.Text);
        value = HObjectValue(part.get());
        Store(name, value);
        if (part) Adopt(std::move(part));
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

const TPropValue* HObject::Kept(TName name) const {
    if (const TPropValue* stored = Stored(name)) return stored;
    const HPropDef* def = FDef.Props->Find(name);
    return def ? &def->Default : nullptr;
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

void HObject::StoreBlob(TName name, std::string bytes) {
    // A form that stands on another one may store it anew.
    std::erase_if(FBlobs, [&](const auto& row) { return row.first == name; });
    FBlobs.emplace_back(name, std::move(bytes));
}

HObject& HObject::Adopt(std::unique_ptr<HObject> part) {
    return *FParts.emplace_back(std::move(part));
}

}  // namespace rux
