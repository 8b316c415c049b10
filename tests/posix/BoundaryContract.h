// What every platform's services must do. A platform is run through it by a factory of its own.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/FileService.h"
#include "platform/KernelService.h"
#include "platform/SocketService.h"

namespace rux::test {

inline constexpr std::uint32_t Hour = 3600000;

/// Services over a clock that the test moves. Code page 936 is set.
class TPlatformUnderTest {
 public:
    TPlatformUnderTest(TKernelService& kernel, TSocketService& sockets, TFileService& files)
        : Kernel(kernel), Sockets(sockets), Files(files) {}
    virtual ~TPlatformUnderTest() = default;
    virtual std::uint64_t Tick() = 0;
    virtual void Advance(std::uint64_t milliseconds) = 0;
    virtual void WaitUntilWaiters(std::size_t count, std::uint64_t notBefore) = 0;
    virtual void WaitForAllThreads() = 0;
    /// An empty folder of this object's own.
    virtual std::string Folder() const = 0;
    virtual void PublishMapping(const std::string& name, std::string_view bytes) = 0;
    /// The other end of a new connection; INVALID_SOCKET when nobody listens.
    virtual TSocketHandle Connect(std::uint16_t port) = 0;

    TKernelService& Kernel;
    TSocketService& Sockets;
    TFileService& Files;
};

using TPlatformFactory = std::unique_ptr<TPlatformUnderTest> (*)();

/// Something that runs on a thread and gives a result.
template <class T>
class TBackground {
 public:
    TBackground(TKernelService& kernel, std::function<T()> body)
        : FThread(kernel.StartThread([this, body = std::move(body)] { FResult = body(); })) {}
    ~TBackground() { FThread->WaitFor(WaitForever); }
    bool Ended() const { return FThread->Ended(); }
    T Result() {
        FThread->WaitFor(WaitForever);
        return *FResult;
    }

 private:
    std::optional<T> FResult;
    std::unique_ptr<TThreadHandle> FThread;
};

class BoundaryContract : public testing::TestWithParam<TPlatformFactory> {
 protected:
    ~BoundaryContract() override { Platform->WaitForAllThreads(); }

    /// A socket that listens on a free port, which `port` gets.
    std::unique_ptr<TTCPBlockSocket> Listener(std::uint16_t& port);
    struct TConnection {
        std::unique_ptr<TTCPBlockSocket> Socket, Peer;
    };
    TConnection Connection();

    std::unique_ptr<TPlatformUnderTest> Platform = GetParam()();
    TKernelService& Kernel = Platform->Kernel;
    TSocketService& Sockets = Platform->Sockets;
    TFileService& Files = Platform->Files;
};

}  // namespace rux::test
