// The toolkit of the desktop in memory as a whole: classes, live objects, application, screen, mouse.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/FileService.h"
#include "platform/headless/toolkit/HApplication.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HNames.h"
#include "platform/headless/toolkit/HRegisteredClasses.h"
#include "platform/headless/windows/HDesktop.h"
#include "platform/toolkit/Forms.h"

namespace rux {

class HControl;
class HCustomForm;
class HWinControl;

/// Lives on the user-interface thread, the one that made the desktop.
class HToolkit final : public TToolkit, public TScreen, public TMouse {
 public:
    HToolkit(HDesktop& desktop, TClockService& clock, TFileService& files);
    ~HToolkit() override;

    HDesktop& Desktop() const { return FDesktop; }
    TClockService& Clock() const { return FClock; }
    TFileService& Files() const { return FFiles; }
    HClasses& ClassDefs() { return FClasses; }
    HApplication& App() { return *FApplication; }
    const HNames& Names() const { return FNames; }
    HRegisteredClasses& RegisteredClasses() { return FRegistered; }
    /// Calls the export of that name, which others may have patched. See HRegisteredClasses.
    void RegisterClass(const TClass& aClass) { FRegistered.RegisterClass(aClass); }

    /// An object of a class that is known by name, not yet owned by anybody.
    std::unique_ptr<HObject> Make(std::string_view className);
    template <class T>
    std::unique_ptr<T> MakeAs(std::string_view className) {
        std::unique_ptr<HObject> made = Make(className);
        T* typed = dynamic_cast<T*>(made.get());
        if (!typed) return nullptr;
        static_cast<void>(made.release());
        return std::unique_ptr<T>(typed);
    }

    void Remember(HObject& object) { FLive.emplace(object.RefNumber(), &object); }
    void Forget(HObject& object) { FLive.erase(object.RefNumber()); }
    /// nil for an object that has been freed.
    HObject* Find(std::uint64_t ref) const;
    TAtom ObjectAtom() const { return FObjectAtom; }
    /// The control behind a window; nil for windows that the toolkit does not know.
    HWinControl* ControlOf(HWnd window) const;

    /// Screen.CustomForms: the most recently focused one first.
    void AddForm(HCustomForm& form) { FForms.push_back(&form); }
    void RemoveForm(HCustomForm& form);
    void FormFocused(HCustomForm& form);
    const std::vector<HCustomForm*>& Forms() const { return FForms; }

    /// The form whose OnActivate was the last to fire; nil for none.
    HCustomForm* FocusedForm() const { return FFocusedForm; }
    void SetFocusedForm(HCustomForm* form) { FFocusedForm = form; }
    /// Counts the moves of the focus between controls, so that a move sees that its own events made another.
    unsigned FocusMoves() const { return FFocusMoves; }
    unsigned CountFocusMove() { return ++FFocusMoves; }

    /// The control that has captured the mouse: the captured window's own, or a graphic one on it.
    HControl* CaptureControl() const;
    void SetCaptureControl(HControl* control);
    void ForgetCapture(const HControl& control);

    /// Controls with an action, in the order of their linking.
    const std::vector<HControl*>& ActionControls() const { return FActionControls; }
    void ActionLinked(HControl& control, bool linked);

    // TToolkit, TScreen, TMouse
    TObject& Application() override;
    TScreen& Screen() override { return *this; }
    TMouse& Mouse() override { return *this; }
    std::uintptr_t MainThreadId() override { return FDesktop.OwnerThread(); }
    TClassTable& Classes() override { return FClasses; }
    TObject* ObjectOfProp(std::uintptr_t value) override;
    std::uint64_t NewRefNumber() override;
    TObject* ActiveForm() override;
    int CustomFormCount() override { return static_cast<int>(FForms.size()); }
    TObject* CustomForms(int index) override;
    TPoint CursorPos() override { return FDesktop.GetCursorPos(); }
    void SetCursorPos(TPoint point) override { FDesktop.SetCursorPos(point); }

 private:
    HDesktop& FDesktop;
    TClockService& FClock;
    TFileService& FFiles;
    HNames FNames;
    HClasses FClasses;
    HRegisteredClasses FRegistered;
    std::uint64_t FNextRef;
    std::unordered_map<std::uint64_t, HObject*> FLive;
    TAtom FObjectAtom = 0;
    std::vector<HCustomForm*> FForms;
    HCustomForm* FActiveForm = nullptr;
    HCustomForm* FFocusedForm = nullptr;
    unsigned FFocusMoves = 0;
    /// A graphic control that gets the mouse messages of its parent's captured window.
    HControl* FCaptureGraphic = nullptr;
    std::vector<HControl*> FActionControls;
    std::unique_ptr<HApplication> FApplication;
};

/// While one of these lives, every window that could be used when it came up is disabled.
class HTaskWindowsDisabled {
 public:
    explicit HTaskWindowsDisabled(HDesktop& desktop);
    ~HTaskWindowsDisabled();
    HTaskWindowsDisabled(const HTaskWindowsDisabled&) = delete;
    HTaskWindowsDisabled& operator=(const HTaskWindowsDisabled&) = delete;

 private:
    HDesktop& FDesktop;
    std::vector<HWnd> FWindows;
};

/// Fills the class table with everything that the headless toolkit knows.
void RegisterToolkitClasses(HClasses& classes);

}  // namespace rux
