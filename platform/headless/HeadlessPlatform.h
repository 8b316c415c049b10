// The desktop in memory as one piece: windows and toolkit over somebody's kernel, clock, sockets and files.
#pragma once

#include "platform/Platform.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

/// Made, used and freed on one thread, which becomes the user-interface thread.
class THeadlessPlatform {
 public:
    THeadlessPlatform(TKernelService& kernel, TClockService& clock, TSocketService& sockets,
                      TFileService& files)
        : FDesktop(kernel, clock, FCode), FToolkit(FDesktop, clock, files), FPlatform{FDesktop, kernel,
                                                                                      FCode,    clock,
                                                                                      sockets,  files,
                                                                                      FToolkit} {}

    HCodeSpace& CodeSpace() { return FCode; }
    HDesktop& Desktop() { return FDesktop; }
    HToolkit& Toolkit() { return FToolkit; }
    TPlatform& Platform() { return FPlatform; }

 private:
    HCodeSpace FCode;
    HDesktop FDesktop;
    HToolkit FToolkit;
    TPlatform FPlatform;
};

}  // namespace rux
