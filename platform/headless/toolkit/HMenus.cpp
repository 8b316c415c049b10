#include "platform/headless/toolkit/HMenus.h"

#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

void HMenuItem::SetAction(HObject* action) {
    if (FAction) FAction->RemoveClient(*this);
    FAction = dynamic_cast<HCustomAction*>(action);
    if (!FAction) return;
    FAction->AddClient(*this);
    ActionChanged(*FAction, true);
}

void HMenuItem::ActionChanged(HCustomAction& action, bool onlyDefaults) {
    if (!onlyDefaults || FCaption.empty() || FCaption == Name()) FCaption = action.Caption();
    if (!onlyDefaults || FEnabled) FEnabled = action.Enabled();
    if (!onlyDefaults || FVisible) FVisible = action.Visible();
    if (!onlyDefaults || !FChecked) FChecked = action.Checked();
    const TPropValue* hint = Stored(Kit().Names().Hint);
    if (!onlyDefaults || !hint || hint->Text.empty()) Store(Kit().Names().Hint, HStringValue(action.Hint()));
}

void HMenuItem::Loaded() {
    HComponent::Loaded();
    if (FAction) ActionChanged(*FAction, true);
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

void HMenuItem::Detach() {
    SetAction(nullptr);
    if (FParent) std::erase(FParent->FItems, this);
    FParent = nullptr;
    for (HMenuItem* item : FItems) item->FParent = nullptr;
    FItems.clear();
}

HMenu::HMenu(HToolkit& kit, const HClassDef& def)
    : HComponent(kit, def),
      FRoot(&dynamic_cast<HMenuItem&>(
          Own(std::make_unique<HMenuItem>(kit, *kit.ClassDefs().FindDef("TMenuItem"))))) {}

void HPopupMenu::Popup() {
    Fire(Kit().Names().OnPopup);
}

}  // namespace rux
