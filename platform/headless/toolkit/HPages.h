// Tab sets, and notebooks, which show one of their pages.
#pragma once

#include "platform/headless/toolkit/HTabControls.h"

namespace rux {

/// Tabs at the edge of something else, which the control draws by itself. One of them is chosen with
/// OnChange, which may refuse, and OnClick, by code and by the user alike.
class HTabSet : public With<HWinControl, TTabSet> {
 public:
    HTabSet(HToolkit& kit, const HClassDef& def);

    // TTabSet
    TStrings& Tabs() override { return *FTabs; }
    int TabIndex() override { return FTabIndex; }
    /// Raises EListError for an index outside. While a form file is read nothing fires.
    void SetTabIndex(int value) override;
    TRect ItemRect(int index) override { return Row().Rect(index); }

    HObject* TabsObject() const { return FTabs; }
    const HTabRow& Row();
    void SetBounds(const TRect& bounds) override;
    void Loaded() override;
    std::vector<HContentLine> Content() override;

 protected:
    void MouseDown(HMouseButton button, TPoint point) override;

 private:
    void TabsChanged();
    HStrings* FTabs;
    HTabRow FRow;
    int FTabIndex = -1;
};

/// Shows one of its pages at a time; all pages fill the room that it leaves. Pages are what stands on it, and
/// one without tabs is a tab control whose row is empty.
class HNotebook : public HCustomTabControl {
 public:
    HNotebook(HToolkit& kit, const HClassDef& def);
    int PageIndex() const { return FPageIndex; }
    void SetPageIndex(int value);
    /// Caption of the page that is shown; empty without one.
    std::string ActivePage() const;
    /// The pages' captions, as they are now.
    HObject* Pages();
    void SetBounds(const TRect& bounds) override;
    void Loaded() override;
    std::vector<HContentLine> Content() override;

 protected:
    virtual TRect PageRoom() const { return {0, 0, Width(), Height()}; }
    std::vector<std::string> Captions() const;

 private:
    void Arrange();
    int FPageIndex = 0;
    HTextLines* FPages = nullptr;
};

/// A notebook with tabs above its pages.
class HTabbedNotebook : public HNotebook {
 public:
    HTabbedNotebook(HToolkit& kit, const HClassDef& def);
    int TabIndex() override;
    void Change() override;

 protected:
    TRect PageRoom() const override { return RoomBelowTabs(*this); }
    void CollectTabs(HStrings& texts) override;
};

/// A page of a notebook: its caption stands on the tab.
class HNotebookPage : public HWinControl {
 public:
    using HWinControl::HWinControl;
    void SetText(const std::string& text) override;
    void SetParent(HWinControl* parent) override;

 private:
    void MarkTabsStale();
};

}  // namespace rux
