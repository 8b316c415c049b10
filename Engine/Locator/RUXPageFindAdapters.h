// Finders of page controls and their pages. A search enters the page that is shown and no other; the others
// are found by their captions, as long as their tabs can be seen.
#pragma once

#include <memory>
#include <string>

#include "Engine/Locator/RUXFindAdapters.h"

namespace rux {

class TCustomPageControlFindAdapter : public TWinControlFindAdapter {
 public:
    using TWinControlFindAdapter::TWinControlFindAdapter;
    /// The captions of all pages.
    std::string GetContent() override;
    /// Only the pages: whatever else stands on the control is not found.
    std::unique_ptr<TChildWalk> StartWalk() override;

    /// nil for none.
    virtual TObject* GetActivePage() = 0;
    virtual TObject* GetPage(int index) = 0;
    virtual bool IsPageTabVisible(int index) = 0;
    virtual int GetPageCount() = 0;
    /// Whether a page can be reached by its tab. Needs an active page: without tabs that one fills its
    /// control from the origin, and this is how it is told.
    virtual bool AreTabsShown(int index);
    virtual std::string GetPageCaption(int index) = 0;

 protected:
    void WarnOfNoActivePage();
};

class TPageControlFindAdapter : public TCustomPageControlFindAdapter {
 public:
    using TCustomPageControlFindAdapter::TCustomPageControlFindAdapter;
    TObject* GetActivePage() override;
    TObject* GetPage(int index) override;
    bool IsPageTabVisible(int index) override;
    int GetPageCount() override;
    std::string GetPageCaption(int index) override;
};

class TTBXPageControlFindAdapter : public TPageControlFindAdapter {
 public:
    using TPageControlFindAdapter::TPageControlFindAdapter;
    bool AreTabsShown(int index) override;
};

class TFlatPageControlFindAdapter : public TCustomPageControlFindAdapter {
 public:
    using TCustomPageControlFindAdapter::TCustomPageControlFindAdapter;
    /// Where nothing has chosen a page and there is but one, the search itself chooses it.
    TObject* GetActivePage() override;
    TObject* GetPage(int index) override;
    bool IsPageTabVisible(int index) override;
    int GetPageCount() override;
    std::string GetPageCaption(int index) override;
};

/// A page lies where its tab is, and is entered only while it is shown.
class TCustomTabSheetFindAdapter : public TWinControlFindAdapter {
 public:
    using TWinControlFindAdapter::TWinControlFindAdapter;
    TRect GetBounds() override;
    /// Its own flag alone.
    bool IsVisible() override;
    /// Of a page that is not shown the answer is 0, whatever the list holds.
    int FindChildren(ICommonLocator& list) override;
    std::unique_ptr<TChildWalk> StartWalk() override;

 protected:
    /// nil for a page that stands on no page control.
    virtual TObject* GetPageControl() = 0;
    virtual bool IsActive() = 0;
    /// Needs a page control. In client coordinates of the page control.
    virtual TRect GetTabRect() = 0;
};

class TTabSheetFindAdapter : public TCustomTabSheetFindAdapter {
 public:
    using TCustomTabSheetFindAdapter::TCustomTabSheetFindAdapter;

 protected:
    TObject* GetPageControl() override;
    bool IsActive() override;
    TRect GetTabRect() override;
};

class TFlatTabSheetFindAdapter : public TCustomTabSheetFindAdapter {
 public:
    using TCustomTabSheetFindAdapter::TCustomTabSheetFindAdapter;

 protected:
    TObject* GetPageControl() override;
    bool IsActive() override;
    TRect GetTabRect() override;
};

}  // namespace rux
