// What every platform's services must do. A platform is run through it by a factory of its own.
#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "platform/FileService.h"
#include "platform/KernelService.h"
#include "platform/SocketService.h"
#include "rtl/CodePage.h"
#include "rtl/Dates.h"

namespace rux::test {

/// Services over a clock that the test moves, or that moves itself. The system's code page is set.
class TPlatformUnderTest {
 public:
    TPlatformUnderTest(TKernelService& kernel, TSocketService& sockets, TFileService& files,
                       std::uint32_t longWait, std::uint32_t margin)
        : Kernel(kernel), Sockets(sockets), Files(files), Long(longWait), Margin(margin) {}
    virtual ~TPlatformUnderTest() = default;
    virtual std::uint64_t Tick() = 0;
    /// Lets so much time pass.
    virtual void Advance(std::uint64_t milliseconds) = 0;
    /// Returns when so many threads wait with a deadline of `notBefore` or later, as far as can be told.
    virtual void WaitUntilWaiters(std::size_t count, std::uint64_t notBefore) = 0;
    virtual void WaitForAllThreads() = 0;
    /// An empty folder of this object's own.
    virtual std::string Folder() const = 0;
    virtual void MakeReadOnly(const std::string& name) = 0;
    virtual void PublishMapping(const std::string& name, std::string_view bytes) = 0;
    virtual void RemoveMapping(const std::string& name) = 0;
    /// The other end of a new connection; INVALID_SOCKET when nobody listens.
    virtual TSocketHandle Connect(std::uint16_t port) = 0;
    /// The user's regional settings.
    virtual TLocaleFacts Locale() const = 0;

    TKernelService& Kernel;
    TSocketService& Sockets;
    TFileService& Files;
    /// Milliseconds of a wait that shall run out, and how much earlier it surely still lasts.
    const std::uint32_t Long, Margin;
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
    /// Two characters that the code page has and ASCII lacks. In page 936 the last byte of both is that of a
    /// backslash.
    static std::string OddName() { return Ansi(AnsiCodePage() == 936 ? "誠錦" : "é€"); }
    struct TConnection {
        std::unique_ptr<TTCPBlockSocket> Socket, Peer;
    };
    TConnection Connection();

    std::unique_ptr<TPlatformUnderTest> Platform = GetParam()();
    const std::uint32_t Long = Platform->Long, Margin = Platform->Margin;
    TKernelService& Kernel = Platform->Kernel;
    TSocketService& Sockets = Platform->Sockets;
    TFileService& Files = Platform->Files;
};

}  // namespace rux::test
