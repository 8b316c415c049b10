// The services of Linux, over a clock that the test moves.
#include "contract/BoundaryContract.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"
#include "platform/posix/SystemNames.h"
#include "rtl/Exceptions.h"
#include "support/PosixGround.h"

namespace rux::test {
namespace {

/// Tells by '+' or '-' whether it was the first.
class TPosixMutexHolder final : public TMutexHolder {
 public:
    TPosixMutexHolder(const std::string& folder, const std::string& name)
        : FProcess([&] {
              TNamedObjects objects(folder);
              const char answer = objects.CreateMutex(name) ? '+' : '-';
              if (::write(FPipe.Ends[1], &answer, 1) == 1) ::pause();
              return 0;
          }) {
        if (::read(FPipe.Ends[0], &FAnswer, 1) != 1) throw Exception("no answer");
    }
    ~TPosixMutexHolder() override {
        FProcess.Kill();
        ::close(FPipe.Ends[0]);
        ::close(FPipe.Ends[1]);
    }
    bool Made() const override { return FAnswer == '+'; }

 private:
    struct TPipe {
        TPipe() {
            if (::pipe(Ends) != 0) throw Exception("no pipe");
        }
        int Ends[2];
    } FPipe;
    TProcess FProcess;
    char FAnswer = '?';
};

/// What must be there before the services.
struct TPosixGround {
    TTemporaryFolder Folder, Objects;
    std::unique_ptr<TManualClock> OwnClock = std::make_unique<TManualClock>();
    TManualClock& Clock = *OwnClock;
    TPosixPlatform Services{{.ObjectFolder = Objects.Path}, {.AnyAddress = "127.0.0.1"}, std::move(OwnClock)};
};

class TPosixUnderTest final : TPosixGround, public TPlatformUnderTest {
 public:
    TPosixUnderTest() : TPlatformUnderTest(Services.Kernel, Services.Sockets, Services.Files) {}
    std::uint32_t Long() const override { return 3600000; }
    std::uint32_t Margin() const override { return 1; }
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
    std::unique_ptr<TMutexHolder> HoldMutex(const std::string& name) override {
        return std::make_unique<TPosixMutexHolder>(Objects.Path, name);
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

}  // namespace rux::test
