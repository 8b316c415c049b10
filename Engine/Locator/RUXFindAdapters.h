// Finders: the small objects that stand for findable things. Base classes and the walk through controls.
//
// All of it runs on the user-interface thread, since it reads controls.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "Engine/Core/RUXFindAdapter.h"
#include "Engine/Locator/RUXCoverage.h"
#include "platform/toolkit/Classes.h"

namespace rux {

class TRUXFindAdapter;

/// One level of a walk: what lies directly below a thing, piece by piece.
class TChildWalk {
 public:
    struct TStep {
        TIntf<IFindAdapter> Finder;
        /// Whether the walk goes into the thing before the next step.
        bool Enter = true;
    };
    virtual ~TChildWalk() = default;
    /// False when there is no further step.
    virtual bool Next(TStep& step) = 0;
};

/// Base of all finders. It owns nothing and lives for one search.
class TRUXFindAdapter : public TInterfacedObject<IFindAdapter, int> {
 public:
    explicit TRUXFindAdapter(TObject* instance) : FInstance(instance) {}

    /// Finders are made by the thousand and live on one thread.
    static void* operator new(std::size_t size);
    static void operator delete(void* storage, std::size_t size);

    std::uint64_t GetID() override;
    std::string GetCaption() override;
    TRect GetBounds() override;
    const std::string& GetClassName() override;
    bool IsMatch(const TTextMatcher& text) override;
    std::string GetContent() override { return {}; }
    bool IsVisible() override { return false; }
    bool IsEnabled() override { return true; }
    TObject* GetObject() final { return FInstance; }
    /// Walks without recursion: the application may nest its controls deeper than the stack allows. What an
    /// override does beyond that, a walk that comes from above does not see.
    int FindChildren(ICommonLocator& list) override;
    std::string GetPropValue(std::string_view name) final;

    /// How a text names the content, when there is one and no caption.
    virtual bool IsContentMatch(const TTextMatcher& text, const std::string& content);
    /// What lies directly below; nil for nothing.
    virtual std::unique_ptr<TChildWalk> StartWalk() { return nullptr; }

 protected:
    TObject* Instance() const { return FInstance; }
    /// The first of two properties whose text is not blank.
    std::string FirstText(TName first, TName second);

 private:
    TObject* FInstance;
};

class TControlFindAdapter : public TRUXFindAdapter {
 public:
    using TRUXFindAdapter::TRUXFindAdapter;
    TRect GetBounds() override;
    bool IsVisible() override;
    bool IsEnabled() override;
};

class TWinControlFindAdapter : public TControlFindAdapter {
 public:
    using TControlFindAdapter::TControlFindAdapter;
    bool IsVisible() override;
    std::unique_ptr<TChildWalk> StartWalk() override;
};

/// For a page that no class filter may find. Never registered.
class TNoTypeWinControlFindAdapter : public TWinControlFindAdapter {
 public:
    using TWinControlFindAdapter::TWinControlFindAdapter;
    const std::string& GetClassName() override;
};

/// The walk through a control's pop-up menu and its children from the top of the stacking order down.
class TControlWalk : public TChildWalk {
 public:
    explicit TControlWalk(TObject* control);
    bool Next(TStep& step) override;

 private:
    bool NextChild(TStep& step);
    TObject* FControl;
    bool FMenuDone = false;
    /// Index of the next child, counting down.
    int FIndex;
    /// The child of the step before: if it fills its parent, it hides all the rest.
    TObject* FLast = nullptr;
    TCoverage FCoverage;
};

}  // namespace rux
