#include "platform/headless/toolkit/HMenus.h"

#include <algorithm>
#include <utility>

#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

void HMenuItem::SetAction(HObject* action) {
    if (FAction) FAction->RemoveClient(*this);
    FAction = dynamic_cast<HCustomAction*>(action);
    if (!FAction) return;
    FAction->AddClient(*this);
    ActionChanged(*FAction, FAction->Loading());
}

void HMenuItem::ActionChanged(HCustomAction& action, bool onlyDefaults) {
    const HNames& names = Kit().Names();
    const TPropValue* stored = Stored(names.Hint);
    const std::string hint = stored ? stored->Text : std::string();
    const bool plain = FCaption.empty() || FCaption == Name();
    Store(names.Hint, HStringValue(action.Followed(&HActionState::Hint, hint, hint.empty(), onlyDefaults)));
    FCaption = action.Followed(&HActionState::Caption, FCaption, plain, onlyDefaults);
    FEnabled = action.Followed(&HActionState::Enabled, FEnabled, FEnabled, onlyDefaults);
    FVisible = action.Followed(&HActionState::Visible, FVisible, FVisible, onlyDefaults);
    FChecked = action.Followed(&HActionState::Checked, FChecked, !FChecked, onlyDefaults);
    for (const TName name : {names.ImageIndex, names.ShortCut, names.HelpContext})
        action.Hand(name, *this, onlyDefaults);
}

void HMenuItem::Click() {
    if (!FEnabled) return;
    if (FAutoCheck && !FAction) FChecked = !FChecked;
    const TName onClick = Kit().Names().OnClick;
    const bool ownHandler =
        Assigned(onClick) && (!FAction || MethodOf(onClick) != FAction->MethodOf(Kit().Names().OnExecute));
    if (ownHandler)
        Fire(onClick);
    else if (FAction)
        FAction->Execute();
}

void HMenuItem::AddItem(HMenuItem& item) {
    item.FParent = this;
    FItems.push_back(&item);
}

void HMenuItem::AddParts(std::vector<HComponent*>& parts) const {
    HComponent::AddParts(parts);
    parts.insert(parts.end(), FItems.begin(), FItems.end());
}

void HMenuItem::Detach() {
    SetAction(nullptr);
    if (!FParent) return;
    // Items mostly go in the reverse order of their coming.
    std::vector<HMenuItem*>& row = std::exchange(FParent, nullptr)->FItems;
    const auto place = std::find(row.rbegin(), row.rend(), this);
    if (place != row.rend()) row.erase(std::next(place).base());
}

HMenu::HMenu(HToolkit& kit, const HClassDef& def)
    : HComponent(kit, def),
      FRoot(&dynamic_cast<HMenuItem&>(
          Own(std::make_unique<HMenuItem>(kit, *kit.ClassDefs().FindDef("TMenuItem"))))) {}

void HPopupMenu::Popup() {
    Fire(Kit().Names().OnPopup);
}

}  // namespace rux
