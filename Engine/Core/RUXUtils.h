// Small helpers that every unit shares: windows and texts.
#pragma once

#include <string>
#include <string_view>

#include "Engine/Core/RUXTextMatcher.h"
#include "platform/Types.h"

namespace rux {

class TObject;
struct TPlatform;

/// At most 254 bytes of the window's text.
std::string GetRawWindowText(HWnd window);
/// The toolkit's object behind a window of this process; nil for any other window.
TObject* FindVclControl(HWnd window);
TObject* FindVclControl(TPlatform& platform, HWnd window);
/// Whether the window bears the toolkit's mark, without a look at the object behind it. Any thread.
bool HasVclMark(TPlatform& platform, HWnd window);
/// The window's text; for a window without one the name of its component.
std::string GetWindowCaption(HWnd window);

/// A published property as text; empty for an unknown one. Follows paths such as `Font.Name`. Asserts that a
/// class property is not asked for without a rest, and that the kind has a text.
std::string GetPropValue(TObject* instance, std::string_view name);

}  // namespace rux
