// Small helpers that every unit shares: windows and texts.
#pragma once

#include <string>
#include <string_view>

#include "platform/Types.h"

namespace rux {

class TObject;

/// At most 254 bytes of the window's text.
std::string GetRawWindowText(HWnd window);
/// The toolkit's object behind a window of this process; nil for any other window.
TObject* FindVclControl(HWnd window);
/// The window's text; for a window without one the name of its component.
std::string GetWindowCaption(HWnd window);

/// Compares a text of the application with one of a script; blanks do not count in either. As a whole: case
/// does not matter. As a part: case matters, and an empty text is part of nothing. The difference is kept:
/// scripts rely on both.
bool MatchText(std::string_view actual, std::string_view expected, bool partMatch);

/// A published property as text; empty for an unknown one. Follows paths such as `Font.Name`. Asserts that a
/// class property is not asked for without a rest, and that the kind has a text.
std::string GetPropValue(TObject* instance, std::string_view name);

}  // namespace rux
