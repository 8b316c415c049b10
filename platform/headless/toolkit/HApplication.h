// The application object: its hidden window, its message loop, its report of errors.
#pragma once

#include <functional>
#include <string>

#include "platform/headless/toolkit/HComponent.h"
#include "platform/headless/windows/HDesktop.h"
#include "platform/toolkit/Forms.h"

namespace rux {

class HCustomForm;

class HApplication final : public With<HComponent, TApplication>, public HWindowTarget {
 public:
    HApplication(HToolkit& kit, const HClassDef& def);
    ~HApplication() override;

    HWnd Handle() override { return FHandle; }
    void ProcessMessages() override;
    TObject* MainForm() override;
    bool Terminated() override;

    HCustomForm* MainFormObject() const { return FMainForm; }
    void SetMainForm(HCustomForm* form) { FMainForm = form; }
    const std::string& Title() const { return FTitle; }
    void SetTitle(std::string title) { FTitle = std::move(title); }

    /// Shows the main form and runs the loop until Terminate.
    void Run();
    /// One message; when there is none, brings actions up to date and waits for something to happen.
    void HandleMessage();
    /// Makes all loops end. Any thread.
    void Terminate();

    /// The application's own report of an error: silent for EAbort, OnException's code if there is one, else
    /// a message box that waits until somebody closes it. What that code raises is shown in a box.
    void HandleException(const std::exception& error);
    /// Runs code and reports what it raises; False then.
    template <class Code>
    bool Guarded(Code&& code) {
        try {
            code();
            return true;
        } catch (const std::exception& error) {
            HandleException(error);
        } catch (...) {
            HandleUnknown();
        }
        return false;
    }
    using TExceptionHandler = std::function<void(const std::exception&)>;
    void SetOnException(TExceptionHandler handler) { FOnException = std::move(handler); }
    /// A native box with an OK button; all other windows of the application are disabled meanwhile.
    void MessageBox(const std::string& text, const std::string& caption);

    // HWindowTarget
    LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) override;
    std::string JournalName() const override { return "Application"; }

 private:
    bool ProcessMessage();
    bool UsedAsDialogKey(const TMessage& message);
    void Idle();
    void HandleUnknown();
    void ShowException(const std::exception& error);

    HWnd FHandle = 0;
    std::string FTitle;
    HCustomForm* FMainForm = nullptr;
    TExceptionHandler FOnException;
};

}  // namespace rux
