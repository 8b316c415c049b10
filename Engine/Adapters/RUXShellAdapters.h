// List view and combo box over the machine's folders.
#pragma once

#include <cstdint>
#include <string>

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

/// Items are named by what the folder shows, case aside; EAdapterException for a name that it does not.
class TShellListViewAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TShellListViewAdapter", "TShellListView", IListView, IList> {
 public:
    using TAdapterOf::TAdapterOf;
    /// Selects in code and calls OnClick, if there is one.
    void Select(const std::string& AName) override;
    /// Both select, and click on the icon of the first selected item.
    void SelectByIndex(std::int32_t AIdx) override;
    void DblClick(const std::string& AName) override;
    std::string Selected() override;
    std::int32_t GetCount() override;
    /// A folder has no check boxes: an empty text, and nothing. Scripts for list views call both.
    std::string Checked() override { return {}; }
    void SetChecked(const std::string&, bool) override {}

 private:
    void FindShellItem(const std::string& name) const;
    TRect IconOfSelected() const;
};

class TShellComboBoxAdapter final : public TAdapterOf<TRUXControlAdapter, "TShellComboBoxAdapter",
                                                      "TShellComboBox", IComboBox, IComboControl, IList> {
 public:
    using TAdapterOf::TAdapterOf;
    /// By path; one that does not exist leaves the choice as it is, and the control is told all the same.
    void Select(const std::string& AName) override;
    /// Not available: fails as an assertion for an index that there is.
    void SelectByIndex(std::int32_t AIdx) override;
    /// The path.
    std::string Selected() override;
    std::int32_t GetCount() override;
    /// The chosen item's text; raises EStringListError without one.
    std::string GetText() override;
    /// By the item's text; EAdapterException for a text that no item has.
    void SetText(const std::string& S) override;
};

}  // namespace rux
