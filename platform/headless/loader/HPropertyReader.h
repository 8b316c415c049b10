// Puts the values of a form file into live objects.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/forms/FormFile.h"
#include "platform/headless/toolkit/HComponent.h"
#include "platform/headless/toolkit/HProps.h"

namespace rux {

/// A property that names a component; it may stand later in the file, or in another one.
struct HReference {
    HObject* Object = nullptr;
    TName Property;
    std::string Target;
    /// Where names are looked up first.
    HComponent* Scope = nullptr;
};

/// Unknown properties and values of an unexpected kind are kept as they are, so that they can be read by
/// name.
class HPropertyReader {
 public:
    explicit HPropertyReader(HToolkit& kit) : FKit(kit) {}
    void Read(HObject& object, const TFormProperty& property, HComponent& scope);
    /// What is still to be looked up once all objects are alive.
    const std::vector<HReference>& References() const { return FReferences; }

 private:
    void ReadValue(HObject& object, TName name, const TFormValue& value, HComponent& scope);
    void ReadIdent(HObject& object, TName name, const HPropDef* def, const std::string& ident,
                   HComponent& scope);
    void ReadCollection(HObject& object, TName name, const TFormCollection& collection, HComponent& scope);
    HObject* PartOf(HObject& object, TName name, std::string_view className);

    HToolkit& FKit;
    std::vector<HReference> FReferences;
};

}  // namespace rux
