// ruxcall: sends requests to an application with the agent inside and prints what it answers.
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <vector>

#include "host/InputFile.h"
#include "host/call/HttpClient.h"
#include "host/call/Script.h"

namespace rux {
namespace {

constexpr int ExitUnmet = 1;
constexpr int ExitUnusable = 2;
constexpr std::uint16_t DefaultPort = 4440;

constexpr const char* Usage =
    R"(usage: ruxcall [options] REQUEST ...
       ruxcall [options] -f SCRIPT

Sends requests of the form  locator$method(arguments)?options  to an application with the agent inside, over
one connection, and prints status, comment and text of each answer.

  --port N         port of the agent (default 4440)
  --port-file P    read the port from the file P
  --address A      address of the agent (default 127.0.0.1)
  --timeout S      give up when nothing of an answer comes for S seconds (default: wait as long as the agent does)
  -f SCRIPT        read requests from SCRIPT, one a line; "-" is standard input. Lines that begin with # are
                   comments. Behind the last " => " of a line may stand what is expected: a status, or a
                   status and the text (with \r \n \t \\ for those characters).
  --help           this text

Exit status: 0 all answers came (and are as expected), 1 an expectation was not met, 2 no answer or wrong usage.
)";

struct TUsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct TOptions {
    std::string Address = "127.0.0.1";
    std::uint16_t Port = DefaultPort;
    unsigned Timeout = 0;
    std::string Script;
    std::vector<std::string> Requests;
    bool Help = false;
};

/// A number from 1 to `most`, with or without an end of line.
unsigned NumberOf(const std::string& text, const std::string& where, const std::string& what, long most) {
    char* end = nullptr;
    const long number = std::strtol(text.c_str(), &end, 10);
    const bool rest = *end != 0 && *end != '\n' && *end != '\r';
    if (end == text.c_str() || rest || number < 1 || number > most)
        throw TUsageError("found \"" + text + "\" " + where + ", expected " + what + " from 1 to " +
                          std::to_string(most));
    return static_cast<unsigned>(number);
}

std::uint16_t PortOf(const std::string& text, const std::string& where) {
    return static_cast<std::uint16_t>(NumberOf(text, where, "a port", 65535));
}

TOptions ReadOptions(int argc, char** argv) {
    TOptions options;
    const std::vector<std::string> args(argv + 1, argv + argc);
    for (std::size_t i = 0; i < args.size(); ++i) {
        const auto value = [&] {
            if (i + 1 == args.size()) throw TUsageError(args[i] + " needs a value");
            return args[++i];
        };
        if (args[i] == "--help" || args[i] == "-h")
            options.Help = true;
        else if (args[i] == "--port")
            options.Port = PortOf(value(), "behind --port");
        else if (args[i] == "--port-file") {
            const std::string name = value();
            options.Port = PortOf(ReadInputFile(name), "in " + name);
        } else if (args[i] == "--address")
            options.Address = value();
        else if (args[i] == "--timeout")
            options.Timeout = NumberOf(value(), "behind --timeout", "seconds", 86400);
        else if (args[i] == "-f")
            options.Script = value();
        else if (args[i].starts_with("--"))
            throw TUsageError("unknown option " + args[i]);
        else
            options.Requests.push_back(args[i]);
    }
    if (!options.Help && options.Script.empty() == options.Requests.empty())
        throw TUsageError("give either requests or a script");
    return options;
}

std::vector<TScriptStep> StepsOf(const TOptions& options) {
    const std::string& name = options.Script;
    if (name == "-") return ReadScript("standard input", ReadToEnd(std::cin, "standard input"));
    if (!name.empty()) return ReadScript(name, ReadInputFile(name));
    std::vector<TScriptStep> steps;
    for (const std::string& request : options.Requests) {
        TScriptStep step;
        step.Request = request;
        steps.push_back(std::move(step));
    }
    return steps;
}

/// False when the answer is not what the step expects.
bool Play(THttpClient& client, const TScriptStep& step, bool showRequest) {
    if (showRequest) std::cout << "> " << step.Request << std::endl;
    const THttpReply reply = client.Get(step.Request);
    std::cout << reply.Status << ' ' << reply.Comment << '\n';
    if (!reply.Body.empty()) std::cout << reply.Body << '\n';
    std::cout.flush();
    const bool met =
        (!step.Status || *step.Status == reply.Status) && (!step.Text || *step.Text == reply.Body);
    if (met) return true;
    std::cout << "! line " << step.Line << ": expected " << *step.Status;
    if (step.Text) std::cout << ' ' << EscapeText(*step.Text);
    std::cout << ", got " << reply.Status << ' ' << EscapeText(reply.Body) << std::endl;
    return false;
}

int Run(int argc, char** argv) {
    const TOptions options = ReadOptions(argc, argv);
    if (options.Help) {
        std::cout << Usage;
        return 0;
    }
    THttpClient client(options.Address, options.Port);
    client.SetTimeout(options.Timeout);
    int unmet = 0;
    for (const TScriptStep& step : StepsOf(options)) unmet += !Play(client, step, !options.Script.empty());
    if (unmet == 0) return 0;
    std::cout << "! " << unmet << " expectation" << (unmet == 1 ? "" : "s") << " not met" << std::endl;
    return ExitUnmet;
}

}  // namespace
}  // namespace rux

int main(int argc, char** argv) {
    try {
        return rux::Run(argc, argv);
    } catch (const rux::TUsageError& error) {
        std::cerr << "ruxcall: " << error.what() << "\nruxcall --help tells more\n";
    } catch (const std::exception& error) {
        std::cerr << "ruxcall: " << error.what() << '\n';
    }
    return rux::ExitUnusable;
}
