// List boxes, with and without check squares. Several names stand in one argument.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Engine/Adapters/RUXTestAdapter.h"
#include "platform/toolkit/StdCtrls.h"

namespace rux {

/// The index, from 0 on, of each name's first item, letters of either case. A name that no item has gives
/// the index of the name before it, and 0 where none came before.
std::vector<std::int32_t> ParseListNames(TStrings& items, const std::string& names);

/// What list boxes of both kinds do.
class TListBoxActions : public TRUXControlAdapter, public IList {
 public:
    using TRUXControlAdapter::TRUXControlAdapter;
    /// Moves the real cursor to each item in turn and clicks there.
    void Select(const std::string& AName) override;
    /// Raises EAdapterException for an index outside.
    void SelectByIndex(std::int32_t AIdx) override;
    /// The selected items in the list's order, with `|` between them.
    std::string Selected() override;
    std::int32_t GetCount() override;

 protected:
    std::vector<std::int32_t> IndexesOf(const std::string& names) const;

 private:
    void ClickItem(std::int32_t index);
};

class TSolviListBoxAdapter final
    : public TAdapterOf<TListBoxActions, "TSolviListBoxAdapter", "TCustomListBox", IListBox> {
 public:
    using TAdapterOf::TAdapterOf;
    void Click(const std::string& AName) override { Select(AName); }
    /// Chooses the item in code, moves the real cursor to it and calls the handler; no mouse message. A name
    /// that no item has chooses none, and the cursor goes to the list box's corner.
    void DblClick(const std::string& AName) override;
};

class TSolviCheckListBoxAdapter final
    : public TAdapterOf<TListBoxActions, "TSolviCheckListBoxAdapter", "TCheckListBox", ICheckListBox> {
 public:
    using TAdapterOf::TAdapterOf;
    /// Fires nothing.
    void SetChecked(const std::string& AName, bool AValue) override;
};

}  // namespace rux
