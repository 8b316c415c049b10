// Windows that are no objects of the toolkit: the window system's own classes.
#pragma once

#include <memory>
#include <string>

#include "platform/headless/windows/HDesktop.h"

namespace rux {

/// Base: text is kept by the window system, the rest is its default.
class HNativeWindow : public HWindowTarget {
 public:
    HNativeWindow(HDesktop& desktop, std::string className)
        : FDesktop(desktop), FClassName(std::move(className)) {}
    LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) override {
        return FDesktop.DefWindowProc(window, message, wParam, lParam);
    }
    std::string JournalName() const override { return FClassName; }

 protected:
    HDesktop& FDesktop;

 private:
    std::string FClassName;
};

/// What the window class BUTTON does with mouse and space bar: capture on down, a notification on up inside.
/// The toolkit's buttons stand on the same class.
class HButtonClass {
 public:
    explicit HButtonClass(HDesktop& desktop) : FDesktop(desktop) {}
    bool Pushed() const { return FPushed; }
    /// True when the message ends in a click that the parent is to be told of.
    bool Handle(HWnd window, unsigned message, WParam wParam, LParam lParam);

 private:
    void Release(HWnd window);

    HDesktop& FDesktop;
    bool FPushed = false;
};

class HNativeButton final : public HNativeWindow {
 public:
    HNativeButton(HDesktop& desktop, unsigned id)
        : HNativeWindow(desktop, "Button"), FClass(desktop), FId(id) {}
    LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) override;

 private:
    HButtonClass FClass;
    unsigned FId;
};

/// A dialog: ends with the number of the button that was clicked.
class HNativeDialog final : public HNativeWindow {
 public:
    explicit HNativeDialog(HDesktop& desktop) : HNativeWindow(desktop, "#32770") {}
    LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) override;
    /// 0 while it is open.
    unsigned Result() const { return FResult; }

 private:
    unsigned FResult = 0;
};

inline constexpr unsigned IDOK = 1;
inline constexpr unsigned IDCANCEL = 2;

}  // namespace rux
