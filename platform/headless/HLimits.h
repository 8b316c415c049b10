// Bounds and measures of the headless desktop.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/Types.h"

namespace rux {

inline constexpr TRect HScreenRect{0, 0, 1280, 1024};
/// Posted messages that one queue holds; a further one is refused, as the window system refuses it.
inline constexpr std::size_t HQueueLimit = 10000;
/// Text that GetWindowTextA returns at most: a buffer of 255 with its final zero.
inline constexpr std::size_t HWindowTextLimit = 254;
/// Names in each of the tables of atoms and of registered messages: numbers from C000 to FFFF.
inline constexpr std::size_t HAtomLimit = 0x4000;
/// Bounds of a control's position and size, before and behind zero. A form file may ask for more, and sums
/// along a chain of parents must stay numbers.
inline constexpr int HCoordLimit = 1 << 15;
/// Bound of every position on the screen; distances must stay numbers too.
inline constexpr int HScreenCoordLimit = 1 << 29;
/// Pages of code in the process, of 4,096 bytes each.
inline constexpr std::size_t HCodePageLimit = 1u << 14;
/// Windows alive at once.
inline constexpr std::size_t HWindowLimit = 1u << 20;
/// Handles of dead windows that rest before the first of them is given out again.
inline constexpr std::size_t HWindowSlotsAtRest = 4096;
/// Distance between reference numbers of objects, and where they begin: above every window handle.
inline constexpr std::uint64_t HRefStep = 4096;
inline constexpr std::uint64_t HRefBase = std::uint64_t{1} << 40;

/// Files that stand on each other: frames within frames, forms above forms.
inline constexpr std::size_t HFormAncestryLimit = 32;
/// Objects that one load makes: frames within frames multiply.
inline constexpr std::size_t HLoadedObjectLimit = 1u << 18;
/// Nodes and levels of one tree in a form file; what comes behind them is left out.
inline constexpr std::size_t HTreeNodeLimit = std::size_t{1} << 20;
inline constexpr std::size_t HTreeDepthLimit = 1024;

/// Frame and caption of the classic look at 96 dots per inch.
inline constexpr int HSizeFrame = 4;
inline constexpr int HFixedFrame = 3;
inline constexpr int HCaptionHeight = 19;
inline constexpr int HToolCaptionHeight = 16;
inline constexpr int HMenuHeight = 19;
/// Width of the arrow at the right end of a combo box.
inline constexpr int HComboArrow = 16;
/// Width of what a check list box has before an item's text.
inline constexpr int HCheckWidth = 15;
/// Height of an item at most.
inline constexpr int HItemHeightLimit = 255;
/// Sunken edge of edits and lists.
inline constexpr int HClientEdge = 2;
/// Room that a page control leaves for its tabs above a page, and its border around it.
inline constexpr int HTabHeight = 24;
inline constexpr int HTabBorder = 4;
/// Room left of the first tab, what a tab adds to its text, and how far the chosen one rises.
inline constexpr int HTabMargin = 2;
inline constexpr int HTabPadding = 14;
inline constexpr int HTabRaise = 2;

}  // namespace rux
