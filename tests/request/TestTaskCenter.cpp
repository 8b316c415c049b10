// The task centre message by message, and the engine's start.
#include <cstring>

#include "Engine/Core/RUXServerUtils.h"
#include "Engine/Host/RUXPort.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "Engine/Request/RUXTestFramework.h"
#include "Engine/Start/RUXApplication.h"
#include "Engine/TaskCenter/RUXAutoTask.h"
#include "Engine/TaskCenter/RUXFinishNotify.h"
#include "Engine/TaskCenter/RUXTaskMessages.h"
#include "Engine/Virtual/RUXVirtualControls.h"
#include "rtl/CodePage.h"
#include "support/EngineFixture.h"

namespace rux::test {

namespace {

class TTaskCenter : public TEngineTest {
 protected:
    TTaskCenter() {
        CreateTaskCenter();
        CreateTaskCenter();  // once only
    }
    ~TTaskCenter() override {
        FreeTaskCenter();
        FreeTaskCenter();
    }
    void Pump() { Kit().App().ProcessMessages(); }
    static TIntf<ITestRequest> NewRequest(const std::string& url) {
        return TIntf<ITestRequest>(new TTestRequest(url));
    }
    /// "finished, stack": what a caller and the log see.
    std::string State(const TIntf<ITestRequest>& request) {
        return std::string(request->GetFinished() ? "finished" : "open") + " " +
               (Engine.RequestStack.Contains(*request) ? "on stack" : "popped");
    }
};

}  // namespace

// What the window itself ends, and when, the matrix of windows tells.
TEST_F(TTaskCenter, FinishAfterTheCallByOptions) {
    Load("object F: TForm Caption = 'f' end");
    const std::pair<const char*, const char*> rows[] = {
        {"f$Find", "finished popped"},
        {"f$Find?PopupWindow=x", "finished on stack"},
        {"f$Find?WaitForWindow=x", "open on stack"},
        {"none$Click?WaitForWindow=x", "finished popped"},  // it failed
        {"none$Click?PopupWindow=x", "finished popped"},
    };
    for (const auto& [url, state] : rows) {
        const TIntf<ITestRequest> called = NewRequest(url);
        called->Post();
        Pump();
        EXPECT_EQ(State(called), state) << url;
        Engine.RequestStack.Clear();
    }
}

TEST_F(TTaskCenter, ADeferredFinish) {
    HCustomForm& form =
        Load("object F: TForm object b: TButton Caption = 'b' Width = 9 Height = 9 OnClick = X end end");
    form.DefineMethod("X", [&](HObject&, HEventArgs&) { Engine.DeferredFinish = true; });
    const TIntf<ITestRequest> request = NewRequest("?TButton$Click");
    request->Post();
    Pump();
    EXPECT_EQ(State(request), "open on stack");
    auto thread = StartFinishNotifyThread(request, FinishNotifyDelay);
    Clock.WaitUntilWaiters(1);
    Clock.Advance(FinishNotifyDelay - 1);
    EXPECT_FALSE(thread->Ended());
    Clock.Advance(1);
    thread->WaitFor(WaitForever);
    EXPECT_EQ(State(request), "open on stack");  // through the queue, so not yet
    Pump();
    EXPECT_EQ(State(request), "finished popped");

    Engine.DeferredFinish = false;
    const TIntf<ITestRequest> direct = NewRequest("x$Find");
    Engine.RequestStack.Add(direct);
    thread = StartFinishNotifyThread(direct, FinishNotifyDelay);
    Clock.WaitUntilWaiters(1);
    Clock.Advance(FinishNotifyDelay);
    thread->WaitFor(WaitForever);
    EXPECT_EQ(State(direct), "finished on stack");
}

TEST_F(TTaskCenter, MessagesOfTheWindow) {
    const HWnd window = Kit().App().Handle();
    HDesktop& desktop = Desktop.Desktop();
    std::string reported;
    Kit().App().SetOnException([&](const std::exception& error) { reported = AnsiToUtf8(error.what()); });
    const auto send = [&](unsigned message, WParam wParam, LParam lParam) {
        reported.clear();
        desktop.SendMessageA(window, message, wParam, lParam);
        return reported.substr(0, reported.find(" ("));
    };
    EXPECT_EQ(send(13030, 1, 0), "未处理的消息类型");
    EXPECT_EQ(send(RUXM_FINISHSTEP, 0, 0), "Assertion failure");
    EXPECT_EQ(send(WM_COPYDATA, 0, 0), "Assertion failure");
    EXPECT_EQ(send(WM_COPYDATA, 0, 1), "");
    EXPECT_EQ(send(desktop.RegisterWindowMessageA("RUX.{7F992E1A-1248-42F8-9435-EE05C546E924}"), 0, 0), "");
    Kit().App().SetTitle("Title");
    EXPECT_EQ(desktop.GetWindowTextA(window), "Title");  // everything else goes to the window's own procedure
    FreeTaskCenter();
    EXPECT_EQ(send(13030, 1, 0), "");
}

// What a request makes lives as long as it is on the stack, also when it is the oldest one's pool that holds
// it.
TEST_F(TTaskCenter, ObjectsThatRequestsMake) {
    static int alive = 0;
    struct TMade final : TBaseVirtualControl {
        TMade() { ++alive; }
        ~TMade() override { --alive; }
    };
    HCustomForm& form =
        Load("object F: TForm object b: TButton Caption = 'b' Width = 9 Height = 9 OnClick = X end end");
    const TIntf<ITestRequest> oldest = NewRequest("old$Find");
    Engine.RequestStack.Add(oldest);
    bool clear = false;
    form.DefineMethod("X", [&](HObject&, HEventArgs&) {
        CreateVirtualControl<TMade>();
        EXPECT_EQ(oldest->GetObjectPool().Count(), 1u);
        if (clear) Engine.RequestStack.Clear();
        EXPECT_EQ(alive, 1);
    });
    for (int i = 0; i < 3; ++i) {
        clear = i == 2;  // taken off the stack while it runs: it keeps what it made until it ends
        NewRequest("?TButton$Click")->Post();
        Pump();
        EXPECT_EQ(alive, 0);
    }
    EXPECT_THROW(CreateVirtualControl<TMade>(), EAssertionFailed);
    EXPECT_EQ(alive, 0);
    // The last reference of a request may be a worker's; its objects go on the thread of the controls.
    TIntf<ITestRequest> owner = NewRequest("own$Find");
    Engine.RequestStack.Add(owner);
    CreateVirtualControl<TMade>();
    Engine.RequestStack.Clear();
    Kernel.StartThread([held = std::move(owner)] {})->WaitFor(WaitForever);
    EXPECT_EQ(alive, 1);
    NewRequest("x$Find")->Post();
    Pump();
    EXPECT_EQ(alive, 0);
}

// A posted message holds a reference: nothing is lost or leaked when the task centre goes before it is
// handled.
TEST_F(TTaskCenter, QueuedRequestsAtTheEnd) {
    const TIntf<ITestRequest> request = NewRequest("x$Find");
    request->Post();
    EXPECT_EQ(static_cast<TTestRequest&>(*request).RefCount(), 2);
    FreeTaskCenter();
    EXPECT_EQ(static_cast<TTestRequest&>(*request).RefCount(), 1);
    request->Post();  // nobody to take it
    EXPECT_EQ(static_cast<TTestRequest&>(*request).RefCount(), 1);
}

TEST_F(TTaskCenter, TheCursorIsPutBack) {
    Load(
        "object F: TForm object r: TRadioButton Caption = 'r' Left = 50 Top = 50 Width = 40 Height = 20 end "
        "end");
    Kit().SetCursorPos({7, 8});
    for (const char* const url : {"r$Click", "none$Click"}) {
        NewRequest(url)->Post();
        Pump();
        EXPECT_EQ(Kit().CursorPos(), (TPoint{7, 8}));
    }
}

TEST_F(TEngineTest, WhatIsRegisteredStandsInTheFixedOrder) {
    const auto compare = [](const auto& order, const auto& entries, const auto& nameOf) {
        std::size_t row = 0;
        for (const auto& entry : entries) {
            while (row < order.size() && nameOf(order[row]) != entry.Name) ++row;
            ASSERT_LT(row, order.size()) << entry.Name << " is out of order";
            EXPECT_EQ(order[row].ControlClass, entry.ControlClass) << entry.Name;
        }
    };
    compare(AdapterOrder(), Engine.Registry->Adapters(), [](const TAdapterOrderRow& r) { return r.Adapter; });
    compare(FinderOrder(), Engine.Registry->Finders(), [](const TFinderOrderRow& r) { return r.Finder; });
    for (const TAdapterOrderRow& row : AdapterOrder()) {
        const TAdapterEntry* entry = Engine.Registry->FindNamedAdapter(row.Adapter);
        EXPECT_EQ(entry ? entry->Interface->Name : row.Interface, row.Interface) << row.Adapter;
    }
    EXPECT_EQ(AdapterOrder().size(), 68u);
    EXPECT_EQ(FinderOrder().size(), 41u);
}

TEST_F(TEngineTest, TheHostIsChecked) {
    EXPECT_NO_THROW(CheckHost(Desktop.Platform()));
    const struct {
        bool OwnRunTime, HasToolkit;
        unsigned Code;
        const char* Text;
    } rows[] = {{true, true, 255, "RUX: 目标程序必须带 RTL、VCL 包编译"},
                {false, false, 254, "RUX: 目标程序必须使用 Delphi 2006/2007 编译"}};
    for (const auto& row : rows) {
        Kernel.OwnRunTime = row.OwnRunTime;
        Kernel.HasToolkit = row.HasToolkit;
        Kernel.Messages.clear();
        try {
            CheckHost(Desktop.Platform());
            ADD_FAILURE();
        } catch (const TTestKernel::TExit& exit) {
            EXPECT_EQ(exit.Code, row.Code);
        }
        EXPECT_EQ(AnsiToUtf8(Kernel.Messages), row.Text);
    }
}

TEST_F(TEngineTest, WhatTheControllerHandsOver) {
    const std::string name = "RUX.{09491275-8671-4C09-9404-76E78D4AF883}." + std::to_string(getpid());
    HCodeSpace& code = Desktop.CodeSpace();
    code.Export("tb2k", "f", TCallKind::StdCall, 0, [](auto) { return std::uintptr_t{0}; });
    const TCodeAddress exported = code.GetProcAddress("TB2K", "f");
    EXPECT_NE(exported, 0u);
    std::string asked;
    const TCodeAddress entry =
        code.MakeFunction(TCallKind::StdCall, 2, [&](std::span<const std::uintptr_t> names) {
            asked = reinterpret_cast<const char*>(names[0]);
            asked += std::string("!") + reinterpret_cast<const char*>(names[1]);
            return std::uintptr_t{11};
        });
    const auto values = [] {
        const TRUXEngineService s;
        return std::vector<TCodeAddress>{s.FirstValue(), s.SecondValue(), s.ResolveEntry(),
                                         s.ResolveProc("tb2k", "f")};
    };
    EXPECT_EQ(values(), (std::vector<TCodeAddress>{0, 0, 0, exported}));
    std::string bytes("\x01\0\0\0\x02\0\0\x80????more", 16);
    std::memcpy(bytes.data() + 8, &entry, 4);
    Kernel.NamedObjects().PublishMapping(name, bytes);
    EXPECT_EQ(values(), (std::vector<TCodeAddress>{1, 0x80000002, entry, 11}));
    EXPECT_EQ(asked, "tb2k!f");
    // Too small: the system gives whole pages, and what is not there is zero.
    Kernel.NamedObjects().PublishMapping(name, bytes.substr(0, 8));
    EXPECT_EQ(values(), (std::vector<TCodeAddress>{1, 0x80000002, 0, exported}));
}

TEST_F(TEngineTest, FoldersAndMutexes) {
    const std::string folder = NameFromSystem(Folder().string());
    EXPECT_EQ(GetWorkDir(), folder + "\\\\RUX_1\\");
    EXPECT_EQ(GetPicDir(), folder + "\\\\RUX_1\\\\UnExpectWindowPic");
    EXPECT_EQ(GetPicUrlPrefix(), "");
    GetLogger().Info("x");
    EXPECT_EQ(GetPicUrlPrefix(), "/UnExpectWindowPic/");
    EXPECT_FALSE(MutexExists("m"));
    EXPECT_TRUE(CreateGlobalMutex("m"));
    EXPECT_TRUE(MutexExists("m"));
    EXPECT_FALSE(CreateGlobalMutex("m"));
    Kernel.CreateMutexA("Global\\g");
    EXPECT_TRUE(MutexExists("g"));
    Engine.ServerPort = 0;
    EXPECT_THROW(GetWorkDir(), EAssertionFailed);
}

}  // namespace rux::test
