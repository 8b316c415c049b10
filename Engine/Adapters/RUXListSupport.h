// What lists of all kinds share: names in one argument, indexes from 1 on.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace rux {

class TObject;

/// Split at `|` as the run-time library splits: blanks separate too, unless a name stands in double quotes.
std::vector<std::string> SplitNames(std::string_view names);

/// Raises EAdapterException, which names the range, unless `index` is from 1 to `count`.
void DemandListIndex(std::int32_t index, std::int32_t count);

/// Tells a combo box that an item was chosen, as its window would: past the window, with the same events.
void TellComboChosen(TObject* combo);

}  // namespace rux
