#include "Engine/Adapters/RUXTestAdapters.h"

#include "Engine/Adapters/RUXButtonAdapters.h"
#include "Engine/Adapters/RUXCheckAdapters.h"
#include "Engine/Adapters/RUXEditAdapters.h"
#include "Engine/Adapters/RUXFormAdapters.h"
#include "Engine/Adapters/RUXVirtualAdapters.h"

namespace rux {

void RegisterTestAdapters(TTypeRegistry& registry) {
    // The order decides between adapters that are equally near to a class.
    RegisterAdapters<TFormAdapter, TSolviEditAdapter, TSolviButtonAdapter, TSolviSpeedButtonAdapter,
                     TSolviLabelAdapter, TSolviStaticTextAdapter, TSolviCheckBoxAdapter,
                     TSolviRadioButtonAdapter, TDateTimePickerAdapter, TVirtualButtonAdapter,
                     TVirtualEditAdapter, TVirtualWindowAdapter, TVirtualStaticAdapter,
                     TVirtualComboboxAdapter, TVirtualTreeViewAdapter>(registry);
}

}  // namespace rux
