// The window system below the toolkit: messages and their order, threads, timers, window procedures.
#include <gtest/gtest.h>

#include "platform/headless/HLimits.h"
#include "platform/headless/windows/HMessageNames.h"
#include "tests/headless/DesktopStage.h"

namespace rux::test {

namespace {

constexpr unsigned WM_MINE = 0x8000;

/// Hears what a window gets before the window does.
class TTap {
 public:
    TTap(TStage& stage, HWnd window)
        : FStage(stage),
          FWindow(window),
          FProc(stage.Desktop.MakeObjectInstance([this](auto... message) { return Hear(message...); })),
          FPrevious(stage.Desktop.SetWindowProc(window, FProc)) {}
    TWndProc Proc() const { return FProc; }
    TWndProc Previous() const { return FPrevious; }

 private:
    LResult Hear(HWnd, unsigned number, WParam wParam, LParam lParam) {
        FStage.Record(DescribeMessage(number, wParam, lParam));
        if (number == WM_MINE + 1) throw Exception("no");
        if (number == WM_MINE + 2) FStage.Desktop.FreeObjectInstance(FProc);
        return FStage.Desktop.CallWindowProcA(FPrevious, FWindow, number, wParam, lParam);
    }
    TStage& FStage;
    const HWnd FWindow;
    const TWndProc FProc, FPrevious;
};

}  // namespace

TEST(Desktop, MessagesFromOtherThreadsAreHandledInTheLoop) {
    TStage stage("OnClose = X A:TEdit ~Change end");
    const HWnd edit = stage.Window("A"), form = stage.Window("F");
    LResult length = 0;
    const auto thread = stage.Kernel.StartThread([&] {
        stage.Desktop.SendMessageA(edit, WM_SETTEXT, 0, reinterpret_cast<LParam>("four"));
        length = stage.Desktop.SendMessageA(edit, WM_GETTEXTLENGTH, 0, 0);
        stage.Desktop.PostMessageA(form, WM_CLOSE, 0, 0);
    });
    stage.Kit.App().Run();
    thread->WaitFor(WaitForever);
    EXPECT_EQ(length, 4);
    EXPECT_EQ(stage.Journal(), "A.Change; F.Close");
}

TEST(Desktop, WhoeverWaitsForAnAnswerIsReleasedAtTheEnd) {
    TStage stage("A:TEdit Text = 'four' end");
    const HWnd edit = stage.Window("A");
    LResult answers[] = {9, 9, 9};
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
    EXPECT_EQ(std::vector(std::begin(answers), std::end(answers)), (std::vector<LResult>{0, 0, 0}));
}

TEST(Desktop, PostedMessagesComeBeforeInputAndACharacterBeforeTheNextKey) {
    TStage stage("A:TEdit end B:TEdit end");
    stage.Do("show F; pump");
    const TTap tap(stage, stage.Window("A"));
    stage.Do("key 65; keydown 66");
    stage.Desktop.PostMessageA(stage.Window("A"), WM_MINE, 1, 2);
    TMessage found;
    EXPECT_FALSE(stage.Desktop.PeekMessageA(found, stage.Window("A"), 0, WM_MINE - 1));
    EXPECT_FALSE(stage.Desktop.PeekMessageA(found, stage.Window("B"), 0, WM_MINE));
    stage.Do("pump");
    EXPECT_EQ(stage.Journal(),
              "32768 1 2; WM_KEYDOWN 65 0; WM_CHAR 97 0; WM_KEYUP 65 0; WM_KEYDOWN 66 0; WM_CHAR 98 0");
    stage.Desktop.PostMessageA(stage.Window("A"), WM_MINE, 3, 4);
    EXPECT_TRUE(stage.Desktop.PeekMessageA(found, stage.Window("A"), WM_MINE, WM_MINE));
    EXPECT_EQ(found.WParameter, 3u);
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

TEST(Desktop, WindowProceduresAreStackedAndTakenAway) {
    TStage stage("A:TEdit Text = 'four' ~Change end");
    stage.Kit.App().SetOnException([&](const std::exception& error) { stage.Record(error.what()); });
    HDesktop& desktop = stage.Desktop;
    const HWnd edit = stage.Window("A");
    const TWndProc own = desktop.GetWindowProc(edit);
    const TTap lower(stage, edit), upper(stage, edit);
    EXPECT_EQ(upper.Previous(), lower.Proc());
    EXPECT_EQ(desktop.SendMessageA(edit, WM_GETTEXTLENGTH, 0, 0), 4);
    // No error passes the one who set the procedure, and the procedure may take itself away.
    EXPECT_EQ(desktop.SendMessageA(edit, WM_MINE + 1, 0, 0), 0);
    desktop.SendMessageA(edit, WM_MINE + 2, 0, 0);
    EXPECT_EQ(desktop.SendMessageA(edit, WM_GETTEXTLENGTH, 0, 0), 0);
    EXPECT_EQ(desktop.SetWindowProc(edit, own), upper.Proc());
    EXPECT_EQ(desktop.GetWindowProc(edit), own);
    EXPECT_EQ(desktop.SendMessageA(edit, WM_GETTEXTLENGTH, 0, 0), 4);
    EXPECT_EQ(stage.Journal(), "14 0 0; 14 0 0; 32769 0 0; no; 32770 0 0; 32770 0 0");
    stage.Do("free A");
    EXPECT_EQ(desktop.SetWindowProc(edit, own), 0u);
    EXPECT_EQ(desktop.CallWindowProcA(own, edit, WM_GETTEXTLENGTH, 0, 0), 0);
}

TEST(Desktop, NumbersOfNames) {
    TStage stage("Tag = 1");
    HDesktop& desktop = stage.Desktop;
    const unsigned one = desktop.RegisterWindowMessageA("One"), two = desktop.RegisterWindowMessageA("Two");
    EXPECT_EQ(desktop.RegisterWindowMessageA("oNE"), one);
    EXPECT_NE(one, two);
    EXPECT_GE(one, unsigned{WM_REGISTERED_FIRST});
    const TAtom atom = desktop.GlobalAddAtomA("Name");
    EXPECT_EQ(desktop.GlobalFindAtomA("nAME"), atom);
    EXPECT_EQ(desktop.GlobalFindAtomA("Nobody"), 0);
    unsigned last = 0;
    std::size_t made = 2;
    while (const unsigned next = desktop.RegisterWindowMessageA("More" + std::to_string(made)))
        last = next, ++made;
    EXPECT_EQ(made, HAtomLimit);
    EXPECT_EQ(last, 0xFFFFu);
    EXPECT_EQ(desktop.RegisterWindowMessageA("One"), one);
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

TEST(Desktop, OrderOfWindows) {
    TStage stage(
        "P:TPanel A:TEdit end B:TEdit end end | object D: TForm end "
        "| object T: TForm FormStyle = fsStayOnTop end");
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
    stage.Do("show F; show D; show T");
    EXPECT_EQ(order(), "T D F Application F.P F.B F.A ");
    stage.Do("show F");
    stage.Control("A").BringToFront();
    EXPECT_EQ(order(), "T F D Application F.P F.A F.B ");
    const HWnd a = stage.Window("A");
    stage.Do("destroy P");
    EXPECT_FALSE(desktop.IsWindow(a));
    EXPECT_EQ(order(), "T F D Application ");
    // The objects live on, and make new windows in the old order.
    EXPECT_NE(stage.Window("B"), 0u);
    EXPECT_NE(stage.Window("A"), a);
    EXPECT_EQ(order(), "T F D Application F.P F.A F.B ");
    EXPECT_EQ(stage.Kit.ObjectOfProp(desktop.GetPropA(stage.Window("A"), stage.Kit.ObjectAtom())),
              stage.Find("A"));
    EXPECT_THROW(stage.Control("P").SetParent(&stage.Control("P")), EInvalidOperation);
}

}  // namespace rux::test
