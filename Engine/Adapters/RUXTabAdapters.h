// Rows of tabs, pages, and tabs that are no objects of the toolkit.
#pragma once

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

/// Drives page controls as well.
class TSolviTabControlAdapter final : public TAdapterOf<TRUXControlAdapter, "TSolviTabControlAdapter",
                                                        "TCustomTabControl", IPageControl, IList> {
 public:
    using TAdapterOf::TAdapterOf;
    std::int32_t GetCount() override;
    /// Raises EStringListError while no tab is chosen.
    std::string Selected() override;
    /// Asks the control before it looks at what it found: one that refuses is left as it is, and not even an
    /// absent name is reported. Scripts rely on a refusal being no failure.
    void Select(const std::string& AName) override;
    /// From 1 on.
    void SelectByIndex(std::int32_t AIdx) override;

 private:
    /// Clicks the tab and also tells the control that it has changed, so that applications hear of it even
    /// where the click did not reach the tab.
    void ClickTab(int index);
};

class TSolviPageAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TSolviPageAdapter", "TTabSheet", IButton> {
 public:
    using TAdapterOf::TAdapterOf;
    /// Shows the page, without the mouse; nothing when its control refuses.
    void Click() override;
};

/// A click selects the tab through its control.
class TVirtualTabClick : public TBaseVirtualControlAdapter {
 public:
    using TBaseVirtualControlAdapter::TBaseVirtualControlAdapter;

 protected:
    void SelectTab();
};

template <TClassNameLiteral Name, TClassNameLiteral Tab>
class TVirtualTabAdapterOf : public TAdapterOf<TVirtualTabClick, Name, Tab, IButton> {
 public:
    using TAdapterOf<TVirtualTabClick, Name, Tab, IButton>::TAdapterOf;
    void Click() override { this->SelectTab(); }
};

using TVirtualTabAdapter = TVirtualTabAdapterOf<"TVirtualTabAdapter", "TVirtualTab">;
using TVirtualTabControlTabAdapter =
    TVirtualTabAdapterOf<"TVirtualTabControlTabAdapter", "TVirtualTabControlTab">;
using TTBXImageVirtualTabAdapter = TVirtualTabAdapterOf<"TTBXImageVirtualTabAdapter", "TTBXImageVirtualTab">;

}  // namespace rux
