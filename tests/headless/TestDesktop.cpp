// The window system below the toolkit: what of it no contract of every platform tells.
#include <gtest/gtest.h>

#include "platform/headless/HLimits.h"
#include "platform/headless/windows/HMessageNames.h"
#include "tests/headless/DesktopStage.h"

namespace rux::test {

constexpr unsigned WM_MINE = 0x8000;

TEST(Desktop, WhoeverWaitsForAnAnswerIsReleasedAtTheEnd) {
    TStage stage("A:TEdit Text = 'four' end");
    const HWnd edit = stage.Window("A");
    std::vector<LResult> answers{9, 9, 9};
    std::vector<std::unique_ptr<TThreadHandle>> threads;
    const auto ask = [&](LResult& answer) {
        const std::shared_ptr<TEvent> asking = stage.Kernel.CreateEventA();
        threads.push_back(stage.Kernel.StartThread([&, asking] {
            asking->SetEvent();
            answer = stage.Desktop.SendMessageA(edit, WM_GETTEXTLENGTH, 0, 0);
        }));
        asking->WaitFor(WaitForever);
    };
    // Whether the question was in the queue by then or not.
    ask(answers[0]);
    ask(answers[1]);
    stage.Desktop.Quit();
    ask(answers[2]);
    for (const auto& thread : threads) thread->WaitFor(WaitForever);
    EXPECT_EQ(answers, std::vector<LResult>(3, 0));
}

TEST(Desktop, PostedMessagesComeBeforeInputAndACharacterBeforeTheNextKey) {
    TStage stage("A:TEdit end");
    stage.Do("show F; pump");
    const HWnd edit = stage.Window("A");
    const TWndProc before = stage.Desktop.GetWindowProc(edit);
    // It is called until the stage goes.
    const auto describe = [&stage, before](HWnd window, auto... message) {
        stage.Record(DescribeMessage(message...));
        return stage.Desktop.CallWindowProcA(before, window, message...);
    };
    stage.Desktop.SetWindowProc(edit, stage.Desktop.MakeObjectInstance(describe));
    stage.Do("key 65; keydown 66");
    stage.Desktop.PostMessageA(edit, WM_MINE, 1, 2);
    TMessage found;
    EXPECT_FALSE(stage.Desktop.PeekMessageA(found, edit, 0, WM_MINE - 1));
    stage.Do("pump");
    EXPECT_EQ(stage.Journal(),
              "32768 1 2; WM_KEYDOWN 65 0; WM_CHAR 97 0; WM_KEYUP 65 0; WM_KEYDOWN 66 0; WM_CHAR 98 0");
}

TEST(Desktop, TheQueueIsBoundedAndForgetsTheDead) {
    TStage stage("A:TEdit end B:TEdit end");
    const HWnd a = stage.Window("A"), b = stage.Window("B");
    for (std::size_t i = 0; i < HQueueLimit; ++i)
        ASSERT_TRUE(stage.Desktop.PostMessageA(i % 2 ? a : b, WM_MINE, i, 0));
    EXPECT_FALSE(stage.Desktop.PostMessageA(a, WM_MINE, 0, 0));
    stage.Do("free B");
    EXPECT_FALSE(stage.Desktop.PostMessageA(b, WM_MINE, 0, 0));
    EXPECT_TRUE(stage.Desktop.PostMessageA(a, WM_MINE, 7, 0));
    std::size_t count = 0;
    for (TMessage message; stage.Desktop.PeekAny(message); ++count) EXPECT_EQ(message.Window, a);
    EXPECT_EQ(count, HQueueLimit / 2 + 1);
}

TEST(Desktop, AProcedureOrWindowThatIsGoneAnswersNothing) {
    TStage stage("A:TEdit Text = 'four' end");
    HDesktop& desktop = stage.Desktop;
    const HWnd edit = stage.Window("A");
    const TWndProc own = desktop.GetWindowProc(edit),
                   gone = desktop.MakeObjectInstance([](auto...) { return LResult{7}; });
    desktop.SetWindowProc(edit, gone);
    desktop.FreeObjectInstance(gone);
    EXPECT_EQ(desktop.SendMessageA(edit, WM_GETTEXTLENGTH, 0, 0), 0);
    EXPECT_EQ(desktop.SetWindowProc(edit, own), gone);
    EXPECT_EQ(desktop.SendMessageA(edit, WM_GETTEXTLENGTH, 0, 0), 4);
    stage.Do("free A");
    EXPECT_EQ(desktop.CallWindowProcA(own, edit, WM_GETTEXTLENGTH, 0, 0), 0);
}

TEST(Desktop, NumbersOfNamesComeToAnEnd) {
    TStage stage("Tag = 1");
    const unsigned one = stage.Desktop.RegisterWindowMessageA("One");
    EXPECT_NE(stage.Desktop.GlobalAddAtomA("Name"), 0);
    unsigned last = 0;
    std::size_t made = 1;
    while (const unsigned next = stage.Desktop.RegisterWindowMessageA("More" + std::to_string(made)))
        last = next, ++made;
    EXPECT_EQ(made, HAtomLimit);
    EXPECT_EQ(last, 0xFFFFu);
    EXPECT_EQ(stage.Desktop.RegisterWindowMessageA("One"), one);
}

TEST(Desktop, TimersTakeTurns) {
    TStage stage("Tag = 1");
    // The first is due again whenever it has run.
    const unsigned busy = stage.Desktop.SetTimer(1, [&] { stage.Do("say busy; wait 1"); });
    unsigned once = 0;
    once = stage.Desktop.SetTimer(1, [&] {
        stage.Do("say once");
        stage.Desktop.KillTimer(once);
    });
    stage.Do("wait 1");
    for (TMessage message; stage.Journal().find("once") == std::string::npos;) {
        ASSERT_LT(stage.Clock.TickCount(), 10u);
        ASSERT_TRUE(stage.Desktop.PeekAny(message));
        stage.Desktop.DispatchMessage(message);
    }
    stage.Desktop.KillTimer(busy);
    TMessage none;
    stage.Do("wait 100");
    EXPECT_FALSE(stage.Desktop.PeekAny(none));
}

TEST(Desktop, ControlsWhoseWindowsAreGoneMakeNewOnesInTheOldOrder) {
    TStage stage("P:TPanel A:TEdit end B:TEdit end end | object D: TForm FormStyle = fsStayOnTop end");
    HDesktop& desktop = stage.Desktop;
    const auto order = [&] {
        std::string text;
        const auto add = [&](HWnd window) {
            text += desktop.Find(window)->Target->JournalName() + " ";
            return true;
        };
        desktop.EnumWindows(add);
        desktop.EnumChildWindows(stage.Window("F"), add);
        return text;
    };
    stage.Do("show D; show F");
    stage.Control("A").BringToFront();
    EXPECT_EQ(order(), "D F Application F.P F.A F.B ");
    const HWnd a = stage.Window("A");
    stage.Do("destroy P");
    EXPECT_EQ(order(), "D F Application ");
    EXPECT_NE(stage.Window("B"), 0u);
    EXPECT_NE(stage.Window("A"), a);
    EXPECT_EQ(order(), "D F Application F.P F.A F.B ");
    EXPECT_EQ(stage.Kit.ObjectOfProp(desktop.GetPropA(stage.Window("A"), stage.Kit.ObjectAtom())),
              stage.Find("A"));
    EXPECT_THROW(stage.Control("P").SetParent(&stage.Control("P")), EInvalidOperation);
}

}  // namespace rux::test
