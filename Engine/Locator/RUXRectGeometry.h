// The geometry of position steps, in screen coordinates.
#pragma once

#include "platform/Types.h"

namespace rux {

/// Whether `candidate` lies wholly left of (`<`), right of (`>`), above (`^`) or below (`_`) the anchor.
/// Touching counts.
bool DirectionHolds(char direction, const TRect& anchor, const TRect& candidate);

/// How far two rectangles are apart: sideways when they overlap vertically, up and down when they overlap
/// horizontally, else between their nearest corners. Also rectangles that overlap give the distance of
/// opposite edges. Sums of squares are 32-bit and wrap; a negative one raises EInvalidOp, as a square root of
/// it does.
double RectGap(const TRect& a, const TRect& b);

/// Reading order: a line's tolerance of 5 pixels on Top, then Left. Negative when `a` goes first, 0 for a
/// tie. Not transitive, which is accepted: the result is what the merge sort makes of it.
int CompareReadingOrder(const TRect& a, const TRect& b);

}  // namespace rux
