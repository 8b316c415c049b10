// Virtual controls: objects that the engine makes for windows that are no objects of the toolkit, so that
// they can be found and driven like controls. To the registries they are live objects like all others.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Engine/Core/RUXServerUtils.h"
#include "platform/Types.h"
#include "platform/toolkit/Classes.h"

namespace rux {

const TClass& DefineVirtualClass(std::string_view name, const TClass& parent);

/// Root of all virtual controls. Needs an engine that stands, and no longer than that. User-interface thread.
class TBaseVirtualControl : public TObject {
 public:
    static constexpr TFacetId Id = TFacetId::BaseVirtualControl;
    static const TClass& StaticClass();
    TBaseVirtualControl() : TBaseVirtualControl(StaticClass()) {}
    TBaseVirtualControl(const TBaseVirtualControl&) = delete;
    TBaseVirtualControl& operator=(const TBaseVirtualControl&) = delete;

    const TClass& ClassType() const override { return FClass; }
    void* Facet(TFacetId id) override { return id == Id ? this : nullptr; }
    std::uint64_t RefNumber() const override { return FRef; }
    bool GetProp(TName, TPropValue&) override { return false; }

    virtual bool GetEnabled() { return true; }

 protected:
    explicit TBaseVirtualControl(const TClass& type);

 private:
    const TClass& FClass;
    const std::uint64_t FRef;
};

/// Stands for one native window, which may be gone at any time: it then has no text and is not enabled, and
/// what it is sent is lost without a word.
class TVirtualWinControl : public TBaseVirtualControl {
 public:
    static const TClass& StaticClass();
    /// The window class that stands for virtual class `name`: what follows "TVirtual".
    static constexpr std::string_view NativeClassOf(std::string_view name) { return name.substr(8); }
    explicit TVirtualWinControl(HWnd handle) : TVirtualWinControl(StaticClass(), handle) {}

    HWnd Handle() const { return FHandle; }
    std::string Caption() const;
    /// The caption without its blanks.
    std::string Name() const;
    virtual std::string_view WindowClassName() const { return NativeClassOf(ClassType().Name()); }
    bool GetEnabled() override;
    /// Publishes Caption and Name.
    bool GetProp(TName name, TPropValue& value) override;
    /// What can be found below, at any depth: virtual controls, and those of the toolkit that no parent leads
    /// to. Collected, and made for the current request, when they are asked for first: if every control came
    /// with its children, n windows inside each other would take 2 to the power of n.
    int GetChildCount();
    /// Asserts that the index lies within. The child is not owned.
    TObject* GetChild(int index);
    /// The caption; then, for each window below that has a title: CR LF, the class of its object or "other",
    /// a colon, the title.
    std::string GetWindowReport() const;

 protected:
    TVirtualWinControl(const TClass& type, HWnd handle) : TBaseVirtualControl(type), FHandle(handle) {}
    LResult Send(unsigned message, WParam wParam, LParam lParam) const;
    /// The text as the window itself gives it, at most VirtualTextLimit bytes.
    std::string SentText() const;
    void SendText(const std::string& text) const;

 private:
    void CollectChildren();
    const HWnd FHandle;
    bool FCollected = false;
    std::vector<TObject*> FChildren;
};

/// A virtual class: its base and its name.
template <class Base, TClassNameLiteral ClassName>
class TVirtualClassOf : public Base {
 public:
    static constexpr std::string_view VirtualClass = ClassName.Text;
    /// Windows of this class, compared without case, become objects of this one once it is in the list.
    static constexpr std::string_view NativeClass = Base::NativeClassOf(VirtualClass);
    static const TClass& StaticClass() { return DefineVirtualClass(VirtualClass, Base::StaticClass()); }
    explicit TVirtualClassOf(HWnd handle) : TVirtualClassOf(StaticClass(), handle) {}

 protected:
    TVirtualClassOf(const TClass& type, HWnd handle) : Base(type, handle) {}
};

/// A top-level window.
class TVirtualWindow final : public TVirtualClassOf<TVirtualWinControl, "TVirtualWindow"> {
 public:
    using TVirtualClassOf::TVirtualClassOf;
    void Close() const;
};

/// Makes a virtual control that lives as long as the request that is being served: nobody needs to free it.
/// Asserts that there is a request.
template <class T, class... Args>
T& CreateVirtualControl(Args&&... args) {
    auto made = std::make_unique<T>(std::forward<Args>(args)...);
    T& control = *made;
    AddToObjectPool(std::move(made));
    return control;
}

/// A virtual control as what it is in C++. Raises EAccessViolation for any other object, also for one of the
/// application's whose class bears the name.
template <class T>
T& VirtualCast(TObject* object) {
    T* control = dynamic_cast<T*>(&Cast<TBaseVirtualControl>(object));
    if (!control) RaiseNilAccess();
    return *control;
}

/// Which virtual class stands for which window class. User-interface thread.
class TVirtualClassList {
 public:
    /// Holds the engine's own classes, in the order in which they are asked.
    TVirtualClassList();
    /// Asserts that the class is new.
    template <class T>
    void Register() {
        Add({T::VirtualClass, T::NativeClass,
             [](HWnd window) -> TObject& { return CreateVirtualControl<T>(window); }});
    }
    /// A new control of the first class that fits; nil for a window of any other class.
    TObject* CreateFor(HWnd window) const;

 private:
    struct TEntry {
        std::string_view VirtualClass, NativeClass;
        TObject& (*Make)(HWnd window);
    };
    void Add(const TEntry& entry);
    std::vector<TEntry> FEntries;
};

}  // namespace rux
