// Combo boxes: the list is opened and closed by the mouse, the choice is made in code.
#pragma once

#include <cstdint>
#include <string>

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

class TSolviComboBoxAdapter final : public TAdapterOf<TRUXControlAdapter, "TSolviComboBoxAdapter",
                                                      "TCustomCombo", IComboBox, IComboControl, IList> {
 public:
    using TAdapterOf::TAdapterOf;
    /// Opens and closes the list by two clicks on the arrow first, so that items which the application
    /// brings in by then can be chosen. Raises EAdapterException for a name that no item has.
    void Select(const std::string& AName) override;
    /// Leaves the list closed. Raises EAdapterException for an index outside.
    void SelectByIndex(std::int32_t AIdx) override;
    std::string Selected() override { return Text(); }
    std::int32_t GetCount() override;
    std::string GetText() override { return Text(); }
    /// Fires nothing.
    void SetText(const std::string& S) override;

 private:
    void OpenCloseDropDown();
    void SelectComboIndex(std::int32_t index);
};

}  // namespace rux
