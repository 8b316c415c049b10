// The services of Linux as one piece.
#pragma once

#include <memory>
#include <utility>

#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixKernel.h"
#include "platform/posix/PosixSockets.h"
#include "platform/posix/SystemClock.h"

namespace rux {

/// Must outlive every thread that its kernel started: end with Kernel.WaitForAllThreads().
struct TPosixPlatform {
    explicit TPosixPlatform(TKernelFacts facts, TSocketOptions options = {},
                            std::unique_ptr<TWaitClock> clock = std::make_unique<TSystemClock>())
        : Clock(std::move(clock)), Kernel(*Clock, std::move(facts)), Sockets(*Clock, std::move(options)) {}

    const std::unique_ptr<TWaitClock> Clock;
    TPosixKernel Kernel;
    TPosixSockets Sockets;
    TPosixFiles Files;
};

}  // namespace rux
