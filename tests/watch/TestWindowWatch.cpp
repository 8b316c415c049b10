// What the watch sees, what it makes of odd windows, and that nothing waits for a window that stays.
#include <gtest/gtest.h>

#include <malloc.h>
#include <array>

#include <fstream>
#include <future>

#include "platform/headless/HLimits.h"
#include "rtl/CodePage.h"
#include "support/LiveHost.h"
#include "watch/Scene.h"

namespace rux::test {

namespace {

constexpr std::string_view MainForm = R"(object Main: TMain
  Width = 300
  Height = 200
  Caption = 'Main'
  object Go: TButton
    Caption = 'Go'
    OnClick = Go
  end
end
)";

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int ManyRequests = 600;
#else
constexpr int ManyRequests = 10000;
#endif

class TWindowWatch : public testing::Test {
 protected:
    /// Asks for Go and lets the workers on only when the user-interface thread has nothing left to do.
    std::string AskGo(const std::string& options = {}) {
        Host.Kernel().SetGate(false);
        auto answer = std::async(std::launch::async, [&] { return Host.Ask("Go$Click" + options); });
        Host.WaitFor("event Main.Go");
        Host.Settle();
        Host.Kernel().SetGate(true);
        std::string text = answer.get();
        for (std::size_t at = text.find("\r\n"); at != text.npos; at = text.find("\r\n", at))
            text.replace(at, 2, "|");
        return text;
    }
    void OnGo(std::function<void(HDesktop&)> code) {
        Host.Define("Main", "Go", [this, code](HComponent&) { code(Host.Desktop()); });
    }
    static HWnd MakeWindow(HDesktop& desktop, const std::string& text, std::uint32_t style = WS_POPUP,
                           HWnd parent = 0) {
        HCreateParams params;
        params.ClassName = "Notice";
        params.Text = text;
        params.Style = style;
        params.Parent = parent;
        params.Rect = {10, 10, 110, 60};
        params.Insets = {HFixedFrame, HFixedFrame + HCaptionHeight, HFixedFrame, HFixedFrame};
        return desktop.CreateWindowA(params);
    }
    std::filesystem::path Pictures() {
        return Host.Folder() / ("RUX_" + std::to_string(Host.Port())) / "UnExpectWindowPic";
    }
    std::string PictureNames() {
        std::string all;
        if (!std::filesystem::exists(Pictures())) return "no folder";
        for (const auto& entry : std::filesystem::directory_iterator(Pictures()))
            all += entry.path().filename().string() + ";";
        return all;
    }
    std::string Warnings() {
        std::string all, log = Host.Log();
        for (std::size_t at = log.find("warn - "); at != log.npos; at = log.find("warn - ", at + 1))
            all += log.substr(at, log.find("\r\n", at) - at) + ";";
        return all;
    }

    TLiveHost Host{{MainForm}};
};

}  // namespace

TEST_F(TWindowWatch, ReportsWindowsByHowTheyAreShown) {
    struct TRow {
        int Command;
        std::uint32_t Style, ExStyle;
        bool Reported;
    };
    const std::uint32_t child = WS_CHILD;
    // clang-format off
    const TRow rows[] = {
        {SW_HIDE, WS_POPUP, 0, false}, {SW_SHOWNORMAL, WS_POPUP, 0, true}, {SW_SHOWMINIMIZED, WS_POPUP, 0, false},
        {SW_SHOWMAXIMIZED, WS_POPUP, 0, true}, {SW_SHOWNOACTIVATE, WS_POPUP, 0, false},
        {SW_SHOW, WS_POPUP, 0, true}, {SW_SHOWMINNOACTIVE, WS_POPUP, 0, false}, {8, WS_POPUP, 0, false},
        {SW_RESTORE, WS_POPUP, 0, true}, {SW_SHOWDEFAULT, WS_POPUP, 0, true}, {SW_SHOW, child, 0, false},
        {SW_SHOW, child, WS_EX_MDICHILD, true}};
    // clang-format on
    for (const TRow& row : rows) {
        OnGo([&](HDesktop& desktop) {
            HWnd main = 0;
            desktop.EnumWindows([&](HWnd window) {
                if (desktop.GetClassNameA(window) == "TMain") main = window;
                return true;
            });
            const HWnd window = MakeWindow(desktop, "W", row.Style, row.Style == child ? main : 0);
            desktop.Find(window)->ExStyle |= row.ExStyle;
            desktop.ShowWindow(window, static_cast<TShowCommand>(row.Command));
            // Shown again it is the same window.
            desktop.ShowWindow(window, static_cast<TShowCommand>(row.Command));
        });
        EXPECT_EQ(AskGo("?PopupWindow=w"), row.Reported ? "213 窗体弹出\nW" : "212 成功")
            << row.Command << " " << row.Style << " " << row.ExStyle;
        Host.Ask("ClearServer");
    }
}

