// The ways in which an adapter acts like a user. User-interface thread.
//
// Nothing here waits for the interface to settle, retries or reports: the order of sends, posts and pumps is
// all that settles it, and a window that is gone swallows what it is sent.
#pragma once

#include <string_view>

#include "platform/Types.h"

namespace rux {

/// Half of the sum of the edges, rounded towards zero; an empty rectangle has its one point.
TPoint CenterOf(const TRect& rect);
/// Both corners moved.
TRect OffsetRectBy(const TRect& rect, TPoint by);

/// Rectangles are in client coordinates of `window`. Moves the real cursor to the centre.
void MoveMouseToRect(HWnd window, const TRect& rect);
/// Moves the cursor and clicks where it then is: a cursor stopped by the edge of the screen clicks there.
/// Left is sent. Right is posted and pumped, since the loop of a context menu must not run inside a send.
void ClickRect(HWnd window, const TRect& rect, bool rightButton);
/// Moves the cursor and sends the double-click message alone, without any down or up.
void DblClickRect(HWnd window, const TRect& rect);
/// A left click that is posted and pumped, for controls that run a loop of their own between down and up.
void PostClickRect(HWnd window, const TRect& rect);

/// Sends the modifiers that `acaKey` names, down or up, to `window`: `a` is Control and `c` is Alt, whatever
/// the letters suggest, in either case of letters.
void SendModifierKeys(HWnd window, std::string_view acaKey, bool down);
/// One key as a pair of system key messages, with or without Alt.
void SendVirtualKey(HWnd window, unsigned key);
/// A key within its modifiers, which come up again whatever happens. "F2" and "Down" are sent to `window`,
/// "RETURN" is real input for whatever has the focus; any other key is nothing. Case does not matter.
void SendKey(HWnd window, std::string_view key, std::string_view acaKey);

}  // namespace rux
