// The system's headers, for .cpp files of this folder only.
//
// Included after the boundary: the boundary declares the system's constants as constants of its own, and the
// system's macros of the same names and values come later and do no harm. The macros that would rename
// functions are taken away: the calls for texts in the code page are spelt out.
#pragma once

#include "platform/Bitmap.h"
#include "platform/CodeService.h"
#include "platform/FileService.h"
#include "platform/KernelService.h"
#include "platform/SocketService.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Forms.h"

// clang-format off
#include <winsock2.h>
#include <windows.h>
#include <psapi.h>
// clang-format on

#undef CreateMutex
#undef DeleteFile
#undef GetObject
#undef GetProp
#undef SendMessage
#undef PostMessage
#undef min
#undef max
