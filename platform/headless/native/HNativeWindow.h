// Windows that are no objects of the toolkit: the window system's own classes. This file has what all of them
// stand on, and those without a file of their own.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "platform/headless/windows/HDesktop.h"

namespace rux {

/// Base: text is kept by the window system, the rest is its default. Alone it is the class Static.
class HNativeWindow : public HWindowTarget {
 public:
    static constexpr unsigned WM_NOTIFY = 78;

    HNativeWindow(HDesktop& desktop, std::string className, unsigned id = 0)
        : FDesktop(desktop), FClassName(std::move(className)), FId(id & 0xFFFF) {}
    LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) override {
        return FDesktop.DefWindowProc(window, message, wParam, lParam);
    }
    std::string JournalName() const override { return FClassName; }
    /// Number among the windows of a dialog: 16 bits.
    unsigned Id() const { return FId; }

 protected:
    HWnd ParentOf(HWnd window) const;
    /// Sends WM_COMMAND to the parent: Id and the notification's code.
    void TellParent(HWnd window, unsigned code) const;

    HDesktop& FDesktop;

 private:
    std::string FClassName;
    unsigned FId;
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

/// A button of any style; check boxes and radio buttons tell their parent of the click and keep no state.
class HNativeButton final : public HNativeWindow {
 public:
    static constexpr std::uint32_t BS_DEFPUSHBUTTON = 1;

    HNativeButton(HDesktop& desktop, unsigned id) : HNativeWindow(desktop, "Button", id), FClass(desktop) {}
    LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) override;

 private:
    HButtonClass FClass;
};

/// One line of text that is typed at its end. Tells its parent of every change.
class HNativeEdit final : public HNativeWindow {
 public:
    static constexpr unsigned EN_CHANGE = 0x300;
    static constexpr std::uint32_t ES_READONLY = 0x800;
    /// Bytes that typing makes the text at most.
    static constexpr std::size_t TypedLimit = 32767;

    HNativeEdit(HDesktop& desktop, unsigned id) : HNativeWindow(desktop, "Edit", id) {}
    LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) override;
    /// What a typed character does to a text. False when it changes nothing.
    static bool Type(std::string& text, char character);
};

enum TDialogAnswer : unsigned {
    IDOK = 1,
    IDCANCEL = 2,
    IDABORT = 3,
    IDRETRY = 4,
    IDIGNORE = 5,
    IDYES = 6,
    IDNO = 7,
};

}  // namespace rux
