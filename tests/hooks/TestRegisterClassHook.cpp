// Class registration, with the hook and without it.
#include <gtest/gtest.h>

#include "Engine/Hooks/RUXRegisterClassHook.h"
#include "platform/headless/HeadlessPlatform.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"

namespace rux::test {

namespace {

class TRegistration : public testing::Test {
 protected:
    /// A class of that name, another one for each `number`.
    const TClass& Class(const char* name, int number) {
        HClasses& classes = Platform.Toolkit().ClassDefs();
        return classes.Define(name, &classes.Define("TBase" + std::to_string(number), nullptr));
    }
    /// "what was raised, class registered by then".
    std::string Register(const char* name, int number) {
        std::string raised = "-";
        try {
            Platform.Toolkit().RegisterClass(Class(name, number));
        } catch (const Exception& error) {
            raised = std::string(error.ClassName()) + ": " + error.Message();
        }
        const TClass* found = Platform.Toolkit().RegisteredClasses().GetClass(name);
        return raised + ", " + (found ? found->Name() + " of " + found->Parent()->Name() : "none");
    }
    /// Where the next function would be: a function that is kept would move it.
    TCodeAddress NextFunction() {
        const TCodeAddress next = Platform.CodeSpace().MakeFunction(TCallKind::StdCall, 0, nullptr);
        Platform.CodeSpace().FreeFunction(next);
        return next;
    }
    std::string CodeOfExport() {
        HCodeSpace& code = Platform.CodeSpace();
        const TCodeAddress stub =
            code.GetProcAddress("RTL100.BPL", "@Classes@RegisterClass$qqrp17System@TMetaClass");
        std::uint32_t memory = 0;
        TCodeAddress function = 0;
        code.ReadMemory(stub + 2, &memory, 4);
        code.ReadMemory(memory, &function, 4);
        std::string bytes(16, '\0');
        code.ReadMemory(function, bytes.data(), bytes.size());
        return bytes;
    }

    TManualClock Clock;
    TPosixKernel Kernel{Clock, {}};
    TPosixSockets Sockets{Clock, {}};
    TPosixFiles FileSystem;
    THeadlessPlatform Platform{Kernel, Clock, Sockets, FileSystem};
};

}  // namespace

TEST_F(TRegistration, TolerantWhileTheHookLives) {
    const std::string clash = "EFilerError: A class named TGRID already exists, TGrid of TBase1";
    const std::string code = CodeOfExport();
    const TCodeAddress next = NextFunction();
    EXPECT_EQ(Register("TGrid", 1), "-, TGrid of TBase1");
    EXPECT_EQ(Register("TGrid", 1), "-, TGrid of TBase1");
    EXPECT_EQ(Register("TGRID", 2), clash);
    for (int round = 0; round < 2; ++round) {
        TRegisterClassHook hook(Platform.CodeSpace());
        EXPECT_TRUE(hook.Installed());
        EXPECT_NE(CodeOfExport(), code);
        EXPECT_EQ(Register("TGRID", 2), "-, TGrid of TBase1");
        const char* const fresh = round ? "TB" : "TA";
        EXPECT_EQ(Register(fresh, 3), "-, " + std::string(fresh) + " of TBase3");
        const std::uintptr_t nil[] = {0};
        const TCodeAddress entry = Platform.CodeSpace().GetProcAddress(
            "rtl100.bpl", "@Classes@RegisterClass$qqrp17System@TMetaClass");
        EXPECT_NO_THROW(Platform.CodeSpace().Call(TCallKind::Register, entry, nil));
        if (round == 0) hook.Remove();
        EXPECT_EQ(hook.Installed(), round != 0);
    }
    EXPECT_EQ(CodeOfExport(), code);
    EXPECT_EQ(NextFunction(), next);
    EXPECT_EQ(Register("TGRID", 2), clash);
}

TEST_F(TRegistration, NothingIsPatchedWithoutTheExport) {
    HCodeSpace empty;
    const TRegisterClassHook hook(empty);
    EXPECT_TRUE(hook.Installed());
    // The first page is still free for another function.
    EXPECT_EQ(empty.MakeFunction(TCallKind::StdCall, 0, nullptr), 0x10000000u);
}

}  // namespace rux::test
