// Components: names, ownership, events.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Types.h"
#include "platform/headless/toolkit/HObject.h"

namespace rux {

/// What an event passes beyond its sender; handlers change it where the toolkit has var parameters.
struct HEventArgs {
    /// OnCloseQuery, OnChanging: whether it may go on.
    bool Allow = true;
    /// OnClose: the close action; OnKeyDown, OnKeyPress: the key, 0 to swallow it; else what the event
    /// counts.
    int Value = 0;
    TPoint Point;
    /// OnEdited: the new text, which the handler may change.
    std::string Text = {};
    /// The node, item or page that the event is about; nil where it is about none.
    HObject* Object = nullptr;
};
using HHandler = std::function<void(HObject& sender, HEventArgs& args)>;

/// One line of what a component holds beyond its components: an item, a node, a column, a tab, a panel.
struct HContentLine {
    std::string_view Kind;
    /// 0 for what the component holds itself, one more for each level below.
    std::size_t Depth = 0;
    /// As a person would read it; several columns are several texts.
    std::vector<std::string> Texts;
    /// Such as "checked" or "selected"; empty for nothing to say.
    std::string State = {};
};

class HComponent : public With<HObject, TComponent> {
 public:
    using With::With;
    ~HComponent() override = default;

    std::string Name() override { return FName; }
    void SetName(const std::string& name) { FName = name; }
    const std::string& PlainName() const { return FName; }
    TObject* Owner() override { return FOwner; }
    HComponent* OwnerComponent() const { return FOwner; }
    /// Names from the outermost owner down, joined by dots.
    std::string Path() const;

    /// What a form file nests the component in, where that is not a control's parent; nil for none.
    HComponent* ParentComponent() const { return FParentComponent.Get(); }
    void SetParentComponent(HComponent* parent) { FParentComponent = parent; }

    /// Takes a component over; it dies with this one at the latest.
    HComponent& Own(std::unique_ptr<HComponent> component);
    const std::vector<std::unique_ptr<HComponent>>& Components() const { return FComponents; }
    /// Compared without case; nil if there is none.
    HComponent* FindComponent(std::string_view name) const;

    /// Ends the component and what goes with it: all it owns, and the controls and items on it. From then on
    /// they are dead; their storage stays until nothing is being handled any more.
    void Free();
    /// Free has begun.
    bool Destroying() const { return FDestroying; }
    /// While a form file is being read nothing fires.
    bool Loading() const { return FLoading; }
    void BeginLoading() { FLoading = true; }
    /// What a dump shows below the component's own line.
    virtual std::vector<HContentLine> Content() { return {}; }
    /// Called once all properties of the form file are in.
    virtual void Loaded() { FLoading = false; }

    // Events. A form file names a method; the code is looked up at the owner when the event fires. Without a
    // method the event is not assigned any more.
    void SetEvent(TName event, std::string method);
    /// Code set at run time.
    void SetHandler(std::string_view event, HHandler handler);
    bool Assigned(TName event) const { return FindEvent(event) != nullptr; }
    /// True when firing the event would run something.
    bool HasCode(TName event) const;
    /// Name of the method, empty without one.
    std::string MethodOf(TName event) const;
    /// Records the event and runs its code, if both are there. False when the event is not assigned. Raises
    /// EStackOverflow when events have caused each other for too long.
    bool Fire(TName event, HEventArgs& args);
    bool Fire(TName event);
    /// Fires an event of the component's life, unless it is still being loaded: what its code raises is
    /// reported.
    void FireGuarded(TName event);
    /// Gives a method of this form (frame, data module) its code; the last one counts.
    void DefineMethod(std::string_view name, HHandler handler);
    /// Also answers for events.
    bool GetProp(TName name, TPropValue& value) override;

 protected:
    /// Runs while the component and all that goes with it are still whole; owners and parents first. Raises
    /// nothing.
    virtual void BeforeDestruction() {}
    /// Adds what ends with this component.
    virtual void AddParts(std::vector<HComponent*>& parts) const;
    /// Takes the component out of what it is part of; the parts go first.
    virtual void Detach() {}

 private:
    struct TEvent {
        TName Name;
        std::string Method;
        HHandler Code;
    };
    const TEvent* FindEvent(TName event) const;
    TEvent& EventSlot(TName event);
    const HHandler* FindMethod(TName method) const;
    HHandler CodeOf(const TEvent& event) const;
    void End();
    /// Moves the owned components that are dead to `grave`.
    void Bury(std::vector<std::unique_ptr<HComponent>>& grave);

    bool FLoading = false;
    bool FDestroying = false;
    std::string FName;
    HComponent* FOwner = nullptr;
    HRef<HComponent> FParentComponent;
    std::vector<std::unique_ptr<HComponent>> FComponents;
    std::vector<TEvent> FEvents;
    std::vector<std::pair<TName, HHandler>> FMethods;
};

}  // namespace rux
