// inject: places modules into a program that it starts, or into one that runs.
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

#include "host/windows/common/ControlLine.h"
#include "host/windows/inject/Target.h"

namespace rux {

namespace {

constexpr int NotLoaded = 121;
constexpr int Unusable = 122;

constexpr const char* Usage =
    R"(usage: inject [options] PROGRAM [ARGUMENTS]
       inject [options] --pid N

Loads modules into PROGRAM, which it starts and lets come to rest, or into the process N. Says for each what the thread that loaded
it ended with, and waits for the end of a program that it started.

  --load FILE          a module; repeatable, in this order
  --await CLASS        first wait for a visible window of that class; repeatable
  --own                PROGRAM is a file of the system's folder: its copy in the current folder is started
  --parameters A,B,C   three values for the library, in the named mapping that it looks for
  --control PORT       then take commands: post CLASS[/CHILD'S CLASS] MESSAGE WPARAM LPARAM; find CLASS; kill

Exit status: the program's own (0 with --pid); 121 a module was not loaded; 122 anything else went wrong.
)";

struct TOptions {
    std::vector<std::string> Load, Await, Program;
    DWORD Process = 0;
    bool Own = false, HasParameters = false;
    std::uint32_t Parameters[3] = {};
    std::uint16_t Control = 0;
};

TOptions ReadOptions(int argc, char** argv) {
    TOptions options;
    int i = 1;
    for (; i < argc && argv[i][0] == '-'; ++i) {
        const std::string name = argv[i];
        if (name == "--own") {
            options.Own = true;
            continue;
        }
        if (++i == argc) throw std::runtime_error(Usage);
        const char* value = argv[i];
        if (name == "--load") {
            options.Load.emplace_back(value);
        } else if (name == "--await") {
            options.Await.emplace_back(value);
        } else if (name == "--pid") {
            options.Process = std::strtoul(value, nullptr, 10);
        } else if (name == "--control") {
            options.Control = static_cast<std::uint16_t>(std::atoi(value));
        } else if (name == "--parameters") {
            auto& [a, b, c] = options.Parameters;
            options.HasParameters = std::sscanf(value, "%u,%u,%u", &a, &b, &c) == 3;
        } else {
            throw std::runtime_error(Usage);
        }
    }
    options.Program.assign(argv + i, argv + argc);
    if (options.Program.empty() == (options.Process == 0)) throw std::runtime_error(Usage);
    return options;
}

/// The library keeps its files beside the program, and the system's folder is no place for them.
void CopyFromSystem(const std::string& name) {
    char folder[MAX_PATH];
    GetWindowsDirectoryA(folder, sizeof folder);
    if (!CopyFileA((std::string(folder) + "\\" + name).c_str(), name.c_str(), FALSE))
        throw std::runtime_error("no program " + name + " in the system's folder");
}

TTarget Find(const TOptions& options) {
    if (options.Process != 0) return TTarget::Open(options.Process);
    if (options.Own) CopyFromSystem(options.Program[0]);
    std::string line;
    for (const std::string& arg : options.Program) line += (line.empty() ? "\"" : " \"") + arg + "\"";
    return TTarget::Start(line);
}

std::string RunCommand(const TTarget& target, std::string line) {
    const std::string verb = TakeWord(line);
    if (verb == "kill") {
        target.End();
        return "done";
    }
    const std::string name = TakeWord(line);
    const std::size_t slash = name.find('/');
    HWND window = target.FindWindow(name.substr(0, slash));
    if (window && slash != name.npos)
        window = FindWindowExA(window, nullptr, name.c_str() + slash + 1, nullptr);
    if (!window || verb == "find") return window ? "found" : "none";
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    if (verb != "post" || std::sscanf(line.c_str(), "%u %u %ld", &message, &wParam, &lParam) != 3)
        return "no such command";
    return PostMessageA(window, message, wParam, lParam) ? "posted" : "refused";
}

void Control(const TTarget& target, std::uint16_t port) noexcept {
    try {
        TControlLine(port).Serve([&](const auto& line) { return RunCommand(target, line); });
    } catch (const std::exception& error) {
        std::fprintf(stderr, "inject: %s\n", error.what());
    }
}

/// False when one was not loaded.
bool LoadAll(const TTarget& target, const std::vector<std::string>& modules) {
    for (const std::string& module : modules) {
        const DWORD code = target.Load(module);
        std::printf("%s: %08lx\n", module.c_str(), code);
        std::fflush(stdout);
        if (code == 0) return false;
        if (target.Ended()) break;
    }
    return true;
}

int Run(const TOptions& options) {
    const TTarget target = Find(options);
    for (const std::string& name : options.Await) target.AwaitWindow(name);
    std::unique_ptr<TParameters> parameters;
    if (options.HasParameters) parameters = std::make_unique<TParameters>(target.Id(), options.Parameters);
    const bool loaded = LoadAll(target, options.Load);
    if (!loaded) target.End();
    if (loaded && options.Control != 0) std::thread(&Control, std::cref(target), options.Control).detach();
    const DWORD code = options.Process == 0 ? target.WaitForEnd() : 0;
    return loaded ? static_cast<int>(code) : NotLoaded;
}

}  // namespace

}  // namespace rux

int main(int argc, char** argv) {
    try {
        return rux::Run(rux::ReadOptions(argc, argv));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "inject: %s\n", error.what());
    }
    return rux::Unusable;
}
