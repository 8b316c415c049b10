#include "Engine/Adapters/RUXTestAdapters.h"

#include "Engine/Adapters/RUXButtonAdapters.h"
#include "Engine/Adapters/RUXCheckAdapters.h"
#include "Engine/Adapters/RUXComboAdapters.h"
#include "Engine/Adapters/RUXEditAdapters.h"
#include "Engine/Adapters/RUXFormAdapters.h"
#include "Engine/Adapters/RUXListAdapters.h"
#include "Engine/Adapters/RUXListViewAdapters.h"
#include "Engine/Adapters/RUXMenuAdapters.h"
#include "Engine/Adapters/RUXShellAdapters.h"
#include "Engine/Adapters/RUXStatusBarAdapters.h"
#include "Engine/Adapters/RUXTabAdapters.h"
#include "Engine/Adapters/RUXTreeAdapters.h"
#include "Engine/Adapters/RUXVirtualAdapters.h"

namespace rux {

void RegisterTestAdapters(TTypeRegistry& registry) {
    // The order decides between adapters that are equally near to a class.
    RegisterAdapters<TFormAdapter, TSolviEditAdapter, TSolviButtonAdapter, TSolviSpeedButtonAdapter,
                     TSolviLabelAdapter, TSolviStaticTextAdapter, TSolviTreeAdapter, TSolviTabControlAdapter,
                     TSolviPageAdapter, TSolviComboBoxAdapter, TSolviListBoxAdapter, TSolviListViewAdapter,
                     TShellListViewAdapter, TSolviCheckBoxAdapter, TSolviRadioButtonAdapter,
                     TDateTimePickerAdapter, TVirtualButtonAdapter, TVirtualEditAdapter,
                     TVirtualWindowAdapter, TMenuItemAdapter, TShellComboBoxAdapter,
                     TSolviCheckListBoxAdapter, TVirtualStaticAdapter, TVirtualComboboxAdapter,
                     TVirtualTreeViewAdapter, TSolviTBXStatusBarAdapter, TSolviTStatusBarAdapter,
                     TVirtualTabAdapter, TVirtualTabControlTabAdapter, TTBXImageVirtualTabAdapter>(registry);
}

}  // namespace rux
