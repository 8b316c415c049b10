// The base of all adapters: what scripts can do with every control, and what the families build on.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "Engine/Adapters/RUXInterface.h"
#include "Engine/Core/RUXAdapter.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "platform/Types.h"
#include "platform/toolkit/Classes.h"
#include "rtl/Exceptions.h"
#include "rtl/Intf.h"
#include "rtl/Numbers.h"

namespace rux {

/// An adapter refuses: EAdapterException with the text, which is in the system's code page.
[[noreturn]] void RaiseAdapterError(const std::string& message);
/// The same with the places of `format` filled.
[[noreturn]] void RaiseAdapterErrorFmt(std::string_view format, std::initializer_list<TFormatArg> args);

/// Drives one control for one request; owns nothing and remembers nothing. User-interface thread.
///
/// Failures of the control's own code, and of the toolkit, leave every method as they are: nothing is caught,
/// retried or waited for. Each step asks for the control's operations anew, since the step before may have
/// run code that freed it; a control that is gone raises EAccessViolation.
class TRUXControlAdapter : public TInterfacedObject<IRUXAdapter, int>,
                           public IControl,
                           public IReadOnlyMethod {
 public:
    /// Asserts that there is a control.
    explicit TRUXControlAdapter(TObject* control);

    /// The published property of that name; raises ERUXException for a control without one.
    bool ReadOnly() override;
    /// The next three raise EAdapterException for a control without a window, and what focusing it raises.
    void RightClick() override;
    void DbClick() override;
    void Active() override;
    /// Keys go to the window that GetHandle names.
    void SendKey(const std::string& AKey, const std::string& ACAKey) override;
    bool Enabled() override;
    bool Find() override { return true; }

    /// Where the messages of SendKey go. 0, no window, unless an adapter overrides it: the first adapters
    /// asked the wrong object for its handle, and it has stayed so. Scripts rely on it in that F2 and Down
    /// leave every control alone but those whose adapters name a window; only RETURN, which is real input,
    /// acts everywhere.
    virtual HWnd GetHandle() { return 0; }

 protected:
    /// Raises EAdapterException with that text (UTF-8) unless the control has a window.
    void DemandWindow(std::string_view refusal) const;
    void SetFocus() const;
    HWnd WindowHandle() const;
    TRect ClientRect() const;
    std::string Text() const;

    TObject* const FControl;
};

/// Root of the adapters over virtual controls.
class TBaseVirtualControlAdapter : public TRUXControlAdapter {
 public:
    using TRUXControlAdapter::TRUXControlAdapter;
};

/// What makes a class an adapter: its name, the class of the controls that it drives, the interface that it
/// offers and those between that one and IControl that its base does not implement yet.
template <class Base, TClassNameLiteral Name, TClassNameLiteral Control, class Offered, class... Inherited>
class TAdapterOf : public Base, public Offered, public Inherited... {
 public:
    using Base::Base;
    std::string_view AdapterName() const override { return Name.Text; }
    const TInterfaceInfo& InterfaceInfo() const override { return Offered::Info; }

    /// How the registry knows adapter `A`, the class that stands on this one.
    template <class A>
    static TAdapterEntry EntryOf() {
        const auto make = [](TObject* control) -> TIntf<IRUXAdapter> { return MakeIntf<A>(control); };
        return {Name.Text, Control.Text, &Offered::Info, make};
    }
};

/// Adapters in the order in which they are to be asked.
template <class... A>
void RegisterAdapters(TTypeRegistry& registry) {
    (registry.RegisterAdapter(A::template EntryOf<A>()), ...);
}

}  // namespace rux
