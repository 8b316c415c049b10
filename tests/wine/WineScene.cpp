// The player of scenes in a real message loop, with native windows. Time is real: what must not come is
// waited for a moment, behind everything that is known to be handled.
#include <map>

#include "WineRun.h"
#include "watch/Scene.h"

namespace rux::test {

namespace {

constexpr std::chrono::milliseconds Moment{60};
constexpr const char* Probe = "nothing$Find";

struct TSituation {
    std::string_view Name;
    std::string_view Request;
    /// What the host's button Go does; none where the request is no click on it.
    std::string_view Go;
    std::string_view Description;
    /// A request opens this dialog before.
    std::string_view Base = {};
    /// Why there is no such thing here.
    std::string_view WhyNot = {};
};

constexpr std::string_view BoxText = "Box\r\nother:确定\r\nother:text";
constexpr std::string_view AssertionText =
    "Box\r\nother:确定\r\nother:方法没实现 (Engine/Adapters/RUXVirtualAdapters.cpp, line #)";

constexpr TSituation Situations[] = {
    {"message box", "Go$Click", "box", BoxText},
    // A dialog of the system takes the form's part.
    {"modal form", "Go$Click", "modal", "Box\r\nother:Fine"},
    {"box on a modal form", "Go$Click", "box", BoxText, "Base"},
    {"box after the call", "Go$Click", "later", BoxText},
    {"exception in the send", {}, {}, {}, {}, "no native window reports an exception of its own procedure"},
    // A method that the control does not have.
    {"exception that leaves the call", "Label$Click", "", AssertionText},
    {"box closed by the application", "Go$Click", "closed", BoxText},
    {"MDI child", {}, {}, {}, {}, "forms need the toolkit, and the host has none"},
    {"box on a second thread", "Go$Click", "thread", BoxText},
};

const TSituation& Find(std::string_view name) {
    for (const TSituation& situation : Situations)
        if (situation.Name == name) return situation;
    throw std::runtime_error("no such situation");
}

/// One host for all scenes; a scene that fails takes it along.
std::unique_ptr<TWineRun>& Host() {
    static std::unique_ptr<TWineRun> host;
    if (!host) host = std::make_unique<TWineRun>(HostArguments({"--title", "Box", "main"}));
    return host;
}

class TScene {
 public:
    TScene(const TSituation& situation, std::string_view option)
        : FSituation(situation),
          FTexts{std::string(situation.Request) + std::string(option), std::string(situation.Description)},
          FHost(*Host()) {
        FHost.AwaitWindow("Main");
        FHost.Tell("go " + std::string(situation.Go));
        FHost.Tell("notes");
        if (!situation.Base.empty()) FHost.Ask("Open$Click?PopupWindow=" + std::string(situation.Base));
        FRequest = std::make_unique<TWineRequest>(FHost.Port(), FTexts.Request);
    }

    std::string Play(char answerTime) {
        FAnswerTime = answerTime;
        if (FSituation.Go == "later") {
            AwaitNote("back");
            EndPhase('R');
            FHost.Tell("elapse");
        }
        AwaitBox();
        EndPhase('W');
        const bool up = Size() != "none";
        End();
        EndPhase('E');
        if (answerTime == 'H') {
            FResult = "H no answer yet";
            FNext = Ask(Probe);
        }
        const std::string cell = FResult + " | " + (up ? "up" : "gone") +
                                 FTexts.Pictures(FHost.Pictures(), Sizes()[FSituation.Name]) + " | " + FNext +
                                 " | " + FTexts.Popped(FHost.Log()) + Left();
        FRequest.reset();
        Clean();
        return cell;
    }

