#include "platform/headless/toolkit/HComponent.h"

#include <algorithm>

#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/Text.h"

namespace rux {

std::string HComponent::Path() const {
    std::string path = FName.empty() ? ClassName() : FName;
    for (const HComponent* step = FOwner; step && !step->FName.empty(); step = step->FOwner)
        path = step->FName + "." + path;
    return path;
}

HComponent& HComponent::Own(std::unique_ptr<HComponent> component) {
    component->FOwner = this;
    return *FComponents.emplace_back(std::move(component));
}

HComponent* HComponent::FindComponent(std::string_view name) const {
    for (const auto& component : FComponents)
        if (SameText(component->FName, name)) return component.get();
    return nullptr;
}

void HComponent::Free() {
    if (Dead()) return;
    EndAll();
    if (!FOwner) return;
    auto& row = FOwner->FComponents;
    const auto place =
        std::find_if(row.rbegin(), row.rend(), [this](const auto& c) { return c.get() == this; });
    if (place == row.rend()) return;
    // Frames of the call that ends this component may still stand in its methods.
    std::shared_ptr<HComponent> self = std::move(*place);
    row.erase(std::next(place).base());
    Kit().Desktop().Bury(std::move(self));
}

void HComponent::EndAll() {
    // Owners may be nested deeper than the stack allows to recurse.
    std::vector<HComponent*> all{this};
    for (std::size_t i = 0; i < all.size(); ++i)
        for (const auto& component : all[i]->FComponents) all.push_back(component.get());
    for (std::size_t i = 0; i < all.size(); ++i) all[i]->BeforeDestruction();
    for (auto step = all.rbegin(); step != all.rend(); ++step) {
        HComponent& component = **step;
        if (component.Dead()) continue;
        component.Detach();
        component.MarkDead();
        Kit().Forget(component);
    }
}

const HComponent::TEvent* HComponent::FindEvent(TName event) const {
    for (const TEvent& row : FEvents)
        if (row.Name == event) return &row;
    return nullptr;
}

HComponent::TEvent& HComponent::EventSlot(TName event) {
    for (TEvent& row : FEvents)
        if (row.Name == event) return row;
    return FEvents.emplace_back(TEvent{event, {}, {}});
}

void HComponent::SetEvent(TName event, std::string method) {
    EventSlot(event).Method = std::move(method);
}

void HComponent::SetHandler(std::string_view event, HHandler handler) {
    EventSlot(InternName(event)).Code = std::move(handler);
}

std::string HComponent::MethodOf(TName event) const {
    const TEvent* row = FindEvent(event);
    return row ? row->Method : std::string();
}

void HComponent::DefineMethod(std::string_view name, HHandler handler) {
    FMethods.emplace_back(InternName(name), std::move(handler));
}

const HHandler* HComponent::FindMethod(TName method) const {
    for (const HComponent* step = this; step; step = step->FOwner)
        for (const auto& [name, code] : step->FMethods)
            if (name == method) return &code;
    return nullptr;
}

HHandler HComponent::CodeOf(const TEvent& event) const {
    if (event.Code || event.Method.empty()) return event.Code;
    const HHandler* method = FindMethod(FindName(event.Method));
    return method ? *method : HHandler();
}

bool HComponent::HasCode(TName event) const {
    const TEvent* row = FindEvent(event);
    return row && CodeOf(*row);
}

bool HComponent::Fire(TName event) {
    HEventArgs args;
    return Fire(event, args);
}

bool HComponent::Fire(TName event, HEventArgs& args) {
    const TEvent* row = FindEvent(event);
    if (!row || Dead()) return false;
    HJournal& journal = Kit().Desktop().Journal();
    if (journal.Wants(HEntry::Event))
        journal.Add(HEntry::Event, "event " + Path() + " " + NameText(event) + " " + row->Method);
    // A copy: the handler may assign another one, or end this component.
    if (const HHandler code = CodeOf(*row)) code(*this, args);
    return true;
}

bool HComponent::GetProp(TName name, TPropValue& value) {
    const TEvent* row = FindEvent(name);
    if (!row || Dead()) return With::GetProp(name, value);
    value = {.Kind = TTypeKind::Method, .Text = row->Method};
    return true;
}

}  // namespace rux
