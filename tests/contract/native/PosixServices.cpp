// The services of Linux, over a clock that the test moves.
#include "contract/BoundaryContract.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"
#include "platform/posix/SystemNames.h"
#include "support/PosixGround.h"

namespace rux::test {
namespace {

/// What must be there before the services.
struct TPosixGround {
    TTemporaryFolder Folder, Objects;
    std::unique_ptr<TManualClock> OwnClock = std::make_unique<TManualClock>();
    TManualClock& Clock = *OwnClock;
    TPosixPlatform Services{{.ObjectFolder = Objects.Path}, {.AnyAddress = "127.0.0.1"}, std::move(OwnClock)};
};

class TPosixUnderTest final : TPosixGround, public TPlatformUnderTest {
 public:
    TPosixUnderTest() : TPlatformUnderTest(Services.Kernel, Services.Sockets, Services.Files, 3600000, 1) {}
    std::uint64_t Tick() override { return Clock.TickCount(); }
    void Advance(std::uint64_t milliseconds) override { Clock.Advance(milliseconds); }
    void WaitUntilWaiters(std::size_t count, std::uint64_t notBefore) override {
        Clock.WaitUntilWaiters(count, notBefore);
    }
    void WaitForAllThreads() override { Services.Kernel.WaitForAllThreads(); }
    std::string Folder() const override { return NameFromSystem(TPosixGround::Folder.Path); }
    void PublishMapping(const std::string& name, std::string_view bytes) override {
        Services.Kernel.NamedObjects().PublishMapping(name, bytes);
    }
    void MakeReadOnly(const std::string& name) override {
        fs::permissions(SystemName(name), fs::perms::owner_read);
    }
    void RemoveMapping(const std::string& name) override {
        Services.Kernel.NamedObjects().RemoveMapping(name);
    }
    TLocaleFacts Locale() const override { return {}; }
    TSocketHandle Connect(std::uint16_t port) override { return ConnectTo("127.0.0.1", port); }
};

std::unique_ptr<TPlatformUnderTest> MakePosix() {
    SetAnsiCodePage(LoadCodePage(936));
    return std::make_unique<TPosixUnderTest>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Posix, BoundaryContract, testing::Values(&MakePosix));

class PosixHost : public BoundaryContract {};
INSTANTIATE_TEST_SUITE_P(Posix, PosixHost, testing::Values(&MakePosix));

TEST_P(PosixHost, ListensWhereItAllows) {
    std::uint16_t port = 0;
    const auto listener = Listener(port);
    EXPECT_TRUE(TFileDescriptor(static_cast<int>(ConnectTo("127.0.0.1", port))));
    EXPECT_EQ(ConnectTo("127.0.0.2", port), INVALID_SOCKET);
}

}  // namespace rux::test
