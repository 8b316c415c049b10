// Pages and tabs of libraries beyond the toolkit.
#pragma once

#include "platform/headless/toolkit/HPageControl.h"
#include "platform/toolkit/ExtraCtrls.h"

namespace rux {

/// A page control that draws its tabs itself. What it does with its pages is what the toolkit's own does, but
/// to the toolkit it is a plain control, and nothing chooses a page for it.
class HFlatPageControl : public With<HPageControl, TFlatPageControl> {
 public:
    using With::With;
    HTabSheet* ActivePage() override { return HPageControl::ActivePage(); }
    void SetActivePage(TObject* page) override { HPageControl::SetActivePage(page); }
    int PageCount() override { return HPageControl::PageCount(); }
    HTabSheet* Pages(int index) override { return HPageControl::Pages(index); }
    TRect TabRect(int index) override { return HPageControl::TabRect(index); }

 protected:
    bool ChoosesPage() const override { return false; }
};

class HFlatTabSheet : public With<HTabSheet, TFlatTabSheet> {
 public:
    using With::With;
    TObject* PageControl() override { return HTabSheet::PageControl(); }
    bool TabVisible() override { return HTabSheet::TabVisible(); }
};

/// A page control whose tabs can be hidden all at once.
class HTBXPageControl : public With<HPageControl, TTBXPageControl> {
 public:
    using With::With;
    int TabFlag() override { return FShowTabs; }
    void SetTabFlag(int value);
    bool HasTabs() const override { return FShowTabs == 1 && HPageControl::HasTabs(); }

 private:
    int FShowTabs = 1;
};

class HTBXTabItem : public HPersistent {
 public:
    using HPersistent::HPersistent;
    const std::string& Caption() const { return FCaption; }
    void SetCaption(const std::string& caption);
    /// The row that shows the item; it lives as long as the item.
    void ShowIn(HTabRow& row) { FRow = &row; }

 private:
    std::string FCaption;
    HTabRow* FRow = nullptr;
};

/// Tabs with pictures, as a collection.
class HTBXImageTabSet : public With<HWinControl, TTBXImageTabSet> {
 public:
    HTBXImageTabSet(HToolkit& kit, const HClassDef& def);

    // TTBXImageTabSet
    int TabItemCount() override { return Items().Count(); }
    std::string TabItemCaption(int index) override;
    int TabIndex() override { return FTabIndex; }
    /// Fires OnChange when it changes, unless a form file is being read.
    void SetTabIndex(int value) override;
    TRect ItemRect(int index) override { return Row().Rect(index); }

    HObject* ItemsObject() const { return FItems; }
    const HTabRow& Row();
    void SetBounds(const TRect& bounds) override;
    std::vector<HContentLine> Content() override;

 protected:
    void MouseDown(HMouseButton button, TPoint point) override;

 private:
    const HCollection& Items() const { return *FItems; }
    std::vector<std::string> Captions() const;
    HCollection* FItems;
    HTabRow FRow;
    int FTabIndex = -1;
};

}  // namespace rux
