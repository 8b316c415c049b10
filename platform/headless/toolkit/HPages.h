// Pages and tabs beyond the page control: tab controls, tab sets, notebooks.
#pragma once

#include "platform/headless/toolkit/HContainers.h"

namespace rux {

/// A row of tabs without pages of its own.
class HTabsControl : public HWinControl {
 public:
    HTabsControl(HToolkit& kit, const HClassDef& def, std::string_view stringsClass = "TTabStrings");
    HObject* TabsObject() const { return FTabs; }
    HStrings& Tabs() const { return *FTabs; }
    /// -1 without tabs; else one of them is always chosen.
    int TabIndex() const { return FTabIndex; }
    void SetTabIndex(int value);
    void Loaded() override;

 private:
    void TabsChanged();
    HStrings* FTabs;
    int FTabIndex = -1;
};

class HTabSet : public HTabsControl {
 public:
    HTabSet(HToolkit& kit, const HClassDef& def);
};

/// Shows one of its pages at a time; all pages fill the room that it leaves.
class HNotebook : public HWinControl {
 public:
    using HWinControl::HWinControl;
    int PageIndex() const { return FPageIndex; }
    void SetPageIndex(int value);
    /// Caption of the page that is shown; empty without one.
    std::string ActivePage() const;
    /// The pages' captions, as they are now.
    HObject* Pages();
    void SetBounds(const TRect& bounds) override;
    void Loaded() override;

 protected:
    virtual TRect PageRoom() const { return {0, 0, Width(), Height()}; }

 private:
    std::string Captions() const;
    void Arrange();
    int FPageIndex = 0;
    HTextLines* FPages = nullptr;
};

/// A notebook with tabs above its pages.
class HTabbedNotebook : public HNotebook {
 public:
    HTabbedNotebook(HToolkit& kit, const HClassDef& def);

 protected:
    TRect PageRoom() const override;
};

}  // namespace rux
