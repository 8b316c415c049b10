// The player of scenes on the desktop in memory. Time passes only when a scene says so, and where two threads
// could both be first it is the user-interface thread.

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <map>
#include <thread>
#include <vector>

#include "platform/headless/native/HMessageBox.h"
#include "rtl/Numbers.h"
#include "support/LiveHost.h"
#include "watch/Scene.h"

namespace rux::test {

namespace {

constexpr std::uint32_t Hour = 3600000;
constexpr std::uint32_t Delay = 10;

std::string Form(std::string_view name, std::string_view caption, std::string_view rest) {
    return "object " + std::string(name) + ": T" + std::string(name) +
           "\nLeft = 5\nTop = 5\nWidth = 220\nHeight = 140\nCaption = '" + std::string(caption) + "'\n" +
           std::string(rest) + "end\n";
}

constexpr const char* Go = "object Go: TButton\nCaption = 'Go'\nOnClick = Go\nend\n";
constexpr const char* Fine = "Visible = False\nobject Fine: TButton\nCaption = 'Fine'\nend\n";
const std::string MainForm =
    Form("Main", "Main",
         std::string(Go) +
             "object Open: TButton\nLeft = 80\nWidth = 50\nCaption = 'Open'\nOnClick = Open\nend\n"
             "object Pad: TEdit\nLeft = 140\nWidth = 50\nText = 'Pad'\nOnDblClick = Go\nend\n");
const std::string DialogForm = Form("Dialog", "Box", Fine);
const std::string BaseForm = Form("Base", "Base", std::string("Visible = False\n") + Go);
const std::string FrameForm = Form("Main", "Main", std::string("FormStyle = fsMDIForm\n") + Go);
const std::string ChildForm = Form("Child", "Box", std::string("FormStyle = fsMDIChild\n") + Fine);

/// Lets the time of a timer pass. The loop may have reckoned its wait from before and begun it after: it is
/// woken to look again.
void Elapse(TLiveHost& host, std::uint32_t time) {
    host.Clock().Advance(time);
    host.Desktop().PostMessageA(host.Kit().App().Handle(), WM_NULL, 0, 0);
}

void Box(TLiveHost& host) {
    host.Kit().App().MessageBox("text", "Box");
}

HCustomForm& FormNamed(TLiveHost& host, std::string_view name) {
    return dynamic_cast<HCustomForm&>(host.Form(name));
}

/// The window of the title Box, whatever stands behind it.
HWnd FindBox(TLiveHost& host) {
    HDesktop& desktop = host.Desktop();
    HWnd found = 0;
    const auto look = [&](HWnd window) {
        const bool box = desktop.GetWindowTextA(window) == "Box" && desktop.IsWindowVisible(window) &&
                         desktop.GetClassNameA(window) != "TApplication";
        if (box) found = window;
        return !box;
    };
    desktop.EnumWindows([&](HWnd window) {
        if (look(window)) desktop.EnumChildWindows(window, look);
        return found == 0;
    });
    return found;
}

void After(TLiveHost& host, std::uint32_t delay, std::function<void()> code) {
    HDesktop& desktop = host.Desktop();
    const auto timer = std::make_shared<unsigned>(0);
    *timer = desktop.SetTimer(delay, [&desktop, timer, code = std::move(code)] {
        desktop.KillTimer(*timer);
        code();
    });
}

void DefineGo(TLiveHost& host, const std::function<void(TLiveHost&)>& code, std::string_view form = "Main") {
    host.Define(form, "Go", [&host, code](HComponent&) { code(host); });
}

void PrepareBoxOnModal(TLiveHost& host) {
    host.Define("Main", "Open", [&host](HComponent&) { FormNamed(host, "Base").ShowModal(); });
    DefineGo(host, Box, "Base");
    host.Ask("Open$Click?PopupWindow");
}

void EndBoxOnModal(TLiveHost& host) {
    host.CloseBoxes();
    host.Settle();
    host.Run([&] { FormNamed(host, "Base").Close(); });
}

void FailWith(TLiveHost& host) {
    host.Kit().App().SetTitle("Box");
    StrToInt("abc");
}

/// Handlers that wait, with a loop of their own, for a box that another thread shows.
std::atomic<int> HandlersWaiting{0};

void BoxOnSecondThread(TLiveHost& host) {
    ++HandlersWaiting;
    bool ended = false;
    std::thread second([&] {
        RunMessageBox(host.Desktop(), "text", "Box", 0);
        host.Run([&] {
            ended = true;
            host.Desktop().PostMessageA(host.Kit().App().Handle(), WM_NULL, 0, 0);  // the loop looks again
        });
    });
    while (!ended && !host.Kit().App().Terminated()) host.Kit().App().HandleMessage();
    second.join();
    --HandlersWaiting;
}

void AwaitHandlers(TLiveHost& host) {
    while (HandlersWaiting > 0) std::this_thread::yield();
    host.Settle();
}

/// A box becomes the active window when its ShowWindow has returned.
bool ActiveOrGone(TLiveHost& host) {
    const HWnd box = FindBox(host);
    return box == 0 || host.Desktop().GetActiveWindow() == box;
}

constexpr std::string_view BoxText = "Box\r\nother:确定\r\nother:text";
constexpr std::string_view ErrorText = "Box\r\nother:确定\r\nother:'abc' is not a valid integer value.";
constexpr std::string_view FormText = "Box\r\nTButton:Fine";

/// How the application comes to show a window of the title Box, and how that window goes away again.
struct TSituation {
    std::string_view Name;
    /// What the button Go of the main form does.
    std::function<void(TLiveHost&)> Go = Box;
    std::vector<std::string_view> Forms = {MainForm};
    /// What happens before; then Go is its matter, too.
    std::function<void(TLiveHost&)> Prepare = {};
    /// The request that sets it off, without options.
    std::string_view Request = "Go$Click";
    /// What the journal says when the window comes.
    std::string_view Shown = "show #32770 Box";
    /// Ends what the situation began; the call, if it waits, goes on.
    std::function<void(TLiveHost&)> End = &TLiveHost::CloseBoxes;
    /// The window comes when this much time has passed since the call; 0: during the call.
    std::uint32_t Delay = 0;
    /// The window's description.
    std::string_view Description = BoxText;
    /// True, on the user-interface thread, once whoever shows the window has come back from showing it;
    /// needed where that is another thread.
    std::function<bool(TLiveHost&)> IsShown = {};
};

/// The window's size, from whichever scene saw it last: where it is closed at once it can only be remembered.
std::string& SizeOf(const TSituation& situation) {
    static std::map<std::string_view, std::string> sizes;
    return sizes[situation.Name];
}

class TScene {
 public:
    TScene(const TSituation& situation, std::string_view option)
        : FSituation(situation),
          FTexts{std::string(situation.Request) + std::string(option), std::string(situation.Description)},
          FHost(situation.Forms) {
        situation.Prepare ? situation.Prepare(FHost) : DefineGo(FHost, situation.Go);
        FHost.Kernel().SetGate(false);
        FAnswer = std::async(std::launch::async, [this] { return FHost.Ask(FTexts.Request); });
    }

