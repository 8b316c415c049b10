// Plain types that cross the boundary: points, rectangles, handles, message numbers.
#pragma once

#include <cstdint>

namespace rux {

struct TPoint {
    std::int32_t X = 0, Y = 0;
    friend bool operator==(const TPoint&, const TPoint&) = default;
};

/// Right and Bottom lie just outside.
struct TRect {
    std::int32_t Left = 0, Top = 0, Right = 0, Bottom = 0;
    std::int32_t Width() const { return Right - Left; }
    std::int32_t Height() const { return Bottom - Top; }
    bool Contains(TPoint p) const { return p.X >= Left && p.X < Right && p.Y >= Top && p.Y < Bottom; }
    TRect MovedBy(TPoint by) const { return {Left + by.X, Top + by.Y, Right + by.X, Bottom + by.Y}; }
    friend bool operator==(const TRect&, const TRect&) = default;
};

/// A window handle; 0 is no window.
using HWnd = std::uintptr_t;
using TAtom = std::uint16_t;
using WParam = std::uintptr_t;
using LParam = std::intptr_t;
using LResult = std::intptr_t;
/// A window procedure as the window system keeps it. Opaque: made by MakeObjectInstance or read from a
/// window.
using TWndProc = std::uintptr_t;

enum TMessageNumber : unsigned {
    WM_NULL = 0,
    WM_CREATE = 1,
    WM_DESTROY = 2,
    WM_MOVE = 3,
    WM_SIZE = 5,
    WM_ACTIVATE = 6,
    WM_SETFOCUS = 7,
    WM_KILLFOCUS = 8,
    WM_ENABLE = 10,
    WM_SETTEXT = 12,
    WM_GETTEXT = 13,
    WM_GETTEXTLENGTH = 14,
    WM_CLOSE = 16,
    WM_QUIT = 18,
    WM_SHOWWINDOW = 24,
    WM_CANCELMODE = 31,
    WM_COPYDATA = 74,
    WM_KEYDOWN = 256,
    WM_KEYUP = 257,
    WM_CHAR = 258,
    WM_SYSKEYDOWN = 260,
    WM_SYSKEYUP = 261,
    WM_COMMAND = 273,
    WM_TIMER = 275,
    WM_MOUSEMOVE = 512,
    WM_LBUTTONDOWN = 513,
    WM_LBUTTONUP = 514,
    WM_LBUTTONDBLCLK = 515,
    WM_RBUTTONDOWN = 516,
    WM_RBUTTONUP = 517,
    WM_RBUTTONDBLCLK = 518,
    WM_CAPTURECHANGED = 533,
    /// The toolkit's reflection of WM_COMMAND to the control that caused it: its base 48128 plus 273.
    CN_COMMAND = 48401,
    WM_REGISTERED_FIRST = 0xC000,
};

enum TVirtualKey : unsigned {
    VK_TAB = 9,
    VK_RETURN = 13,
    VK_SHIFT = 16,
    VK_CONTROL = 17,
    VK_MENU = 18,
    VK_ESCAPE = 27,
    VK_SPACE = 32,
    VK_END = 35,
    VK_HOME = 36,
    VK_LEFT = 37,
    VK_UP = 38,
    VK_RIGHT = 39,
    VK_DOWN = 40,
    VK_F2 = 113,
};

/// How ShowWindow shows a window.
enum TShowCommand : int {
    SW_HIDE = 0,
    SW_SHOWNORMAL = 1,
    SW_SHOWMINIMIZED = 2,
    SW_SHOWMAXIMIZED = 3,
    SW_SHOWNOACTIVATE = 4,
    SW_SHOW = 5,
    SW_SHOWMINNOACTIVE = 7,
    SW_RESTORE = 9,
    SW_SHOWDEFAULT = 10,
};

inline constexpr std::uint32_t WS_CHILD = 0x40000000;
inline constexpr std::uint32_t WS_EX_MDICHILD = 0x00000040;

/// Messages of a tree view; a node is a number that the tree gives.
enum TTreeMessage : unsigned {
    TVM_INSERTITEMA = 4352,
    TVM_EXPAND = 4354,
    /// lParam: a rectangle, its first bytes the node. wParam other than 0: of the text alone.
    TVM_GETITEMRECT = 4356,
    TVM_GETCOUNT = 4357,
    TVM_GETNEXTITEM = 4362,
    TVM_SELECTITEM = 4363,
    TVM_GETITEMA = 4364,
    TVM_SETITEMA = 4365,
    TVM_ENSUREVISIBLE = 4372,
};

enum TTreeRelation : unsigned { TVGN_ROOT = 0, TVGN_NEXT = 1, TVGN_CHILD = 4, TVGN_CARET = 9 };
inline constexpr unsigned TVE_EXPAND = 2;
inline constexpr unsigned TVIF_TEXT = 1;

using HTreeItem = std::uintptr_t;

/// What TVM_GETITEMA and TVM_SETITEMA are about, in the layout of the window system.
struct TTVItem {
    std::uint32_t Mask = 0;
    HTreeItem Item = 0;
    std::uint32_t State = 0, StateMask = 0;
    char* Text = nullptr;
    std::int32_t TextMax = 0;
    std::int32_t Image = 0, SelectedImage = 0;
    std::int32_t Children = 0;
    LParam Param = 0;
};

inline constexpr WParam MK_LBUTTON = 1;
inline constexpr unsigned BN_CLICKED = 0;
/// Notifications of list boxes and combo boxes.
inline constexpr unsigned LBN_SELCHANGE = 1, LBN_DBLCLK = 2;
inline constexpr unsigned CBN_SELCHANGE = 1, CBN_DBLCLK = 2, CBN_EDITCHANGE = 5, CBN_DROPDOWN = 7,
                          CBN_CLOSEUP = 8, CBN_SELENDOK = 9;
inline constexpr int GWL_WNDPROC = -4;
inline constexpr int GWL_STYLE = -16;
inline constexpr int GWL_EXSTYLE = -20;

/// lParam of mouse messages: X in the low word, Y in the high word.
inline LParam MakePointParam(TPoint p) {
    return static_cast<LParam>((static_cast<std::uint32_t>(p.X) & 0xFFFF) |
                               ((static_cast<std::uint32_t>(p.Y) & 0xFFFF) << 16));
}
inline TPoint PointOfParam(LParam param) {
    const auto bits = static_cast<std::uint32_t>(param);
    return {static_cast<std::int16_t>(bits & 0xFFFF), static_cast<std::int16_t>(bits >> 16)};
}

}  // namespace rux
