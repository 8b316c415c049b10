#include "platform/headless/toolkit/HComponent.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/Stack.h"
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

void HComponent::AddParts(std::vector<HComponent*>& parts) const {
    for (const auto& component : FComponents) parts.push_back(component.get());
}

void HComponent::Free() {
    if (FDestroying) return;
    const HDesktop::THandling handling(Kit().Desktop());
    FDestroying = true;
    // Parts may be nested deeper than the stack allows to recurse, and handlers may make and free some on the
    // way.
    std::vector<HComponent*> all{this};
    std::vector<HComponent*> parts;
    const auto addPartsOf = [&](const HComponent& component) {
        parts.clear();
        component.AddParts(parts);
        for (HComponent* part : parts)
            if (!std::exchange(part->FDestroying, true)) all.push_back(part);
    };
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i]->BeforeDestruction();
        addPartsOf(*all[i]);
    }
    for (std::size_t i = all.size(); i-- > 0;) all[i]->End();
    std::unordered_set<HComponent*> owners;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (!all[i]->Dead()) all[i]->End();  // came up while the others went
        addPartsOf(*all[i]);
        owners.insert(all[i]);
        if (all[i]->FOwner) owners.insert(all[i]->FOwner);
    }
    // One flat row: a chain of owners is not freed by recursion either. Frames of calls that run in these
    // components may still be on the stack.
    const auto grave = std::make_shared<std::vector<std::unique_ptr<HComponent>>>();
    for (HComponent* owner : owners) owner->Bury(*grave);
    Kit().Desktop().Bury(grave);
}

void HComponent::End() {
    Detach();
    MarkDead();
    Kit().Forget(*this);
}

void HComponent::Bury(std::vector<std::unique_ptr<HComponent>>& grave) {
    const auto alive = [](const std::unique_ptr<HComponent>& component) { return !component->Dead(); };
    const auto dead = std::stable_partition(FComponents.begin(), FComponents.end(), alive);
    std::move(dead, FComponents.end(), std::back_inserter(grave));
    FComponents.erase(dead, FComponents.end());
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
    if (method.empty())
        std::erase_if(FEvents, [&](const TEvent& row) { return row.Name == event; });
    else
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
    const TName key = InternName(name);
    std::erase_if(FMethods, [&](const auto& row) { return row.first == key; });
    FMethods.emplace_back(key, std::move(handler));
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
    // Without a method it is the toolkit's own, such as that of a radio group's buttons.
    if (journal.Wants(HEntry::Event) && !row->Method.empty())
        journal.Add(HEntry::Event, "event " + Path() + " " + NameText(event) + " " + row->Method);
    // A copy: the handler may assign another one, or end this component.
    if (const HHandler code = CodeOf(*row)) {
        CheckStack();  // handlers may cause each other's events without end
        const HDesktop::THandling handling(Kit().Desktop());
        code(*this, args);
    }
    return true;
}

void HComponent::FireGuarded(TName event) {
    if (!FLoading) Kit().App().Guarded([&] { Fire(event); });
}

bool HComponent::GetProp(TName name, TPropValue& value) {
    const TEvent* row = FindEvent(name);
    if (!row || Dead()) return With::GetProp(name, value);
    value = {.Kind = TTypeKind::Method, .Text = row->Method};
    return true;
}

}  // namespace rux
