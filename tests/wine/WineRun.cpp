#include "WineRun.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
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

sockaddr_in Loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// On a port that the system chooses.
int Listen() {
    const int listening = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in address = Loopback(0);
    if (bind(listening, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        listen(listening, 1) != 0)
        throw std::runtime_error("no port for the control line");
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

// ------------------------------------------------------------------------------------------ connections

TConnection TConnection::To(std::uint16_t port) {
    TConnection result(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const sockaddr_in address = Loopback(port);
    if (connect(result.FSocket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        close(std::exchange(result.FSocket, -1));
    return result;
}

TConnection::~TConnection() {
    if (IsOpen()) close(FSocket);
}

void TConnection::Send(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = send(FSocket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) throw std::runtime_error("the connection broke while sending");
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
}

bool TConnection::HasMore(std::chrono::milliseconds patience) {
    pollfd waiting{FSocket, POLLIN, 0};
    return !FBuffer.empty() || poll(&waiting, 1, static_cast<int>(patience.count())) > 0;
}

void TConnection::Fill() {
    pollfd waiting{FSocket, POLLIN, 0};
    if (poll(&waiting, 1, static_cast<int>(Patience.count())) <= 0)
        throw std::runtime_error("nothing comes within " + std::to_string(Patience.count()) + " ms");
    char piece[4096];
    const ssize_t got = recv(FSocket, piece, sizeof piece, 0);
    if (got <= 0) throw TConnectionEnded("the connection has ended");
    FBuffer.append(piece, static_cast<std::size_t>(got));
}

std::string TConnection::ReadUntil(std::string_view end) {
    std::size_t at;
    while ((at = FBuffer.find(end)) == FBuffer.npos) Fill();
    const std::string text = FBuffer.substr(0, at);
    FBuffer.erase(0, at + end.size());
    return text;
}

std::string TConnection::Read(std::size_t count) {
    while (FBuffer.size() < count) Fill();
    const std::string text = FBuffer.substr(0, count);
    FBuffer.erase(0, count);
    return text;
}

// ------------------------------------------------------------------------------------------ requests

namespace {

std::optional<TConnection> Reached(std::uint16_t port) {
    TConnection connection = TConnection::To(port);
    if (!connection.IsOpen()) return {};
    return connection;
}

}  // namespace

TWineRequest::TWineRequest(std::uint16_t port, std::string_view request)
    : FConnection(Await("the agent's port", [&] { return Reached(port); }).value()), FRequest(request) {
    FConnection.Send("GET /" + EncodeRequest(request) + " HTTP/1.1\r\nConnection: close\r\n\r\n");
}

std::string TWineRequest::Answer() {
    try {
        const std::string head = FConnection.ReadUntil("\r\n\r\n") + "\r\n";
        const auto field = [&](std::string_view name) {
            const std::size_t at = head.find(name);
            const std::size_t begin = at + name.size();
            return at == head.npos ? std::string() : head.substr(begin, head.find("\r\n", begin) - begin);
        };
        const std::string body = FConnection.Read(std::stoul("0" + field("Content-length: ")));
        return field("HTTP/1.1 ") + " " + field("ReturnCodeComment:") + (body.empty() ? "" : "\n" + body);
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(FRequest + ": " + error.what());
    }
}

// ------------------------------------------------------------------------------------------ runs

TWineRun::TWineRun(const TArgs& arguments, const std::string& language) : FListening(Listen()) {
    for (const char* name : Programs)
        fs::copy_file(fs::path(Variable(BuildVariable)) / name, FFolder.Path(name));
    TArgs command = Command(language) + TArgs{FFolder.Path("inject.exe")};
    for (const std::string& argument : arguments)
        command.push_back(argument == ControlPort ? std::to_string(PortOf(FListening.Handle())) : argument);
    FProgram = std::make_unique<TProgram>(command);
}

TWineRun::~TWineRun() = default;

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
    if (!FControl) {
        if (!FListening.HasMore(Patience)) throw std::runtime_error("no control line");
        FControl =
            std::make_unique<TConnection>(accept4(FListening.Handle(), nullptr, nullptr, SOCK_CLOEXEC));
    }
    FControl->Send(command + "\n");
    try {
        return FControl->ReadUntil("\n");
    } catch (const TConnectionEnded&) {
        throw std::runtime_error(command + ": the program has ended: " + Outcome());
    }
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
