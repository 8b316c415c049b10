#include "Engine/Locator/RUXFormFindAdapters.h"

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXUtils.h"
#include "Engine/Locator/RUXPopupSearch.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "Engine/Virtual/RUXVirtualControls.h"
#include "platform/KernelService.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Forms.h"

namespace rux {

namespace {

TWindowService& Windows() {
    return Platform().Windows;
}

bool IsEnabledAsWindow(TObject* object) {
    if (Is<TBaseVirtualControl>(object)) return Cast<TBaseVirtualControl>(object).GetEnabled();
    return Is<TWinControl>(object) && Windows().IsWindowEnabled(Cast<TWinControl>(object).Handle());
}

/// The top-level things that may be searched, one after the other.
class TTopLevelWalk : public TChildWalk {
 public:
    explicit TTopLevelWalk(std::vector<TAppFindAdapter::TTopWindow> windows) : FWindows(std::move(windows)) {}
    bool Next(TStep& step) override {
        while (FNext < FWindows.size()) {
            TObject* object = FWindows[FNext++].Object;
            step.Finder = Engine().Registry->CreateFindAdapter(object);
            if (step.Finder && step.Finder->IsVisible() && IsEnabledAsWindow(object)) return true;
        }
        return false;
    }

 private:
    std::vector<TAppFindAdapter::TTopWindow> FWindows;
    std::size_t FNext = 0;
};

/// A form's controls, then its MDI children; only the active child is entered.
class TFormWalk : public TChildWalk {
 public:
    explicit TFormWalk(TObject* form) : FForm(form), FControls(form) {}
    bool Next(TStep& step) override {
        if (!FControlsDone && FControls.Next(step)) return true;
        FControlsDone = true;
        while (FNextChild < Cast<TCustomForm>(FForm).MDIChildCount()) {
            TObject* child = Cast<TCustomForm>(FForm).MDIChildren(FNextChild++);
            step.Finder = Engine().Registry->CreateFindAdapter(child);
            if (!step.Finder || !step.Finder->IsVisible()) continue;
            step.Enter = Cast<TCustomForm>(child).Active();
            return true;
        }
        return false;
    }

 private:
    TObject* FForm;
    TControlWalk FControls;
    bool FControlsDone = false;
    int FNextChild = 0;
};

}  // namespace

std::unique_ptr<TChildWalk> TAppFindAdapter::StartWalk() {
    // An open tool-bar pop-up takes over the search: no form is looked at while it is up.
    if (std::unique_ptr<TChildWalk> popup = StartPopupWalk()) return popup;
    CollectTopWindows();
    return std::make_unique<TTopLevelWalk>(FTopWindows);
}

void TAppFindAdapter::AddTop(TObject* object) {
    FTopWindows.push_back({object->ClassType().Name(), object});
}

void TAppFindAdapter::CollectTopWindows() {
    const std::uint32_t process = Platform().Kernel.GetCurrentProcessId();
    Windows().EnumWindows([&](HWnd window) {
        if (Windows().GetWindowProcessId(window) != process) return true;
        if (!Windows().IsWindowEnabled(window) || !Windows().IsWindowVisible(window)) return true;
        if (TObject* object = FindVclControl(window))
            AddTop(object);
        else if (!GetRawWindowText(window).empty())
            AddTop(&CreateVirtualControl<TVirtualWindow>(window));
        return true;
    });
    if (!FTopWindows.empty()) return;
    TObject* form = Platform().Toolkit.Screen().ActiveForm();
    if (!form) form = Cast<TApplication>(Instance()).MainForm();
    if (form) AddTop(form);
}

std::string TFormFindAdapter::GetCaption() {
    std::string title = GetRawWindowText(Cast<TWinControl>(Instance()).Handle());
    return title.empty() ? TWinControlFindAdapter::GetCaption() : title;
}

std::string TFormFindAdapter::GetContent() {
    return Cast<TComponent>(Instance()).Name();
}

std::unique_ptr<TChildWalk> TFormFindAdapter::StartWalk() {
    return std::make_unique<TFormWalk>(Instance());
}

}  // namespace rux
