// rux-host: an application on the headless desktop with the agent inside.
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>

#include "Engine/Core/RUXServerUtils.h"
#include "Engine/Start/RUXApplication.h"
#include "host/app/HostForms.h"
#include "host/app/HostOptions.h"
#include "host/app/JournalFile.h"
#include "host/app/Signals.h"
#include "platform/headless/HeadlessPlatform.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/PosixPlatform.h"
#include "platform/posix/SystemNames.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

#include <unistd.h>

#include <filesystem>

namespace rux {
namespace {

constexpr int ExitUnusable = 2;

std::filesystem::path ProgramFolder() {
    return std::filesystem::canonical("/proc/self/exe").parent_path();
}

TKernelFacts FactsOf(const THostOptions& options) {
    std::filesystem::path folder = options.WorkDir.empty()
                                       ? ProgramFolder()
                                       : std::filesystem::absolute(options.WorkDir).lexically_normal();
    if (!std::filesystem::is_directory(folder))
        throw THostUsageError(folder.string() + " is no folder, and --work-dir names one");
    const std::string name = options.Sample.empty() ? "rux-host" : options.Sample;
    TKernelFacts facts;
    facts.ModuleName = NameFromSystem((folder / (name + ".exe")).string());
    facts.LibraryName = NameFromSystem((folder / "rux.dll").string());
    return facts;
}

/// The executable's base name with its first letter as it is and the rest in lower case.
std::string TitleOf(const std::string& moduleName) {
    std::string title = ChangeFileExt(ExtractFileName(moduleName), "");
    return title.substr(0, 1) + LowerCase(title.substr(std::min<std::size_t>(1, title.size())));
}

/// False for links, devices and folders, which must stay what they are.
bool IsPlainFileOrNone(const std::string& name) {
    std::error_code failure;
    const std::filesystem::file_type type = std::filesystem::symlink_status(name, failure).type();
    return type == std::filesystem::file_type::regular || type == std::filesystem::file_type::not_found;
}

void WritePortFile(const std::string& name, std::uint16_t port) {
    // Whoever waits for the file must never read half a number.
    const bool plain = IsPlainFileOrNone(name);
    const std::string draft = plain ? name + ".new" : name;
    std::ofstream file(draft, std::ios::binary);
    file << port << '\n';
    file.close();
    if (file && (!plain || rename(draft.c_str(), name.c_str()) == 0)) return;
    const std::string why = std::strerror(errno);
    if (plain) unlink(draft.c_str());
    throw Exception(name + ": cannot be written (" + why + ")");
}

/// Runs the application with the agent inside until it ends.
int Serve(THeadlessPlatform& desktop, THostForms& forms, const THostOptions& options) {
    CheckHost(desktop.Platform());
    // Nor may whoever waits take the port of an earlier run for this one's.
    if (!options.PortFile.empty() && IsPlainFileOrNone(options.PortFile)) unlink(options.PortFile.c_str());
    TRUXApplication agent(desktop.Platform());
    agent.Start();
    if (!agent.Daemon()->WaitUntilListening()) {
        std::cerr << "rux-host: cannot listen on " << options.Listen << ":" << agent.ServerPort()
                  << " (--listen takes an IPv4 address of this machine)\n";
        return ExitUnusable;
    }
    if (!options.PortFile.empty()) WritePortFile(options.PortFile, agent.ServerPort());
    std::cout << "rux-host: port " << agent.ServerPort() << ", work folder " << SystemName(GetWorkDir())
              << std::endl;
    forms.QueueModal();
    desktop.Toolkit().App().Run();
    agent.Stop();
    return 0;
}

int Run(const THostOptions& options) {
    SetAnsiCodePage(LoadCodePage(options.CodePage));
    const std::vector<TFormFile> files = ReadForms(options);
    const TKernelFacts facts = FactsOf(options);
    TPosixPlatform posix(facts, {options.Listen == "0.0.0.0" ? std::string() : options.Listen});
    THeadlessPlatform desktop(posix.Kernel, *posix.Clock, posix.Sockets, posix.Files);
    desktop.Toolkit().App().SetTitle(TitleOf(facts.ModuleName));
    std::unique_ptr<TJournalFile> journal;
    if (!options.JournalFile.empty())
        journal = std::make_unique<TJournalFile>(desktop.Desktop().Journal(), options.JournalFile);

    THostForms forms(desktop.Toolkit(), options, files);
    forms.Show();
    if (options.Dump) {
        std::cout << forms.Dump();
        return 0;
    }
    int status = 0;
    {
        const TSignalWatch signals([&] { desktop.Toolkit().App().Terminate(); });
        status = Serve(desktop, forms, options);
    }
    posix.Kernel.WaitForAllThreads();
    return status;
}

}  // namespace
}  // namespace rux

int main(int argc, char** argv) {
    rux::BlockSignals();
    rux::TellStackLimit();
    try {
        const rux::THostOptions options = rux::ReadHostOptions({argv + 1, argv + argc});
        if (options.Help) {
            std::cout << rux::HostUsage;
            return 0;
        }
        return rux::Run(options);
    } catch (const rux::THostUsageError& error) {
        std::cerr << "rux-host: " << error.what() << "\nrux-host --help tells more\n";
    } catch (const std::exception& error) {
        std::cerr << "rux-host: " << error.what() << '\n';
    }
    return rux::ExitUnusable;
}
