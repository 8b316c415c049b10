// Controls with the system's row of tabs: what they all share, and the one without pages.
#pragma once

#include "platform/headless/toolkit/HStrings.h"
#include "platform/headless/toolkit/HTabRow.h"
#include "platform/headless/toolkit/HWinControl.h"
#include "platform/toolkit/ComCtrls.h"

namespace rux {

/// Where a control with a row of tabs has its page, in its own coordinates.
TRect RoomBelowTabs(const HControl& control);

/// What a dump shows of tabs: their texts, and which one is chosen.
std::vector<HContentLine> TabLines(const std::vector<std::string>& texts, int chosen);

class HCustomTabControl : public With<HWinControl, TCustomTabControl> {
 public:
    HCustomTabControl(HToolkit& kit, const HClassDef& def);

    // TCustomTabControl
    TStrings& Tabs() override { return Strings(); }
    int TabIndex() override { return FTabIndex; }
    /// -1 for none; an index outside is ignored.
    void SetTabIndex(int value) override;
    TRect TabRect(int index) override { return Row().Rect(index); }
    bool CanChange() override;
    void Change() override;

    HObject* TabsObject() { return &Strings(); }
    HStrings& Strings();
    /// As it is now.
    const HTabRow& Row();
    void MarkTabsStale() { FRow.MarkStale(); }

    bool WantsKey(unsigned key) override;
    std::vector<HContentLine> Content() override;

 protected:
    /// A click and the keys of the window class.
    void DefaultHandler(HMessage& message) override;
    /// Brings the texts up to date where they are somebody else's captions.
    virtual void CollectTabs(HStrings&) {}
    /// The chosen tab; where the tabs are pages, as of the last time that they were brought up to date.
    int FTabIndex = -1;

 private:
    void SelectByUser(int index);
    HStrings* FTabs;
    HTabRow FRow;
};

/// Tabs without pages of their own.
class HTabsControl : public HCustomTabControl {
 public:
    HTabsControl(HToolkit& kit, const HClassDef& def);
    /// While a form file is read the index may come before the tabs.
    void SetTabIndex(int value) override;
    void Loaded() override;

 private:
    void TabsChanged();
};

}  // namespace rux
