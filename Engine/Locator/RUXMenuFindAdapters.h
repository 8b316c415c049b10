// Finders of the standard menus. Neither needs to be open to be searched.
#pragma once

#include <memory>
#include <string>

#include "Engine/Locator/RUXFindAdapters.h"

namespace rux {

class TTMenuItemFindAdapter : public TRUXFindAdapter {
 public:
    using TRUXFindAdapter::TRUXFindAdapter;
    /// Caption, text or hint, the first that is not empty; else the class name.
    std::string GetCaption() override;
    /// A made-up rectangle, since a closed menu has no place; it stands on its head.
    TRect GetBounds() override;
    bool IsVisible() override;
    std::unique_ptr<TChildWalk> StartWalk() override;
};

/// A menu is in the search with each control that it belongs to; its root item is not.
class TPopupMenuFindAdapter : public TRUXFindAdapter {
 public:
    using TRUXFindAdapter::TRUXFindAdapter;
    std::unique_ptr<TChildWalk> StartWalk() override;
};

}  // namespace rux
