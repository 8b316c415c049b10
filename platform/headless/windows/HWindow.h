// One window of the desktop in memory.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Types.h"

namespace rux {

inline constexpr std::uint32_t WS_POPUP = 0x80000000;
inline constexpr std::uint32_t WS_VISIBLE = 0x10000000;
inline constexpr std::uint32_t WS_DISABLED = 0x08000000;
inline constexpr std::uint32_t WS_EX_TOPMOST = 0x00000008;

class HCanvas;
struct HWindow;

/// What answers the messages of a window. Lives at least as long as the window.
class HWindowTarget {
 public:
    virtual ~HWindowTarget() = default;
    /// Lets no exception through: it reports what its own code raises.
    virtual LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) = 0;
    /// Draws the window's client area, without the windows on it. The canvas has its origin there and lets
    /// nothing be drawn outside.
    virtual void Paint(HCanvas&, const HWindow&) {}
    /// The window exists no more, whether or not WM_DESTROY reached the target's own procedure. Must not call
    /// back into the window system.
    virtual void WindowGone(HWnd) {}
    /// Short name for the journal, such as "Form1.Button1".
    virtual std::string JournalName() const = 0;
};

/// What frame and caption take away from the window's rectangle on each side.
struct HInsets {
    int Left = 0, Top = 0, Right = 0, Bottom = 0;
};

struct HWindow {
    // What a search asks of every window comes first, so that it lies together.
    HWnd Handle = 0;
    std::uint32_t Style = 0;
    std::uint32_t ExStyle = 0;
    /// On the screen, kept absolute so that asking costs nothing.
    TRect Rect;
    /// Set for child windows only.
    HWindow* Parent = nullptr;
    /// The top-level window that a top-level window stays above; 0 for none.
    HWnd Owner = 0;
    /// From the bottom of the stacking order to its top, that is by Order.
    std::vector<HWindow*> Children;
    std::int64_t Order = 0;
    /// Being destroyed: it takes no new children.
    bool Dying = false;
    HInsets Insets;
    std::string ClassName;
    /// Text of windows whose target keeps none of its own.
    std::string Text;
    HWindowTarget* Target = nullptr;
    std::shared_ptr<HWindowTarget> OwnedTarget;
    /// A procedure that somebody set over the target's; 0 for none.
    TWndProc Override = 0;
    std::vector<std::pair<TAtom, std::uintptr_t>> Props;

    bool Visible() const { return (Style & WS_VISIBLE) != 0; }
    bool Enabled() const { return (Style & WS_DISABLED) == 0; }
    bool IsChild() const { return (Style & WS_CHILD) != 0; }
    const HWindow& Top() const {
        const HWindow* top = this;
        while (top->Parent) top = top->Parent;
        return *top;
    }
    /// It is that window or stands on it.
    bool IsWithin(const HWindow& ancestor) const {
        const HWindow* step = this;
        while (step && step != &ancestor) step = step->Parent;
        return step != nullptr;
    }
    TPoint ClientOrigin() const { return {Rect.Left + Insets.Left, Rect.Top + Insets.Top}; }
    TRect ClientRect() const {
        return {0, 0, Rect.Width() - Insets.Left - Insets.Right, Rect.Height() - Insets.Top - Insets.Bottom};
    }
};

/// What a new window is made from.
struct HCreateParams {
    std::string ClassName;
    std::string Text;
    std::uint32_t Style = 0;
    std::uint32_t ExStyle = 0;
    /// Parent of a child window, owner of any other; 0 for none.
    HWnd Parent = 0;
    /// In the parent's client area for child windows, else on the screen.
    TRect Rect;
    HInsets Insets;
    /// Place of a child window among its siblings, of equal ones the newest on top; 0: below all of them.
    std::int64_t Order = 0;
    HWindowTarget* Target = nullptr;
    /// Set when the window is to own its target.
    std::shared_ptr<HWindowTarget> OwnedTarget;
};

}  // namespace rux
