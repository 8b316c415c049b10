// Menus as objects: items, pop-up menus, main menus. They are not drawn and open no windows.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "platform/headless/toolkit/HActions.h"
#include "platform/toolkit/Menus.h"

namespace rux {

class HMenuItem : public With<HComponent, TMenuItem>, public HActionClient {
 public:
    using With::With;

    // TMenuItem
    std::string Caption() override { return FCaption; }
    bool Enabled() override { return FEnabled; }
    bool Visible() override { return FVisible; }
    bool Checked() override { return FChecked; }
    void Click() override;
    int Count() override { return static_cast<int>(FItems.size()); }
    /// Raises EListError for an index outside.
    TObject* Items(int index) override;
    int MenuIndex() override { return FParent ? static_cast<int>(FIndex) : -1; }

    void SetCaption(const std::string& value) { FCaption = value; }
    void SetEnabled(bool value) { FEnabled = value; }
    void SetVisible(bool value) { FVisible = value; }
    /// A radio item that is checked unchecks those of its group beside it.
    void SetChecked(bool value);
    bool AutoCheck() const { return FAutoCheck; }
    void SetAutoCheck(bool value) { FAutoCheck = value; }
    bool RadioItem() const { return FRadioItem; }
    void SetRadioItem(bool value);
    int GroupIndex() const { return FGroupIndex; }
    void SetGroupIndex(int value);
    /// A virtual key with bits for Shift, Ctrl and Alt; 0 for none.
    int ShortCut() const { return FShortCut; }
    void SetShortCut(int value) { FShortCut = value; }
    HCustomAction* Action() const { return FAction; }
    HObject* ActionObject() const { return FAction; }
    void SetAction(HObject* action);
    void ActionChanged(HCustomAction& action, bool onlyDefaults) override;
    void ActionGone() override { FAction = nullptr; }

    /// As the key of its shortcut does it: the items above it are clicked first, as if they were opened.
    /// Nothing while one of them is disabled.
    void ClickByKey();

    HMenuItem* Parent() const { return FParent; }
    const std::vector<HMenuItem*>& ItemList() const { return FItems; }
    void AddItem(HMenuItem& item);
    /// The first item below this one with that shortcut, depth first; nil for none.
    HMenuItem* FindShortCut(int key);

 protected:
    void AddParts(std::vector<HComponent*>& parts) const override;
    void Detach() override;

 private:
    /// Checked, and a radio item of that group.
    bool IsChosenOf(int group) const { return FChecked && FRadioItem && FGroupIndex == group; }
    /// A chosen item takes the place of the one of its group beside it.
    void UncheckGroup();
    std::string FCaption;
    bool FEnabled = true, FVisible = true, FChecked = false, FAutoCheck = false, FRadioItem = false;
    int FGroupIndex = 0, FShortCut = 0;
    HCustomAction* FAction = nullptr;
    HMenuItem* FParent = nullptr;
    /// Place among the parent's items.
    std::size_t FIndex = 0;
    std::vector<HMenuItem*> FItems;
    /// The item that was chosen last in each group of radio items below; it may have become another's since.
    std::unordered_map<int, HRef<HMenuItem>> FChosen;
};

/// Base of the menus; its items hang under a root item without a name.
class HMenu : public HComponent {
 public:
    HMenu(HToolkit& kit, const HClassDef& def);
    HMenuItem& Root() { return *FRoot; }
    HObject* ItemsObject() const { return FRoot; }

 private:
    HMenuItem* FRoot;
};

class HPopupMenu : public With<HMenu, TPopupMenu> {
 public:
    using With::With;
    TObject* Items() override { return ItemsObject(); }
    bool AutoPopup() const { return FAutoPopup; }
    void SetAutoPopup(bool value) { FAutoPopup = value; }
    /// Nothing is shown; the event tells that it came up.
    void Popup(HComponent* component);
    /// What the menu came up for last; nil before that.
    HComponent* PopupComponent() const { return FPopupComponent.Get(); }

 private:
    bool FAutoPopup = true;
    HRef<HComponent> FPopupComponent;
};

}  // namespace rux
