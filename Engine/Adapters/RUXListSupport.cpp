#include "Engine/Adapters/RUXListSupport.h"

#include "Engine/Adapters/RUXTestAdapter.h"
#include "platform/toolkit/Controls.h"
#include "rtl/CodePage.h"
#include "rtl/StringList.h"

namespace rux {

std::vector<std::string> SplitNames(std::string_view names) {
    return SplitDelimited(names, '|');
}

void DemandListIndex(std::int32_t index, std::int32_t count) {
    if (index < 1 || index > count) RaiseAdapterErrorFmt(Ansi("超出范围，只能选择1到%d的项"), {count});
}

void TellComboChosen(TObject* combo) {
    Cast<TControl>(combo).Perform(CN_COMMAND, WParam{CBN_SELCHANGE} << 16, 0);
}

}  // namespace rux