    std::string Play(char answerTime) {
        FAnswerTime = answerTime;
        // Its hour begins before any time has passed.
        if (answerTime == 'H') FHost.Clock().WaitUntilWaiters(1, Hour);
        if (FSituation.Delay != 0) {
            FHost.WaitFor("event Main.Go");
            EndPhase('R');
            Elapse(FHost, FSituation.Delay);
        }
        FHost.WaitFor(FSituation.Shown);
        for (bool shown = !FSituation.IsShown; !shown;) FHost.Run([&] { shown = FSituation.IsShown(FHost); });
        FHost.Settle();
        HWnd box = 0;
        FHost.Run([&] {
            box = FindBox(FHost);
            TRect place;
            if (FHost.Desktop().GetWindowRect(box, place))
                SizeOf(FSituation) = std::to_string(place.Width()) + "x" + std::to_string(place.Height());
        });
        if (box == 0) AwaitHandlers(FHost);
        EndPhase('W');
        FSituation.End(FHost);
        EndPhase('E');
        if (answerTime == 'H') {
            FHost.Clock().Advance(Hour);
            EndPhase('H');
        }
        const auto folder = FHost.Folder() / ("RUX_" + std::to_string(FHost.Port())) / "UnExpectWindowPic";
        return FResult + " | " + (box ? "up" : "gone") + FTexts.Pictures(folder, SizeOf(FSituation)) + " | " +
               FNext + " | " + Stack();
    }

