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

HToolkit::HToolkit(HDesktop& desktop, TClockService& clock, TFileService& files)
    : FDesktop(desktop), FClock(clock), FFiles(files), FRegistered(desktop.CodeSpace()), FNextRef(HRefBase) {
    RegisterToolkitClasses(FClasses);
    FObjectAtom = desktop.GlobalAddAtomA(ObjectAtomName(desktop.ProcessId()));
    FApplication = std::make_unique<HApplication>(*this, *FClasses.FindDef("TApplication"));
    FDesktop.SetErrorReport([this](const std::exception& error) { FApplication->HandleException(error); });
}

HToolkit::~HToolkit() {
    // No loop may start any more; the forms' own code still hears of their end.
    FDesktop.Quit();
    FApplication->Free();
    FDesktop.EmptyGraveyard();
    FDesktop.SetErrorReport(nullptr);
    FApplication.reset();
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
    if (FFocusedForm == &form) FFocusedForm = nullptr;
}

void HToolkit::FormFocused(HCustomForm& form) {
    FActiveForm = &form;
    std::erase(FForms, &form);
    FForms.insert(FForms.begin(), &form);
}

HControl* HToolkit::CaptureControl() const {
    HWinControl* window = ControlOf(FDesktop.GetCapture());
    return window && FCaptureGraphic && FCaptureGraphic->ParentControl() == window ? FCaptureGraphic : window;
}

void HToolkit::SetCaptureControl(HControl* control) {
    FDesktop.ReleaseCapture();
    FCaptureGraphic = control && !control->IsWindowed() ? control : nullptr;
    HWinControl* window = FCaptureGraphic ? control->ParentControl() : static_cast<HWinControl*>(control);
    if (window) FDesktop.SetCapture(window->Handle());
}

void HToolkit::ForgetCapture(const HControl& control) {
    if (CaptureControl() == &control) FDesktop.ReleaseCapture();
    if (FCaptureGraphic == &control) FCaptureGraphic = nullptr;
}

void HToolkit::ActionLinked(HControl& control, bool linked) {
    // Controls mostly go in the reverse order of their coming.
    const auto place = std::find(FActionControls.rbegin(), FActionControls.rend(), &control);
    if (place != FActionControls.rend()) FActionControls.erase(std::next(place).base());
    if (linked) FActionControls.push_back(&control);
}

TObject& HToolkit::Application() {
    return *FApplication;
}

HObject* HToolkit::Find(std::uint64_t ref) const {
    const auto found = FLive.find(ref);
    return found == FLive.end() ? nullptr : found->second;
}

TObject* HToolkit::ObjectOfProp(std::uintptr_t value) {
    return Find(value);
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

HTaskWindowsDisabled::HTaskWindowsDisabled(HDesktop& desktop) : FDesktop(desktop) {
    FDesktop.EnumWindows([&](HWnd window) {
        if (FDesktop.IsWindowVisible(window) && FDesktop.IsWindowEnabled(window)) FWindows.push_back(window);
        return true;
    });
    for (const HWnd window : FWindows) FDesktop.EnableWindow(window, false);
}

HTaskWindowsDisabled::~HTaskWindowsDisabled() {
    for (const HWnd window : FWindows) FDesktop.EnableWindow(window, true);
}

}  // namespace rux
