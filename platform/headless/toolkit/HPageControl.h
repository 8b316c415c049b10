// Page controls and their pages.
#pragma once

#include "platform/headless/toolkit/HTabControls.h"

namespace rux {

class HPageControl;

class HTabSheet : public With<HWinControl, TTabSheet> {
 public:
    HTabSheet(HToolkit& kit, const HClassDef& def);

    // TTabSheet
    TObject* PageControl() override;
    bool TabVisible() override { return FTabVisible; }
    int TabIndex() override;

    HPageControl* Control() const { return FPageControl; }
    bool HasTab() const { return FTabVisible; }
    void SetTabVisible(bool value);
    /// Place among all pages, -1 without a page control.
    int PageIndex() const;
    void SetParent(HWinControl* parent) override;
    void SetText(const std::string& text) override;
    /// Fires OnShow and OnHide when the page appears or disappears on a form that is showing.
    void SetVisible(bool value) override;

 protected:
    void HandleCreated() override { TellShowing(); }

 private:
    friend class HPageControl;
    void TellShowing();
    HPageControl* FPageControl = nullptr;
    bool FTabVisible = true;
    bool FShowing = false;
    /// Place among the pages with a tab; kept by the page control.
    int FTabPlace = -1;
};

/// Shows one page at a time; the others' windows are hidden.
class HPageControl : public With<HCustomTabControl, TPageControl> {
 public:
    HPageControl(HToolkit& kit, const HClassDef& def) : With(kit, def) {}

    // TPageControl, TCustomTabControl
    HTabSheet* ActivePage() override { return FActivePage; }
    void SetActivePage(TObject* page) override;
    int PageCount() override { return static_cast<int>(FPages.size()); }
    HTabSheet* Pages(int index) override;
    int TabIndex() override;
    /// The tab alone: its page is shown by Change.
    void SetTabIndex(int value) override;
    void Change() override;

    HObject* ActivePageObject() const { return FActivePage; }
    /// nil for none; a page of another control is ignored.
    void SetActivePageObject(HObject* page);
    /// Whether there is a row of tabs above the pages.
    virtual bool HasTabs() const { return FTabCount > 0; }
    const std::vector<HTabSheet*>& Sheets() const { return FPages; }
    void AddPage(HTabSheet& page);
    void RemovePage(HTabSheet& page);
    /// TabVisible of a page has changed.
    void TabChanged(HTabSheet& page);
    /// Gives every page its rectangle and its visibility.
    void Arrange();
    void SetBounds(const TRect& bounds) override;
    void Loaded() override;
    std::vector<HContentLine> Content() override;

 protected:
    void CollectTabs(HStrings& texts) override;
    /// Whether a page comes up by itself when none is shown, or the shown one goes.
    virtual bool ChoosesPage() const { return true; }

 private:
    TRect PageRoom() const;
    void ShowInstead(HTabSheet* page, HTabSheet* before);
    void CountTabs(int more);
    std::vector<HTabSheet*> FPages;
    /// The pages with a tab, when the tabs are up to date.
    std::vector<HTabSheet*> FTabPages;
    int FTabCount = 0;
    HTabSheet* FActivePage = nullptr;
};

}  // namespace rux
