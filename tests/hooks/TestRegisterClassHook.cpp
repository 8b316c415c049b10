// Class registration, with the hook and without it.
#include "Engine/Hooks/RUXRegisterClassHook.h"
#include "tests/support/EngineFixture.h"

namespace rux::test {

namespace {

class TRegistration : public TEngineTest {
 protected:
    /// "what was raised, class registered by then"; another class of that name for each `number`.
    std::string Register(const std::string& name, int number) {
        HClasses& classes = Kit().ClassDefs();
        const TClass& made = classes.Define(name, &classes.Define("TBase" + std::to_string(number), nullptr));
        std::string raised = "-";
        try {
            Kit().RegisterClass(made);
        } catch (const Exception& error) {
            raised = std::string(error.ClassName()) + ": " + error.Message();
        }
        const TClass* found = Kit().RegisteredClasses().GetClass(name);
        return raised + ", " + (found ? found->Name() + " of " + found->Parent()->Name() : "none");
    }
    HCodeSpace& Code = Desktop.CodeSpace();
    const TCodeAddress Export =
        Code.GetProcAddress("RTL100.BPL", "@Classes@RegisterClass$qqrp17System@TMetaClass");
};

}  // namespace

TEST_F(TRegistration, TolerantWhileTheHookLives) {
    const std::string clash = "EFilerError: A class named TGRID already exists, TGrid of TBase1";
    const std::size_t functions = Code.FunctionCount();
    for (int i = 0; i < 2; ++i) EXPECT_EQ(Register("TGrid", 1), "-, TGrid of TBase1");
    EXPECT_EQ(Register("TGRID", 2), clash);
    for (const std::string fresh : {"TA", "TB"}) {
        TRegisterClassHook hook(Code);
        EXPECT_TRUE(hook.Installed());
        EXPECT_EQ(Register("TGRID", 2), "-, TGrid of TBase1");
        EXPECT_EQ(Register(fresh, 3), "-, " + fresh + " of TBase3");
        const std::uintptr_t nil[] = {0};
        EXPECT_NO_THROW(Code.Call(TCallKind::Register, Export, nil));
        if (fresh == "TA") hook.Remove();
        EXPECT_EQ(hook.Installed(), fresh != "TA");
    }
    EXPECT_EQ(Code.FunctionCount(), functions);
    EXPECT_EQ(Register("TGRID", 2), clash);

    // Without the export nothing is patched: the first page is still free for another function.
    HCodeSpace empty;
    const TRegisterClassHook hook(empty);
    EXPECT_TRUE(hook.Installed());
    EXPECT_EQ(empty.MakeFunction(TCallKind::StdCall, 0, nullptr), 0x10000000u);
}

}  // namespace rux::test
