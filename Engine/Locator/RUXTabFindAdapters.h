// Finders of rows of tabs whose tabs are no objects, and of what stands for such a tab.
#pragma once

#include <memory>
#include <string>

#include "Engine/Locator/RUXFindAdapters.h"

namespace rux {

/// The control's own children, then a virtual control for each tab but the selected one: a text that names
/// that one finds nothing.
class TCustomTabSetFindAdapter : public TWinControlFindAdapter {
 public:
    using TWinControlFindAdapter::TWinControlFindAdapter;
    std::unique_ptr<TChildWalk> StartWalk() override;

    virtual int GetTabCount() = 0;
    /// The selected tab; -1 for none.
    virtual int GetTabIndex() = 0;
    /// Lives as long as the request that is being served.
    virtual TObject& CreateVirtualTab(int index) = 0;
};

/// A text with a blank in it stands in double quotes in the content of the next two, and in none of the
/// third.
class TTabControlFindAdapter : public TCustomTabSetFindAdapter {
 public:
    using TCustomTabSetFindAdapter::TCustomTabSetFindAdapter;
    std::string GetContent() override;
    int GetTabCount() override;
    int GetTabIndex() override;
    TObject& CreateVirtualTab(int index) override;
};

class TTabSetFindAdapter : public TCustomTabSetFindAdapter {
 public:
    using TCustomTabSetFindAdapter::TCustomTabSetFindAdapter;
    std::string GetContent() override;
    int GetTabCount() override;
    int GetTabIndex() override;
    TObject& CreateVirtualTab(int index) override;
};

class TTBXImageTabSetFindAdapter : public TCustomTabSetFindAdapter {
 public:
    using TCustomTabSetFindAdapter::TCustomTabSetFindAdapter;
    std::string GetContent() override;
    int GetTabCount() override;
    int GetTabIndex() override;
    TObject& CreateVirtualTab(int index) override;
};

/// Serves every class of virtual tabs: what differs between them, they know themselves.
class TVirtualTabFindAdapter : public TRUXFindAdapter {
 public:
    using TRUXFindAdapter::TRUXFindAdapter;
    /// The control's number, the tab's place and 4. Tabs of two controls whose numbers are close to each
    /// other may be one thing to the locator. Kept: scripts that count what they find see them as they always
    /// did.
    std::uint64_t GetID() override;
    std::string GetCaption() override;
    /// In client coordinates of the control, not on the screen. Kept: the order in which tabs are numbered,
    /// and what is nearest to them, depends on it.
    TRect GetBounds() override;
};

}  // namespace rux
