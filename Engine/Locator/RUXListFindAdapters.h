// Finders of list views and of the combo box over folders.
#pragma once

#include <string>

#include "Engine/Locator/RUXFindAdapters.h"

namespace rux {

/// Named by its items, in any order.
class TListViewFindAdapter : public TWinControlFindAdapter {
 public:
    using TWinControlFindAdapter::TWinControlFindAdapter;
    std::string GetContent() override;
    bool IsContentMatch(const TTextMatcher& text, const std::string& content) override;
};

class TShellComboBoxFindAdapter : public TWinControlFindAdapter {
 public:
    using TWinControlFindAdapter::TWinControlFindAdapter;
    /// The chosen item; empty for none.
    std::string GetCaption() override;
    /// The path.
    std::string GetContent() override;
};

}  // namespace rux