 private:
    /// The user-interface thread does what it has to do, then the workers, then whoever asks next.
    void EndPhase(char phase) {
        FHost.Settle();
        FHost.Kernel().SetGate(true);
        if (phase == FAnswerTime) {
            if (FAnswer.wait_for(std::chrono::seconds(20)) != std::future_status::ready)
                throw std::runtime_error("no answer to " + FTexts.Request);
            FResult = phase + (" " + FTexts.Short(FAnswer.get()));
            FNext = FTexts.Short(FHost.Ask("nothing$Find"));
        } else if (!FResult.empty()) {
            if (const std::string next = FTexts.Short(FHost.Ask("nothing$Find")); next != "ok")
                FNext += ", " + next;
        } else if (FAnswer.wait_for(std::chrono::seconds(0)) == std::future_status::ready) {
            FResult = "too early";
        }
        FHost.Kernel().SetGate(false);
    }

    std::string Stack() {
        const std::size_t left = FHost.Engine().RequestStack.Count();
        return FTexts.Popped(FHost.Log()) + (left ? ", left " + std::to_string(left) : "");
    }

    const TSituation& FSituation;
    const TSceneTexts FTexts;
    TLiveHost FHost;
    std::future<std::string> FAnswer;
    char FAnswerTime = 'W';
    std::string FResult, FNext;
};

const std::vector<TSituation>& Situations() {
    using H = TLiveHost;
    // clang-format off
    static const std::vector<TSituation> all{
        {.Name = "message box"},
        {.Name = "modal form", .Go = [](H& host) { FormNamed(host, "Dialog").ShowModal(); },
         .Forms = {MainForm, DialogForm}, .Shown = "show TDialog Box",
         .End = [](H& host) { host.Run([&] { FormNamed(host, "Dialog").Close(); }); }, .Description = FormText},
        {.Name = "box on a modal form", .Forms = {MainForm, BaseForm}, .Prepare = PrepareBoxOnModal,
         .End = EndBoxOnModal},
        {.Name = "box after the call", .Go = [](H& host) { After(host, Delay, [&host] { Box(host); }); },
         .Delay = Delay},
        {.Name = "exception in the send", .Go = FailWith, .Request = "Pad$DbClick", .Description = ErrorText},
        {.Name = "exception that leaves the call", .Go = FailWith, .Description = ErrorText},
        {.Name = "box closed by the application",
         .Go = [](H& host) { After(host, Delay, [&host] { host.CloseBoxes(); }), Box(host); },
         .End = [](H& host) { Elapse(host, Delay); }},
        {.Name = "MDI child", .Go = [](H& host) { FormNamed(host, "Child").Show(); },
         .Forms = {FrameForm, ChildForm}, .Shown = "event Main.Go", .End = [](H&) {}, .Description = FormText},
        {.Name = "box on a second thread", .Go = BoxOnSecondThread,
         .End = [](H& host) { host.CloseBoxes(), AwaitHandlers(host); }, .IsShown = ActiveOrGone},
    };
    // clang-format on
    return all;
}

}  // namespace

std::string WhyNot(std::string_view) {
    return {};
}

std::string SeenOf(std::string_view cell) {
    return std::string(cell);
}

std::string PlayScene(std::string_view situation, std::string_view option, char answerTime) {
    for (const TSituation& known : Situations())
        if (known.Name == situation) return TScene(known, option).Play(answerTime);
    return "no such situation";
}

}  // namespace rux::test
