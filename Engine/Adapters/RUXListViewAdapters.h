// List views.
#pragma once

#include <cstdint>
#include <string>

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

/// An item's name is its caption. In a report it may also be the caption and the first sub-items, joined by
/// `|`, or a column's caption, `=` and what stands in that column; without blanks or case, and split as
/// SplitNames splits. The first item that the name fits is meant; EAdapterException when there is none.
class TSolviListViewAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TSolviListViewAdapter", "TCustomListView", IListView, IList> {
 public:
    using TAdapterOf::TAdapterOf;
    // These select the item in code; the cursor moves there for the eye alone, and no click is sent: the
    // event is called, if there is one.
    void Select(const std::string& AName) override;
    void SelectByIndex(std::int32_t AIdx) override;
    void DblClick(const std::string& AName) override;
    /// Caption and sub-items of the first selected item, joined by `|`; a backslash stands before each `|`
    /// and backslash in them. Empty for none.
    std::string Selected() override;
    std::int32_t GetCount() override;
    /// The captions, as they are, each with `|` before it.
    std::string Checked() override;
    /// All items with one of the captions. Raises ERUX_NotFoundError for a name that is no caption; those
    /// before it are done by then.
    void SetChecked(const std::string& ANameArr, bool AValue) override;

 private:
    std::int32_t FindListItem(const std::string& name) const;
    TObject* ItemAt(std::int32_t index) const;
    void SelectListItem(std::int32_t index) const;
    bool CheckAll(const std::string& caption, bool value) const;
};

}  // namespace rux
