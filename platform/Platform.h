// What the outside world is, handed to the engine once at start.
#pragma once

namespace rux {

class TClockService;
class TCodeService;
class TFileService;
class TKernelService;
class TSocketService;
class TToolkit;
class TWindowService;

/// References only: the objects belong to the host and outlive the engine. The code page and the regional
/// settings are set in the run-time library before the engine starts.
struct TPlatform {
    TWindowService& Windows;
    TKernelService& Kernel;
    TCodeService& Code;
    TClockService& Clock;
    TSocketService& Sockets;
    TFileService& Files;
    TToolkit& Toolkit;
};

}  // namespace rux
