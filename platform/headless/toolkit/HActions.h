// Actions: one command behind several controls and menu items.
#pragma once

#include <string>
#include <vector>

#include "platform/headless/toolkit/HComponent.h"

namespace rux {

class HCustomAction;

/// Whatever shows an action's caption and state.
class HActionClient {
 public:
    /// Takes over what the action says. With `onlyDefaults` (the action is being loaded) only where the
    /// client has nothing of its own; while the action tells of a change (HCustomAction::Before) only where
    /// the client showed what the action said before; else, freshly linked, everything.
    virtual void ActionChanged(HCustomAction& action, bool onlyDefaults) = 0;
    virtual void ActionGone() = 0;

 protected:
    ~HActionClient() = default;
};

/// What an action says and its clients show.
struct HActionState {
    std::string Caption, Hint;
    bool Enabled = true, Visible = true, Checked = false;
};

class HCustomAction : public HComponent {
 public:
    using HComponent::HComponent;
    const std::string& Caption() const { return FState.Caption; }
    void SetCaption(const std::string& value) { Change(&HActionState::Caption, value); }
    const std::string& Hint() const { return FState.Hint; }
    void SetHint(const std::string& value) { Change(&HActionState::Hint, value); }
    bool Enabled() const { return FState.Enabled; }
    void SetEnabled(bool value) { Change(&HActionState::Enabled, value); }
    bool Visible() const { return FState.Visible; }
    void SetVisible(bool value) { Change(&HActionState::Visible, value); }
    bool Checked() const { return FState.Checked; }
    void SetChecked(bool value) { Change(&HActionState::Checked, value); }
    bool AutoCheck() const { return FAutoCheck; }
    void SetAutoCheck(bool value) { FAutoCheck = value; }

    const HActionState& State() const { return FState; }
    /// What the action said before the change that it is telling of; nil while there is none.
    const HActionState* Before() const { return FBefore; }
    /// `own` as the client is to show it; see HActionClient::ActionChanged.
    template <class T>
    T Followed(T HActionState::*field, const T& own, bool isDefault, bool onlyDefaults) const {
        const bool takes = onlyDefaults ? isDefault : !FBefore || own == FBefore->*field;
        return takes ? FState.*field : own;
    }

    /// Brings the action up to date and runs its code; a disabled action does nothing.
    void Execute();
    /// Runs OnExecute alone, as the OnClick field of a linked control does.
    bool FireExecute();
    void Update();

    /// Passes on a property that the action only keeps; as ActionChanged, perhaps only where the client has
    /// none of its own.
    void Hand(TName property, HObject& client, bool onlyDefaults);
    void AddClient(HActionClient& client) { FClients.push_back(&client); }
    void RemoveClient(HActionClient& client);

 protected:
    void Detach() override;

 private:
    template <class T>
    void Change(T HActionState::*field, const T& value) {
        if (FState.*field == value) return;
        const HActionState before = FState;
        FState.*field = value;
        TellClients(before);
    }
    void TellClients(const HActionState& before);

    HActionState FState;
    const HActionState* FBefore = nullptr;
    bool FAutoCheck = false;
    std::vector<HActionClient*> FClients;
};

/// What a client that has a checked state of its own last saw of its action: only a change counts.
class HSeenState {
 public:
    /// True when the client, which is `checked`, has to take the action's state over.
    bool Differs(const HCustomAction& action, bool checked, bool onlyDefaults) {
        const bool changed = std::exchange(FSeen, action.Checked()) != action.Checked();
        return onlyDefaults ? !checked && action.Checked() : changed;
    }

 private:
    bool FSeen = false;
};

}  // namespace rux
