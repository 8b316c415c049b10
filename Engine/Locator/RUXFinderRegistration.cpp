#include "Engine/Locator/RUXFinderRegistration.h"

#include "Engine/Locator/RUXFormFindAdapters.h"
#include "Engine/Locator/RUXListFindAdapters.h"
#include "Engine/Locator/RUXMenuFindAdapters.h"
#include "Engine/Locator/RUXNotVCLFindAdapter.h"
#include "Engine/Locator/RUXPageFindAdapters.h"
#include "Engine/Locator/RUXTabFindAdapters.h"
#include "Engine/Locator/RUXTreeFindAdapters.h"
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
    Add<TTreeViewFindAdapter>(registry, "TTreeViewFindAdapter", "TCustomTreeView");
    Add<TFlatPageControlFindAdapter>(registry, "TFlatPageControlFindAdapter", "TFlatPageControl");
    Add<TPageControlFindAdapter>(registry, "TPageControlFindAdapter", "TPageControl");
    Add<TTabSheetFindAdapter>(registry, "TTabSheetFindAdapter", "TTabSheet");
    Add<TFlatTabSheetFindAdapter>(registry, "TFlatTabSheetFindAdapter", "TFlatTabSheet");
    Add<TTabControlFindAdapter>(registry, "TTabControlFindAdapter", "TCustomTabControl");
    Add<TTabSetFindAdapter>(registry, "TTabSetFindAdapter", "TTabSet");
    // The virtual tabs differ in themselves, not in how they are found.
    Add<TVirtualTabFindAdapter>(registry, "TVirtualTabFindAdapter", "TVirtualTab");
    Add<TVirtualTabFindAdapter>(registry, "TVirtualTabControlTabFindAdapter", "TVirtualTabControlTab");
    Add<TPopupMenuFindAdapter>(registry, "TPopupMenuFindAdapter", "TPopupMenu");
    Add<TTBXImageTabSetFindAdapter>(registry, "TTBXImageTabSetFindAdapter", "TTBXImageTabSet");
    Add<TTMenuItemFindAdapter>(registry, "TTMenuItemFindAdapter", "TMenuItem");
    Add<TVirtualTabFindAdapter>(registry, "TTBXImageVirtualTabFindAdapter", "TTBXImageVirtualTab");
    Add<TShellComboBoxFindAdapter>(registry, "TShellComboBoxFindAdapter", "TShellComboBox");
    Add<TTBXPageControlFindAdapter>(registry, "TTBXPageControlFindAdapter", "TTBXPageControl");
    Add<TListViewFindAdapter>(registry, "TListViewFindAdapter", "TCustomListView");
    Add<TVirtualWinControlFinder>(registry, "TVirtualWinControlFinder", "TVirtualWinControl");
}

}  // namespace rux
