// The desktop in memory as a platform under test.
#include "contract/WindowContract.h"
#include "platform/headless/drawing/HCanvas.h"
#include "platform/headless/native/HMessageBox.h"
#include "platform/headless/native/HNativeFactory.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"

namespace rux::test {

namespace {

class TPaintedTarget final : public HNativeWindow {
 public:
    explicit TPaintedTarget(HDesktop& desktop) : HNativeWindow(desktop, "Painted") {}
    void Paint(HCanvas& canvas, const HWindow& window) override {
        const TRect all = window.ClientRect();
        canvas.Fill(all, {0, 0, 255});
        canvas.Fill({0, 0, all.Right / 2, all.Bottom}, {255, 0, 0});
    }
};

class THeadlessWindows final : public TWindowsUnderTest {
 public:
    THeadlessWindows() : TWindowsUnderTest(FDesktop, FCode) {
        SetAnsiCodePage(LoadCodePage(936));
        FDesktop.SetErrorReport([this](const std::exception& error) { Errors.push_back(error.what()); });
    }

    HWnd Make(const TNewWindow& window) override {
        const HWnd native = CreateNativeWindow(FDesktop, window.ClassName, window.Text, window.Style,
                                               window.Parent, window.Rect);
        if (native) return native;
        const bool painted = std::string_view(window.ClassName) == "Painted";
        return FDesktop.CreateWindowA({window.ClassName,
                                       window.Text,
                                       window.Style,
                                       window.ExStyle,
                                       window.Parent,
                                       window.Rect,
                                       {},
                                       0,
                                       nullptr,
                                       painted ? std::make_shared<TPaintedTarget>(FDesktop) : nullptr});
    }
    void Destroy(HWnd window) override { FDesktop.DestroyWindow(window); }
    void Show(HWnd window, TShowCommand command) override { FDesktop.ShowWindow(window, command); }
    void Enable(HWnd window, bool enabled) override { FDesktop.EnableWindow(window, enabled); }
    void BringToTop(HWnd window) override { FDesktop.BringWindowToTop(window); }
    void Mark(HWnd window, const std::string& name, std::uintptr_t value) override {
        FDesktop.SetPropA(window, FDesktop.GlobalAddAtomA(name), value);
    }
    void Pump() override {
        for (TMessage message; FDesktop.PeekAny(message);) FDesktop.DispatchMessage(message);
    }
    void Later(std::function<void()> code) override {
        const auto timer = std::make_shared<unsigned>(0);
        *timer = FDesktop.SetTimer(0, [this, timer, code = std::move(code)] {
            FDesktop.KillTimer(*timer);
            code();
        });
    }
    unsigned RunMessageBox(const std::string& text, const std::string& caption, HWnd owner,
                           unsigned flags) override {
        return rux::RunMessageBox(FDesktop, text, caption, owner, flags);
    }
    HWnd ShowDialog(const std::string& caption, bool modal) override {
        const HWnd dialog = CreateNativeDialog(FDesktop, caption, {50, 50, 250, 150}, 0);
        if (modal)
            RunNativeDialog(FDesktop, dialog);
        else
            FDesktop.ShowWindow(dialog, SW_SHOWNORMAL);
        return dialog;
    }

 private:
    TManualClock FClock;
    TPosixKernel FKernel{FClock, {}};
    HCodeSpace FCode;
    HDesktop FDesktop{FKernel, FClock, FCode};
};

INSTANTIATE_TEST_SUITE_P(Headless, WindowContract,
                         testing::Values(+[]() -> std::unique_ptr<TWindowsUnderTest> {
                             return std::make_unique<THeadlessWindows>();
                         }));

}  // namespace

}  // namespace rux::test
