// Containers with pages, groups with items, timers.
#pragma once

#include <string>
#include <vector>

#include "platform/headless/toolkit/HStrings.h"
#include "platform/headless/toolkit/HWinControl.h"

namespace rux {

class HPageControl;

/// Where a control with a row of tabs has its page, in its own coordinates.
TRect RoomBelowTabs(const HControl& control);

class HTabSheet : public HWinControl {
 public:
    HTabSheet(HToolkit& kit, const HClassDef& def);
    void SetParent(HWinControl* parent) override;
    bool TabVisible() const { return FTabVisible; }
    void SetTabVisible(bool value);
    HPageControl* PageControl() const { return FPageControl; }
    /// Place among all pages, -1 without a page control.
    int PageIndex() const;

 private:
    HPageControl* FPageControl = nullptr;
    bool FTabVisible = true;
};

/// Shows one page at a time; the others' windows are hidden.
class HPageControl : public HWinControl {
 public:
    HPageControl(HToolkit& kit, const HClassDef& def);
    HObject* ActivePageObject() const { return FActivePage; }
    void SetActivePageObject(HObject* page);
    HTabSheet* ActivePage() const { return FActivePage; }
    const std::vector<HTabSheet*>& Pages() const { return FPages; }
    int ActivePageIndex() const { return FActivePage ? FActivePage->PageIndex() : -1; }
    void AddPage(HTabSheet& page);
    void RemovePage(HTabSheet& page);
    void SetBounds(const TRect& bounds) override;
    /// Gives every page its rectangle and its visibility.
    void Arrange();
    void Loaded() override;

 private:
    std::vector<HTabSheet*> FPages;
    HTabSheet* FActivePage = nullptr;
};

/// Controls over a list of items of which one may be chosen: list boxes, combo boxes, radio groups.
class HItemsControl : public HWinControl {
 public:
    /// The class of the list of items differs by control.
    HItemsControl(HToolkit& kit, const HClassDef& def, std::string_view stringsClass = "TStringList");
    HObject* ItemsObject() const { return FItems; }
    HStrings& Items() const { return *FItems; }
    int ItemIndex() const { return FItemIndex; }
    /// -1 for none. While a form file is read the index may come before the items.
    virtual void SetItemIndex(int value);
    void Loaded() override;

 protected:
    virtual void ItemsChanged() {}

 private:
    HStrings* FItems;
    int FItemIndex = -1;
};

/// Makes a radio button for each item.
class HRadioGroup : public HItemsControl {
 public:
    HRadioGroup(HToolkit& kit, const HClassDef& def);
    int Columns() const { return FColumns; }
    void SetColumns(int value);
    /// Fires OnClick when it changes, as a click does; not while a form file is read.
    void SetItemIndex(int value) override;
    void SetBounds(const TRect& bounds) override;
    void SetEnabled(bool value) override;
    void Loaded() override;

 protected:
    void ItemsChanged() override;

 private:
    void Arrange();
    void ShowItemIndex();
    bool FUpdating = false;
    int FColumns = 1;
    std::vector<HComponent*> FButtons;
};

/// Calls OnTimer from the message loop. Runs only while there is code to call.
class HTimer : public HComponent {
 public:
    using HComponent::HComponent;
    bool Enabled() const { return FEnabled; }
    void SetEnabled(bool value);
    int Interval() const { return FInterval; }
    void SetInterval(int value);
    void Loaded() override;

 protected:
    void Detach() override;

 private:
    void Restart();
    bool FEnabled = true;
    int FInterval = 1000;
    unsigned FTimer = 0;
};

}  // namespace rux
