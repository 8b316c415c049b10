#include "platform/win32/Win32Handle.h"

#include "platform/win32/Headers.h"

namespace rux {

void TWin32Handle::Close() {
    if (FHandle) ::CloseHandle(Detach());
}

TWaitResult TWin32Handle::WaitFor(std::uint32_t milliseconds) const {
    switch (::WaitForSingleObject(FHandle, milliseconds)) {
        case WAIT_OBJECT_0:
            return TWaitResult::Signalled;
        case WAIT_TIMEOUT:
            return TWaitResult::TimedOut;
        default:
            return TWaitResult::Failed;
    }
}

}  // namespace rux
