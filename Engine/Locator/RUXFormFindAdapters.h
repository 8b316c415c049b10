// Where a search starts: the application's top-level windows; and what a form has beyond a windowed control.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Engine/Locator/RUXFindAdapters.h"

namespace rux {

/// Takes the top-level windows of the process in stacking order; what is disabled or hidden is left out, and
/// that alone keeps a search out of forms under a modal one.
class TAppFindAdapter : public TRUXFindAdapter {
 public:
    using TRUXFindAdapter::TRUXFindAdapter;
    bool IsVisible() override { return true; }
    std::unique_ptr<TChildWalk> StartWalk() override;

    struct TTopWindow {
        std::string ClassName;
        TObject* Object;
    };
    /// What this finder has met so far; a second search adds its windows once more.
    const std::vector<TTopWindow>& TopWindows() const { return FTopWindows; }

 private:
    void CollectTopWindows();
    void AddTop(TObject* object);
    std::vector<TTopWindow> FTopWindows;
};

class TFormFindAdapter : public TWinControlFindAdapter {
 public:
    using TWinControlFindAdapter::TWinControlFindAdapter;
    /// The live title of the window counts before the Caption property.
    std::string GetCaption() override;
    /// The form's name.
    std::string GetContent() override;
    std::unique_ptr<TChildWalk> StartWalk() override;
};

}  // namespace rux
