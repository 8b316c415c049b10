// Menus and their items. They are components and no controls.
#pragma once

#include <string>

#include "platform/toolkit/Classes.h"

namespace rux {

class TMenuItem {
 public:
    static constexpr TFacetId Id = TFacetId::MenuItem;
    virtual std::string Caption() = 0;
    virtual bool Visible() = 0;
    virtual bool Enabled() = 0;
    virtual bool Checked() = 0;
    /// The item's own dynamic method: nothing while it is disabled; an item that checks itself is toggled;
    /// then the handler or the action. No menu needs to be open.
    virtual void Click() = 0;
    /// Items of its sub-menu.
    virtual int Count() = 0;
    virtual TObject* Items(int index) = 0;
    /// Place among the items of its parent, -1 without one.
    virtual int MenuIndex() = 0;

 protected:
    ~TMenuItem() = default;
};

class TPopupMenu {
 public:
    static constexpr TFacetId Id = TFacetId::PopupMenu;
    /// The root item, which has no caption and is never shown.
    virtual TObject* Items() = 0;

 protected:
    ~TPopupMenu() = default;
};

}  // namespace rux