 private:
    std::string Size() { return FHost.Tell("size Box"); }
    /// Of the window; where it is closed at once it can only be remembered from the scenes before.
    static std::map<std::string_view, std::string>& Sizes() {
        static std::map<std::string_view, std::string> sizes;
        return sizes;
    }
    bool IsNoted(std::string_view text) {
        FNotes += FHost.Tell("notes");
        return FNotes.find(text) != FNotes.npos;
    }
    void AwaitNote(std::string_view text) {
        FHost.TellUntil("settle", [&](const std::string&) { return IsNoted(text); });
    }
    /// Until it has come, and maybe gone again; of a box that is not the host's own only the answer tells.
    void AwaitBox() {
        const auto gone = [&] { return FSituation.Go.empty() ? FRequest->IsAnswered({}) : IsNoted("ended"); };
        const std::string size =
            FHost.TellUntil("size Box", [&](const std::string& seen) { return seen != "none" || gone(); });
        if (size != "none") Sizes()[FSituation.Name] = size;
        // Some are shown twice, and the second time they would be the next request's.
        FHost.Tell("idle");
        if (FSituation.Go == "thread")
            FHost.TellUntil("settle",
                            [&](const std::string&) { return IsNoted("shown") || IsNoted("ended"); });
    }
    /// The call is over when nothing holds it any more.
    void AwaitHandler() {
        if (!FSituation.Go.empty() && Size() == "none") AwaitNote("back");
    }
    void End() {
        if (FSituation.Go == "closed") FHost.Tell("elapse");
        FHost.TellUntil("size Box", [&](const std::string& size) {
            if (FSituation.Go != "closed") FHost.Tell("close Box");
            return size == "none";
        });
        AwaitHandler();
        if (!FSituation.Base.empty()) FHost.Tell("close " + std::string(FSituation.Base));
    }
    void EndPhase(char phase) {
        FHost.Tell("settle");
        if (phase == FAnswerTime) {
            FResult = phase + (" " + Short(FRequest->Answer()));
            FHost.Tell("settle");
            if (phase != 'R') AwaitHandler();
            FNext = Ask(Probe);
        } else if (!FResult.empty()) {
            if (const std::string next = Ask(Probe); next != "ok") FNext += ", " + next;
        } else if (FRequest->IsAnswered(Moment)) {
            FResult = phase + std::string(" too early: ") + Short(FRequest->Answer());
        }
        // Requests do not end before the user interface has seen to the rest.
        FHost.Tell("settle");
    }
    std::string Short(const std::string& answer) const {
        return FTexts.Short(Masked(answer, ".cpp, line ", ")"));
    }
    std::string Ask(const std::string& request) { return Short(FHost.Ask(request)); }
    /// How many requests were left when the last probe had been taken off.
    std::string Left() {
        const std::string log = FHost.Log();
        const std::size_t at = log.rfind(std::string(" Pop:") + Probe);
        if (at == log.npos) return ", no probe in the log";
        const std::size_t begin = log.rfind(':', at) + 1;
        const std::string left = log.substr(begin, at - begin);
        return left == "0" ? "" : ", left " + left;
    }
    /// The next scene finds nothing of this one.
    void Clean() {
        FHost.Ask("ClearServer");
        FHost.Ask(Probe);
        for (const auto& entry : fs::directory_iterator(FHost.Pictures())) fs::remove(entry.path());
        FHost.Ask("ClearServer");
    }

    const TSituation& FSituation;
    const TSceneTexts FTexts;
    TWineRun& FHost;
    std::unique_ptr<TWineRequest> FRequest;
    char FAnswerTime = 'W';
    std::string FResult, FNext, FNotes;
};

}  // namespace

std::string WhyNot(std::string_view situation) {
    if (const std::string why = WhyNoWine(); !why.empty()) return why;
    return std::string(Find(situation).WhyNot);
}

/// An hour is an hour here: a request that is answered then is watched until its window has gone.
std::string SeenOf(std::string_view cell) {
    if (cell[0] != 'H') return std::string(cell);
    return "H no answer yet" + std::string(cell.substr(cell.find(" | ")));
}

std::string PlayScene(std::string_view situation, std::string_view option, char answerTime) {
    try {
        return TScene(Find(situation), option).Play(answerTime);
    } catch (const std::exception& error) {
        Host().reset();
        return error.what();
    }
}

}  // namespace rux::test