TEST_F(TWindowWatch, OncePerRequestAndOnlyWhileOneIsServed) {
    HWnd window = 0;
    OnGo([&](HDesktop& desktop) { desktop.ShowWindow(window, SW_SHOW); });
    const auto show = [&] { Host.Desktop().ShowWindow(window, SW_SHOW); };
    Host.Run([&] {
        window = MakeWindow(Host.Desktop(), "W");
        show();
    });
    EXPECT_EQ(AskGo("?IgnorePopupWindow"), "212 成功");
    EXPECT_TRUE(Host.Engine().SeenWindows.Contains(window));
    Host.Run(show);  // between two requests: nobody's
    EXPECT_EQ(Host.Ask("nothing$Find"), "211 成功返回\nFalse");
    EXPECT_EQ(AskGo("?PopupWindow"), "213 窗体弹出\nW");
    EXPECT_EQ(PictureNames(), "");
}

TEST_F(TWindowWatch, OptionsAgainstCaptions) {
    struct TRow {
        const char* Option;
        const char* Caption;
        const char* Status;
    };
    const TRow rows[] = {
        {"?PopupWindow=abc", "ABC", "213"},     {"?PopupWindow=ab.*", "xabz", "213"},
        {"?PopupWindow=ab.*", "xABz", "519"},   {"?PopupWindow=.*", "x", "213"},
        {"?PopupWindow= ", "x", "213"},         {"?PopupWindow=a.*b", "axb", "519"},
        {"?PopupWindow=提示", "提示", "213"},   {"?WaitForWindow=^Sa.e$", "Save", "213"},
        {"?WaitForWindow=", "anything", "213"}, {"?PopupWindow=W", "", "519"},
    };
    for (const TRow& row : rows) {
        OnGo([&](HDesktop& desktop) { desktop.ShowWindow(MakeWindow(desktop, Ansi(row.Caption)), SW_SHOW); });
        EXPECT_EQ(AskGo(row.Option).substr(0, 3), row.Status) << row.Option << " " << row.Caption;
        Host.Ask("ClearServer");
        Host.Ask("nothing$Find");
    }
    // A pattern that cannot be read is no pattern of any window.
    OnGo([](HDesktop& desktop) { desktop.ShowWindow(MakeWindow(desktop, "W"), SW_SHOW); });
    Host.Kernel().SetGate(true);
    TPendingCall waiting(Host, "Go$Click?WaitForWindow=[");
    Host.WaitFor("event Main.Go");
    Host.Settle();
    Host.Clock().WaitUntilWaiters(1, 3600000);
    Host.Clock().Advance(3600000);
    EXPECT_EQ(waiting.Answer(), "212 成功");
    EXPECT_EQ(Warnings(), "warn - WaitForWindow=[: TRegExpr(comp): Unmatched [] (pos 1);");
}

TEST_F(TWindowWatch, OddWindows) {
    const std::string forbidden = R"(a?b/c\d:e*f"g<h>i|j)";
    const std::string plain = "a_b_c_d_e_f_g_h_i_j";
    const auto report = [](const std::string& caption, const std::string& picture,
                           const char* prefix = "/UnExpectWindowPic/") {
        return caption + "|PicFileName:" + prefix + picture + ".jpg";
    };
    const auto carried = [](const std::string& text) {
        return "519 非预期窗体\n" + text + "||[Go$Click]执行异常|" + text;
    };
    const auto shows = [&](std::string caption, bool destroy = false) {
        OnGo([caption, destroy](HDesktop& desktop) {
            const HWnd window = MakeWindow(desktop, caption);
            desktop.ShowWindow(window, SW_SHOW);
            if (destroy) desktop.DestroyWindow(window);
        });
    };
    // Gone before it could be looked at.
    shows("W", true);
    EXPECT_EQ(AskGo(), carried(report("", "_Go$Click")));
    EXPECT_EQ(PictureNames(), "");

    shows(forbidden);
    EXPECT_EQ(AskGo(), carried(report(forbidden, plain + "_Go$Click")));
    EXPECT_EQ(PictureNames(), plain + "_Go$Click.jpg;");
    EXPECT_EQ(DescribeJpeg((Pictures() / (plain + "_Go$Click.jpg")).string()), "100x50 many");

    // A name that stands in the current folder, where no picture ever is, counts on.
    const std::string current = "n_Go$Click";
    std::ofstream(current + ".jpg") << "x";
    std::ofstream(current + "_1_1.jpg") << "x";
    shows("n");
    EXPECT_EQ(AskGo(), carried(report("n", current + "_1_2")));
    std::filesystem::remove(current + ".jpg");
    std::filesystem::remove(current + "_1_1.jpg");
    EXPECT_EQ(Warnings().find("n_Go"), std::string::npos);

    // Longer than the text that anybody gets, and longer than a name may be.
    const std::string before = Warnings();
    std::string text, name;
    while (text.size() < 300) text += forbidden, name += plain;
    shows(text);
    EXPECT_EQ(AskGo(), carried(report(text.substr(0, 254), name.substr(0, 254) + "_Go$Click")));
    EXPECT_NE(Warnings(), before);

    // No characters of the code page, and half a character at the end.
    shows("\xFF\x80\x01 \xD6");
    EXPECT_EQ(AskGo().substr(0, 3), "519");

    std::filesystem::remove_all(Pictures());
    shows("W");
    EXPECT_EQ(AskGo(), carried(report("W", "W_Go$Click", "")));
    EXPECT_EQ(PictureNames(), "no folder");
    EXPECT_EQ(Host.Ask("Go$Find"), "211 成功返回\nTrue");
}

