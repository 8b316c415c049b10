// What every platform's windows, pictures and code must do. A platform is run through it by a factory of its
// own.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>

#include "platform/Bitmap.h"
#include "platform/CodeService.h"
#include "platform/WindowService.h"
#include "rtl/Exceptions.h"

namespace rux::test {

inline constexpr std::uint32_t Popup = 0x80000000, Visible = 0x10000000, Disabled = 0x08000000;
inline constexpr std::uint32_t Child = WS_CHILD | Visible, TopMost = 0x00000008;
/// The first of the numbers that a window class uses as it likes.
inline constexpr unsigned WM_USER = 0x400;

struct TNewWindow {
    /// A class of the system's own, or one without frame and code: Plain, or Painted, which is red in its
    /// left half and blue in its right one.
    const char* ClassName;
    std::string Text;
    std::uint32_t Style = Popup;
    /// Parent of a child window, owner of any other.
    HWnd Parent = 0;
    /// In the parent's client area for child windows, else on the screen.
    TRect Rect{100, 100, 300, 250};
    std::uint32_t ExStyle = 0;
};

/// The application around the agent. Made, used and freed on one thread.
class TWindowsUnderTest {
 public:
    TWindowsUnderTest(TWindowService& windows, TCodeService& code) : Windows(windows), Code(code) {}
    virtual ~TWindowsUnderTest() = default;

    virtual HWnd Make(const TNewWindow& window) = 0;
    virtual void Destroy(HWnd window) = 0;
    virtual void Show(HWnd window, TShowCommand command) = 0;
    virtual void Enable(HWnd window, bool enabled) = 0;
    virtual void BringToTop(HWnd window) = 0;
    /// Sets a property by the atom of that name, which is made.
    virtual void Mark(HWnd window, const std::string& name, std::uintptr_t value) = 0;
    /// Serves what waits.
    virtual void Pump() = 0;
    /// Once, from whatever loop runs when nothing else waits.
    virtual void Later(std::function<void()> code) = 0;
    virtual unsigned RunMessageBox(const std::string& text, const std::string& caption, HWnd owner,
                                   unsigned flags) = 0;
    /// One that closes. A modal one is answered when it is gone.
    virtual HWnd ShowDialog(const std::string& caption, bool modal) = 0;

    TWindowService& Windows;
    TCodeService& Code;
    /// Wine takes the closing of a message box for its Cancel, whether or not it has such a button.
    bool EveryBoxCanBeClosed = false;
    /// Texts of the errors that were reported.
    std::vector<std::string> Errors;
};

using TWindowsFactory = std::unique_ptr<TWindowsUnderTest> (*)();

class WindowContract : public testing::TestWithParam<TWindowsFactory> {
 protected:
    ~WindowContract() override {
        for (auto step = FMade.rbegin(); step != FMade.rend(); ++step) Stage->Destroy(*step);
        Stage->Pump();
    }

    HWnd Make(const TNewWindow& window) { return FMade.emplace_back(Stage->Make(window)); }
    /// Runs `code` on another thread, and serves the windows until it has ended.
    void RunBeside(const std::function<void()>& code) {
        const std::future<void> ended = std::async(std::launch::async, code);
        while (ended.wait_for(std::chrono::seconds(0)) != std::future_status::ready) Stage->Pump();
    }
    /// The message box or dialog of that caption; 0 for none.
    HWnd DialogOf(const std::string& caption) {
        HWnd found = 0;
        Windows.EnumWindows([&](HWnd window) {
            if (Windows.GetClassNameA(window) == "#32770" && Windows.GetWindowTextA(window) == caption)
                found = window;
            return found == 0;
        });
        return found;
    }
    std::vector<HWnd> ChildrenOf(HWnd window) {
        std::vector<HWnd> all;
        Windows.EnumChildWindows(window, [&](HWnd child) { return all.push_back(child), true; });
        return all;
    }

    std::unique_ptr<TWindowsUnderTest> Stage = GetParam()();
    TWindowService& Windows = Stage->Windows;
    TCodeService& Code = Stage->Code;

 private:
    std::vector<HWnd> FMade;
};

}  // namespace rux::test
