#include "Engine/Locator/RUXFinderRegistration.h"

#include "Engine/Locator/RUXFormFindAdapters.h"
#include "Engine/Locator/RUXNotVCLFindAdapter.h"
#include "Engine/Registry/RUXTypeRegistry.h"

namespace rux {

namespace {

template <class T>
TIntf<IFindAdapter> Make(TObject* instance) {
    return MakeIntf<T>(instance);
}

template <class T>
void Add(TTypeRegistry& registry, std::string_view name, std::string_view controlClass) {
    registry.RegisterFindAdapter({name, controlClass, {}, &Make<T>});
}

}  // namespace

void RegisterParserFinders(TTypeRegistry& registry) {
    Add<TControlFindAdapter>(registry, "TControlFindAdapter", "TControl");
    Add<TWinControlFindAdapter>(registry, "TWinControlFindAdapter", "TWinControl");
    Add<TAppFindAdapter>(registry, "TAppFindAdapter", "TApplication");
}

void RegisterFinders(TTypeRegistry& registry) {
    Add<TFormFindAdapter>(registry, "TFormFindAdapter", "TCustomForm");
    Add<TVirtualWinControlFinder>(registry, "TVirtualWinControlFinder", "TVirtualWinControl");
}

}  // namespace rux
