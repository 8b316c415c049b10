#include "WineRun.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstdlib>
#include <iterator>
#include <optional>
#include <sstream>
#include <thread>

#include "host/call/HttpClient.h"

namespace rux::test {

namespace {

constexpr std::chrono::milliseconds Step{5};
constexpr const char* RunnerVariable = "RUX_WINE_RUN";
constexpr const char* BuildVariable = "RUX_WINDOWS_BUILD";
constexpr const char* Programs[] = {"rux.dll", "testhost.exe", "inject.exe", "vcl100.bpl"};

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// On a port that the system chooses. Nobody waits on it, or on what it accepts, beyond all patience.
int Listen() {
    const int listening = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const timeval limit{Patience.count(), 0};
    setsockopt(listening, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    if (listen(listening, 1) != 0) throw std::runtime_error("no port for the control line");
    return listening;
}

std::uint16_t PortOf(int listening) {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    getsockname(listening, reinterpret_cast<sockaddr*>(&address), &size);
    return ntohs(address.sin_port);
}

TArgs Command(const std::string& language) {
    TArgs command{"env", "WINE_RUN_NET=host", "WINE_RUN_LANG=" + language};
    std::istringstream runner(Variable(RunnerVariable));
    for (std::string word; runner >> word;) command.push_back(word);
    return command;
}

/// Everything up to a deadline; raises behind it.
template <class T>
auto Await(const std::string& what, const T& look) {
    const auto end = std::chrono::steady_clock::now() + Patience;
    for (;;) {
        if (auto found = look()) return found;
        if (std::chrono::steady_clock::now() > end) throw std::runtime_error("in vain: " + what);
        std::this_thread::sleep_for(Step);
    }
}

}  // namespace

std::string WhyNoWine() {
    for (const char* name : {RunnerVariable, BuildVariable})
        if (Variable(name).empty()) return std::string(name) + " is not set";
    for (const char* name : Programs)
        if (!fs::exists(fs::path(Variable(BuildVariable)) / name)) return std::string(name) + " is not built";
    return {};
}

TWineRequest::TWineRequest(std::uint16_t port, std::string_view request) {
    const auto ask = [port, text = std::string(request)]() -> std::optional<std::string> {
        try {
            THttpClient client("127.0.0.1", port);
            client.SetTimeout(Patience.count());
            const THttpReply reply = client.Get(text);
            return std::to_string(reply.Status) + " " + reply.Comment +
                   (reply.Body.empty() ? "" : "\n" + reply.Body);
        } catch (const THttpClientError& error) {
            if (std::string_view(error.what()).starts_with("nothing answers")) return {};
            throw std::runtime_error(text + ": " + error.what());
        }
    };
    std::packaged_task<std::string()> task([ask] { return Await("the agent's port", ask).value(); });
    FAnswer = task.get_future();
    std::thread(std::move(task)).detach();  // whoever leaves it unanswered does not wait for it
}

TWineRun::TWineRun(const TArgs& arguments, const std::string& language) : FListening(Listen()) {
    for (const char* name : Programs)
        fs::copy_file(fs::path(Variable(BuildVariable)) / name, FFolder.Path(name));
    TArgs command = Command(language) + TArgs{FFolder.Path("inject.exe")};
    for (const std::string& argument : arguments)
        command.push_back(argument == ControlPort ? std::to_string(PortOf(FListening)) : argument);
    FProgram = std::make_unique<TProgram>(command);
}

TWineRun::~TWineRun() {
    close(FListening);
}

std::filesystem::path TWineRun::WorkFolder() {
    return FFolder.Path("RUX_" + std::to_string(Port()));
}

std::uint16_t TWineRun::Port() {
    if (FPort != 0) return FPort;
    const std::string begin = "RUX_";
    FPort = Await("the work folder", [&]() -> std::uint16_t {
        for (const auto& entry : fs::directory_iterator(Folder()))
            if (const std::string name = entry.path().filename(); name.starts_with(begin))
                return static_cast<std::uint16_t>(std::atoi(name.c_str() + begin.size()));
        return 0;
    });
    return FPort;
}

std::string TWineRun::Tell(const std::string& command) {
    if (!FControl) FControl.reset(fdopen(accept4(FListening, nullptr, nullptr, SOCK_CLOEXEC), "r"));
    if (!FControl) throw std::runtime_error("no control line");
    send(fileno(FControl.get()), (command + "\n").data(), command.size() + 1, MSG_NOSIGNAL);
    std::string answer;
    for (int c; (c = std::fgetc(FControl.get())) != '\n'; answer += static_cast<char>(c)) {
        if (c != EOF) continue;
        if (std::ferror(FControl.get())) throw std::runtime_error(command + ": no answer");
        throw std::runtime_error(command + ": the program has ended: " + Outcome());
    }
    return answer;
}

std::string TWineRun::TellUntil(const std::string& command,
                                const std::function<bool(const std::string&)>& good) {
    std::string answer;
    Await(command, [&] { return good(answer = Tell(command)); });
    return answer;
}

std::string TWineRun::Log() {
    std::ifstream file(WorkFolder() / "RUX.log", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void TWineRun::AwaitLog(const std::string& text) {
    Await(text, [&] { return Log().find(text) != std::string::npos; });
}

std::string TWineRun::Outcome() {
    FControl.reset();
    return FProgram->Outcome();
}

TArgs HostArguments(const TArgs& commands) {
    return TArgs{"--await", "TApplication", "--load", "rux.dll", "testhost.exe", "--control", ControlPort} +
           commands;
}

}  // namespace rux::test
