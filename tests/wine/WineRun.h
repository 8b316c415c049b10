// One run of a Windows program with the agent inside, watched from this side: over HTTP as a test controller
// does it, by a control line past the agent, and in the files that it leaves.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "host/Program.h"

namespace rux::test {

inline constexpr std::chrono::milliseconds Patience{20000};

/// Why Windows programs cannot be run here; empty when they can.
std::string WhyNoWine();

/// The other side of a connection has gone.
struct TConnectionEnded : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A stream socket on which nobody waits longer than he says.
class TConnection {
 public:
    explicit TConnection(int socket) : FSocket(socket) {}
    /// To a port of this machine; no socket where nobody listens.
    static TConnection To(std::uint16_t port);
    TConnection(TConnection&& other) noexcept
        : FSocket(std::exchange(other.FSocket, -1)), FBuffer(std::move(other.FBuffer)) {}
    TConnection(const TConnection&) = delete;
    TConnection& operator=(const TConnection&) = delete;
    ~TConnection();

    bool IsOpen() const { return FSocket >= 0; }
    int Handle() const { return FSocket; }
    void Send(std::string_view bytes);
    /// Something can be read, or the other side has gone.
    bool HasMore(std::chrono::milliseconds patience);
    /// What comes in front of `end`, which is dropped. Raises std::runtime_error when it does not come.
    std::string ReadUntil(std::string_view end);
    std::string Read(std::size_t count);

 private:
    void Fill();

    int FSocket;
    std::string FBuffer;
};

/// A request under way. It may be left unanswered.
class TWineRequest {
 public:
    /// Waits until somebody listens there.
    TWineRequest(std::uint16_t port, std::string_view request);
    bool IsAnswered(std::chrono::milliseconds patience) { return FConnection.HasMore(patience); }
    /// "212 成功", and the text behind a line feed if there is one.
    std::string Answer();

 private:
    TConnection FConnection;
    const std::string FRequest;
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
    TConnection FListening;
    std::unique_ptr<TConnection> FControl;
    std::unique_ptr<TProgram> FProgram;
    std::uint16_t FPort = 0;
};

/// A test host with the agent inside, for TWineRun. It runs the commands first.
TArgs HostArguments(const TArgs& commands);

}  // namespace rux::test
