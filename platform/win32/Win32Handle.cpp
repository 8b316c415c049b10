#include "platform/win32/Win32Handle.h"

#include "platform/win32/Headers.h"

namespace rux {

void TWin32Handle::Close() {
    if (FHandle) ::CloseHandle(Detach());
}

}  // namespace rux
