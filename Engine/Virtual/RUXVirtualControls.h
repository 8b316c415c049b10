// Virtual controls: objects that the engine makes for windows that are no objects of the toolkit, so that
// they can be found and driven like controls. To the registries they are live objects like all others.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "Engine/Core/RUXServerUtils.h"
#include "platform/Types.h"
#include "platform/toolkit/Classes.h"

namespace rux {

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

/// Stands for one native window, which may be gone at any time: it then has no text and is not enabled.
class TVirtualWinControl : public TBaseVirtualControl {
 public:
    static const TClass& StaticClass();
    explicit TVirtualWinControl(HWnd handle) : TVirtualWinControl(StaticClass(), handle) {}

    HWnd Handle() const { return FHandle; }
    std::string Caption() const;
    /// The caption without its blanks.
    std::string Name() const;
    bool GetEnabled() override;
    /// Publishes Caption and Name.
    bool GetProp(TName name, TPropValue& value) override;
    /// The caption; then, for each window below that has a title: CR LF, the class of its object or "other",
    /// a colon, the title.
    std::string GetWindowReport() const;

 protected:
    TVirtualWinControl(const TClass& type, HWnd handle) : TBaseVirtualControl(type), FHandle(handle) {}

 private:
    const HWnd FHandle;
};

/// A top-level window.
class TVirtualWindow final : public TVirtualWinControl {
 public:
    static const TClass& StaticClass();
    explicit TVirtualWindow(HWnd handle) : TVirtualWinControl(StaticClass(), handle) {}
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

}  // namespace rux
