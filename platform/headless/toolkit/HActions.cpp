#include "platform/headless/toolkit/HActions.h"

#include <algorithm>

#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

void HCustomAction::TellClients(const HActionState& before) {
    // A client's own code may change the action once more.
    const HActionState* const outer = std::exchange(FBefore, &before);
    // By index: it may link and unlink, too.
    for (std::size_t i = 0; i < FClients.size(); ++i) FClients[i]->ActionChanged(*this, false);
    FBefore = outer;
}

void HCustomAction::Hand(TName property, HObject& client, bool onlyDefaults) {
    const TPropValue* value = Stored(property);
    if (value && (!onlyDefaults || !client.Stored(property))) client.Store(property, *value);
}

void HCustomAction::RemoveClient(HActionClient& client) {
    // Clients mostly go in the reverse order of their coming.
    const auto place = std::find(FClients.rbegin(), FClients.rend(), &client);
    if (place != FClients.rend()) FClients.erase(std::next(place).base());
}

void HCustomAction::Update() {
    Fire(Kit().Names().OnUpdate);
}

bool HCustomAction::FireExecute() {
    return Fire(Kit().Names().OnExecute);
}

void HCustomAction::Execute() {
    Update();
    if (!Enabled() || Dead()) return;
    if (FAutoCheck) SetChecked(!Checked());
    FireExecute();
}

void HCustomAction::Detach() {
    const std::vector<HActionClient*> clients = std::exchange(FClients, {});
    for (auto client = clients.rbegin(); client != clients.rend(); ++client) (*client)->ActionGone();
}

}  // namespace rux
