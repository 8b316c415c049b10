// The services of Windows as one piece.
#pragma once

#include "platform/Platform.h"
#include "platform/win32/Win32Clock.h"
#include "platform/win32/Win32Code.h"
#include "platform/win32/Win32Files.h"
#include "platform/win32/Win32Kernel.h"
#include "platform/win32/Win32Sockets.h"
#include "platform/win32/Win32Thunks.h"
#include "platform/win32/Win32Windows.h"
#include "platform/win32/toolkit/WToolkit.h"

namespace rux {

/// Made by whoever loads the library, once the code page and the regional settings are set.
struct TWin32Platform {
    TWin32Thunks Thunks;
    TWin32Clock Clock;
    TWin32Kernel Kernel;
    TWin32Code Code{Thunks};
    TWin32Windows Windows{Thunks};
    TWin32Sockets Sockets;
    TWin32Files Files;
    WToolkit Toolkit{Thunks};

    TPlatform Platform() { return {Windows, Kernel, Code, Clock, Sockets, Files, Toolkit}; }
};

}  // namespace rux
