#include "platform/headless/toolkit/HActions.h"

#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

void HCustomAction::TellClients() {
    const std::vector<HActionClient*> clients = FClients;
    for (HActionClient* client : clients) client->ActionChanged(*this, false);
}

void HCustomAction::Update() {
    Fire(Kit().Names().OnUpdate);
}

bool HCustomAction::FireExecute() {
    return Fire(Kit().Names().OnExecute);
}

void HCustomAction::Execute() {
    Update();
    if (!FEnabled || Dead()) return;
    if (FAutoCheck) SetChecked(!FChecked);
    FireExecute();
}

void HCustomAction::Detach() {
    const std::vector<HActionClient*> clients = std::move(FClients);
    FClients.clear();
    for (HActionClient* client : clients) client->ActionGone();
}

}  // namespace rux
