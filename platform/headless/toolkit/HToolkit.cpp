#include "platform/headless/toolkit/HToolkit.h"

#include <algorithm>
#include <cstdio>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HForm.h"

namespace rux {

namespace {

/// The toolkit marks its windows by an atom of this form, with the process's number.
std::string ObjectAtomName(std::uint32_t process) {
    char name[32];
    std::snprintf(name, sizeof name, "Delphi%.8X", process);
    return name;
}

}  // namespace

HToolkit::HToolkit(HDesktop& desktop, TClockService& clock)
    : FDesktop(desktop), FClock(clock), FNextRef(HRefBase) {
    RegisterToolkitClasses(FClasses);
    FObjectAtom = desktop.GlobalAddAtomA(ObjectAtomName(desktop.ProcessId()));
    FApplication = std::make_unique<HApplication>(*this, *FClasses.FindDef("TApplication"));
    FDesktop.SetErrorReport([this](const std::exception& error) { FApplication->HandleException(error); });
}

HToolkit::~HToolkit() {
    // No loop may start any more; the forms' own code still hears of their end.
    FDesktop.Quit();
    FApplication->Free();
    FDesktop.SetErrorReport(nullptr);
    FApplication.reset();
    FDesktop.EmptyGraveyard();
}

std::unique_ptr<HObject> HToolkit::Make(std::string_view className) {
    const HClassDef* def = FClasses.FindDef(className);
    if (!def || !def->Make) return nullptr;
    return def->Make(*this, *def);
}

HWinControl* HToolkit::ControlOf(HWnd window) const {
    const HWindow* found = FDesktop.Find(window);
    return found ? dynamic_cast<HWinControl*>(found->Target) : nullptr;
}

void HToolkit::RemoveForm(HCustomForm& form) {
    std::erase(FForms, &form);
    if (FActiveForm == &form) FActiveForm = nullptr;
}

void HToolkit::FormActivated(HCustomForm& form) {
    FActiveForm = &form;
    std::erase(FForms, &form);
    FForms.insert(FForms.begin(), &form);
}

void HToolkit::FormDeactivated(HCustomForm& form) {
    if (FActiveForm == &form) FActiveForm = nullptr;
}

void HToolkit::SetCaptureControl(HControl* control) {
    FCaptureControl = control;
    if (!control) {
        FDesktop.ReleaseCapture();
        return;
    }
    HWinControl* window =
        control->IsWindowed() ? static_cast<HWinControl*>(control) : control->ParentControl();
    FDesktop.SetCapture(window ? window->Handle() : 0);
}

std::vector<HWnd> HToolkit::DisableTaskWindows(HWnd except) {
    std::vector<HWnd> disabled;
    FDesktop.EnumWindows([&](HWnd window) {
        if (window != except && FDesktop.IsWindowVisible(window) && FDesktop.IsWindowEnabled(window))
            disabled.push_back(window);
        return true;
    });
    for (const HWnd window : disabled) FDesktop.EnableWindow(window, false);
    return disabled;
}

void HToolkit::EnableTaskWindows(const std::vector<HWnd>& windows) {
    for (const HWnd window : windows) FDesktop.EnableWindow(window, true);
}

TObject& HToolkit::Application() {
    return *FApplication;
}

TObject* HToolkit::ObjectOfProp(std::uintptr_t value) {
    const auto found = FLive.find(value);
    return found == FLive.end() ? nullptr : found->second;
}

std::uint64_t HToolkit::NewRefNumber() {
    const std::uint64_t ref = FNextRef;
    FNextRef += HRefStep;
    return ref;
}

TObject* HToolkit::ActiveForm() {
    return FActiveForm;
}

TObject* HToolkit::CustomForms(int index) {
    const auto place = static_cast<std::size_t>(index);
    return place < FForms.size() ? FForms[place] : nullptr;
}

}  // namespace rux