TEST_F(TWindowWatch, RequestsGoOnUnderABoxThatNobodyCloses) {
    OnGo([this](HDesktop&) { Host.Kit().App().MessageBox("text", "Box"); });
    EXPECT_EQ(Host.Ask("Go$Click").substr(0, 3), "519");
    Host.Run([&] { Host.Desktop().Journal().SetSink(0, nullptr); });
    THttpClient client("127.0.0.1", Host.Port());
    const auto ask = [&](int round) {
        return TLiveHost::Show(client.Get(round % 2 ? "text$GetText" : "Box$Find"));
    };
    const auto answer = [](int round) {
        return std::string("211 成功返回\n") + (round % 2 ? "text" : "True");
    };
    for (int round = 0; round < 50; ++round) ASSERT_EQ(ask(round), answer(round)) << round;
    const std::size_t before = mallinfo2().uordblks;
    for (int round = 0; round < ManyRequests; ++round) ASSERT_EQ(ask(round), answer(round)) << round;
    // A hundred bytes a request would be a megabyte.
    EXPECT_LT(mallinfo2().uordblks, before + (std::size_t{64} << 10));
    EXPECT_EQ(Host.Engine().RequestStack.Count(), 1u);

    Host.CloseBoxes();
    Host.Settle();
    EXPECT_EQ(Host.Ask("Go$Find"), "211 成功返回\nTrue");
    EXPECT_EQ(Host.Engine().RequestStack.Count(), 0u);
}

TEST(TManyWindows, AtOnceDoNotExhaustTheStack) {
    TLiveHost host({MainForm});
    host.Define("Main", "Go", [&](HComponent&) {
        for (int i = 0; i < 1500; ++i) {
            HCreateParams params;
            params.Text = "W";
            params.Rect = {0, 0, 8, 8};
            host.Desktop().ShowWindow(host.Desktop().CreateWindowA(params), SW_SHOW);
        }
    });
    EXPECT_EQ(host.Ask("Go$Click").substr(0, 3), "519");
    host.Settle();
    host.Ask("nothing$Find");
    EXPECT_EQ(host.Ask("Go$Find"), "211 成功返回\nTrue");
    EXPECT_EQ(host.Engine().RequestStack.Count(), 0u);
}

TEST(TShowWindowPatch, LeavesTheFunctionAsItWas) {
    TLiveHost host({MainForm});
    std::array<unsigned char, 16> patched{}, after{};
    host.Run([&] {
        HCodeSpace& code = host.Desktop().CodeSpace();
        TCodeAddress body = 0;
        code.ReadMemory(code.GetProcAddress("user32.dll", "ShowWindow") + 8, &body, 4);
        code.ReadMemory(body, patched.data(), patched.size());
        host.Agent().Stop();
        code.ReadMemory(body, after.data(), after.size());
    });
    EXPECT_EQ(patched[0], 0xE9);
    const unsigned char prologue[] = {0x8B, 0xFF, 0x55, 0x8B, 0xEC};
    EXPECT_TRUE(std::equal(std::begin(prologue), std::end(prologue), after.begin()));
    EXPECT_TRUE(std::equal(patched.begin() + 5, patched.end(), after.begin() + 5));
}

}  // namespace rux::test
