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
    /// Takes over what the action says: everything, or (while a form file is read) only what is still at its
    /// default.
    virtual void ActionChanged(HCustomAction& action, bool onlyDefaults) = 0;
    virtual void ActionGone() = 0;

 protected:
    ~HActionClient() = default;
};

class HCustomAction : public HComponent {
 public:
    using HComponent::HComponent;
    const std::string& Caption() const { return FCaption; }
    void SetCaption(const std::string& value) { Change(FCaption, value); }
    const std::string& Hint() const { return FHint; }
    void SetHint(const std::string& value) { Change(FHint, value); }
    bool Enabled() const { return FEnabled; }
    void SetEnabled(bool value) { Change(FEnabled, value); }
    bool Visible() const { return FVisible; }
    void SetVisible(bool value) { Change(FVisible, value); }
    bool Checked() const { return FChecked; }
    void SetChecked(bool value) { Change(FChecked, value); }
    bool AutoCheck() const { return FAutoCheck; }
    void SetAutoCheck(bool value) { FAutoCheck = value; }

    /// Brings the action up to date and runs its code; a disabled action does nothing.
    void Execute();
    /// Runs OnExecute alone, as the OnClick field of a linked control does.
    bool FireExecute();
    void Update();

    void AddClient(HActionClient& client) { FClients.push_back(&client); }
    void RemoveClient(HActionClient& client) { std::erase(FClients, &client); }

 protected:
    void Detach() override;

 private:
    template <class T>
    void Change(T& field, const T& value) {
        if (field == value) return;
        field = value;
        TellClients();
    }
    void TellClients();

    std::string FCaption, FHint;
    bool FEnabled = true, FVisible = true, FChecked = false, FAutoCheck = false;
    std::vector<HActionClient*> FClients;
};

}  // namespace rux
