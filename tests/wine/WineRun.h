// One run of a Windows program with the agent inside, watched from this side: over HTTP as a test controller
// does it, by a control line past the agent, and in the files that it leaves.
#pragma once

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "host/Program.h"

namespace rux::test {

inline constexpr std::chrono::seconds Patience{20};

/// Why Windows programs cannot be run here; empty when they can.
std::string WhyNoWine();

/// A request under way. It may be left unanswered.
class TWineRequest {
 public:
    /// Waits until somebody listens there.
    TWineRequest(std::uint16_t port, std::string_view request);
    bool IsAnswered(std::chrono::milliseconds patience) {
        return FAnswer.wait_for(patience) == std::future_status::ready;
    }
    /// "212 成功", and the text behind a line feed if there is one.
    std::string Answer() { return FAnswer.get(); }

 private:
    std::future<std::string> FAnswer;
};

/// Stands among a run's arguments for the port of the control line.
inline constexpr const char* ControlPort = "{port}";

class TWineRun {
 public:
    /// Runs the injector with these arguments in a folder of its own. `language` says the code page.
    explicit TWineRun(const TArgs& arguments, const std::string& language = "zh_CN.UTF-8");
    /// Ends everything.
    ~TWineRun();

    /// The agent's, as its work folder says.
    std::uint16_t Port();
    std::string Ask(std::string_view request) { return TWineRequest(Port(), request).Answer(); }
    /// A command of the control line, and its answer. The first waits until the program has connected.
    std::string Tell(const std::string& command);
    /// Asks until the answer satisfies.
    std::string TellUntil(const std::string& command, const std::function<bool(const std::string&)>& good);
    void AwaitWindow(const std::string& title) {
        TellUntil("size " + title, [](const std::string& size) { return size != "none"; });
    }

    std::filesystem::path Folder() const { return FFolder.Path(""); }
    std::filesystem::path WorkFolder();
    std::filesystem::path Pictures() { return WorkFolder() / "UnExpectWindowPic"; }
    /// In the code page of the run.
    std::string Log();
    /// Waits until it says that.
    void AwaitLog(const std::string& text);
    /// Waits for the end by itself: what the injector said, and "= " and its exit status.
    std::string Outcome();

 private:
    TTempFolder FFolder;
    const int FListening;
    std::unique_ptr<FILE, int (*)(FILE*)> FControl{nullptr, &std::fclose};
    std::unique_ptr<TProgram> FProgram;
    std::uint16_t FPort = 0;
};

/// A test host with the agent inside, for TWineRun. It runs the commands first.
TArgs HostArguments(const TArgs& commands);

}  // namespace rux::test
