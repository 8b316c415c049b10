#include "platform/headless/toolkit/HMenus.h"

#include <cstddef>
#include <utility>

#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

TObject* HMenuItem::Items(int index) {
    if (index < 0 || index >= Count())
        throw EListError("List index out of bounds (" + std::to_string(index) + ")");
    return FItems[static_cast<std::size_t>(index)];
}

void HMenuItem::SetChecked(bool value) {
    FChecked = value;
    UncheckGroup();
}

void HMenuItem::SetRadioItem(bool value) {
    FRadioItem = value;
    UncheckGroup();
}

void HMenuItem::SetGroupIndex(int value) {
    FGroupIndex = value;
    UncheckGroup();
}

void HMenuItem::UncheckGroup() {
    if (!FParent || !IsChosenOf(FGroupIndex)) return;
    HMenuItem* before = std::exchange(FParent->FChosen[FGroupIndex], HRef(this)).Get();
    if (before && before != this && before->IsChosenOf(FGroupIndex)) before->FChecked = false;
}

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
    SetChecked(action.Followed(&HActionState::Checked, FChecked, !FChecked, onlyDefaults));
    const TPropValue* key = action.Stored(names.ShortCut);
    if (key && (!onlyDefaults || FShortCut == 0)) FShortCut = static_cast<int>(key->Ordinal);
    for (const TName name : {names.ImageIndex, names.HelpContext}) action.Hand(name, *this, onlyDefaults);
}

void HMenuItem::Click() {
    if (!FEnabled) return;
    // An action that checks itself does it for its clients.
    if (FAutoCheck && !(FAction && FAction->AutoCheck())) SetChecked(!FChecked);
    const TName onClick = Kit().Names().OnClick;
    const bool ownHandler =
        Assigned(onClick) && (!FAction || MethodOf(onClick) != FAction->MethodOf(Kit().Names().OnExecute));
    if (ownHandler)
        Fire(onClick);
    else if (FAction)
        FAction->Execute();
}

void HMenuItem::ClickByKey() {
    std::vector<HRef<HMenuItem>> chain;
    for (HMenuItem* step = this; step; step = step->FParent) chain.push_back(step);
    for (auto step = chain.rbegin(); step != chain.rend(); ++step) {
        // Each click may end what lies below.
        if (!*step || !(*step)->FEnabled) return;
        (*step)->Click();
    }
}

void HMenuItem::AddItem(HMenuItem& item) {
    item.FParent = this;
    item.FIndex = FItems.size();
    FItems.push_back(&item);
    item.UncheckGroup();
}

HMenuItem* HMenuItem::FindShortCut(int key) {
    std::vector<HMenuItem*> pending(FItems.rbegin(), FItems.rend());
    while (!pending.empty()) {
        HMenuItem* item = pending.back();
        pending.pop_back();
        if (item->FShortCut == key) return item;
        pending.insert(pending.end(), item->FItems.rbegin(), item->FItems.rend());
    }
    return nullptr;
}

void HMenuItem::AddParts(std::vector<HComponent*>& parts) const {
    HComponent::AddParts(parts);
    parts.insert(parts.end(), FItems.begin(), FItems.end());
}

void HMenuItem::Detach() {
    SetAction(nullptr);
    if (!FParent) return;
    std::vector<HMenuItem*>& row = std::exchange(FParent, nullptr)->FItems;
    row.erase(row.begin() + static_cast<std::ptrdiff_t>(FIndex));
    for (std::size_t i = FIndex; i < row.size(); ++i) row[i]->FIndex = i;
}

HMenu::HMenu(HToolkit& kit, const HClassDef& def)
    : HComponent(kit, def),
      FRoot(&dynamic_cast<HMenuItem&>(
          Own(std::make_unique<HMenuItem>(kit, *kit.ClassDefs().FindDef("TMenuItem"))))) {}

void HPopupMenu::Popup(HComponent* component) {
    FPopupComponent = component;
    Fire(Kit().Names().OnPopup);
}

}  // namespace rux
