// Menus as objects: items, pop-up menus, main menus. They are not drawn and open no windows.
#pragma once

#include <string>
#include <vector>

#include "platform/headless/toolkit/HActions.h"

namespace rux {

class HMenuItem : public HComponent, public HActionClient {
 public:
    using HComponent::HComponent;
    const std::string& Caption() const { return FCaption; }
    void SetCaption(const std::string& value) { FCaption = value; }
    bool Enabled() const { return FEnabled; }
    void SetEnabled(bool value) { FEnabled = value; }
    bool Visible() const { return FVisible; }
    void SetVisible(bool value) { FVisible = value; }
    bool Checked() const { return FChecked; }
    void SetChecked(bool value) { FChecked = value; }
    bool AutoCheck() const { return FAutoCheck; }
    void SetAutoCheck(bool value) { FAutoCheck = value; }
    HCustomAction* Action() const { return FAction; }
    HObject* ActionObject() const { return FAction; }
    void SetAction(HObject* action);
    void ActionChanged(HCustomAction& action, bool onlyDefaults) override;
    void ActionGone() override { FAction = nullptr; }

    /// Does nothing while disabled; toggles with AutoCheck; then the handler or the action.
    void Click();

    HMenuItem* Parent() const { return FParent; }
    const std::vector<HMenuItem*>& Items() const { return FItems; }
    void AddItem(HMenuItem& item);

 protected:
    void AddParts(std::vector<HComponent*>& parts) const override;
    void Detach() override;

 private:
    std::string FCaption;
    bool FEnabled = true, FVisible = true, FChecked = false, FAutoCheck = false;
    HCustomAction* FAction = nullptr;
    HMenuItem* FParent = nullptr;
    std::vector<HMenuItem*> FItems;
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

class HPopupMenu : public HMenu {
 public:
    using HMenu::HMenu;
    void Popup();
};

}  // namespace rux
