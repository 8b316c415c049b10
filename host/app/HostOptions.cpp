#include "host/app/HostOptions.h"

#include <cstdlib>
#include <functional>
#include <map>

namespace rux {

const char* const HostUsage =
    R"(usage: rux-host [options] FORM.dfm ...
       rux-host [options] --sample orders

Runs an application on a desktop in memory, with the agent inside. The forms come from text form files; the
first one is the main form and is shown, and so is every form with Visible = True.

  --sample orders   the built-in sample application instead of form files
  --show NAME       show another loaded form as well (repeatable)
  --modal NAME      show another loaded form modally (repeatable; the last one is on top)
  --listen ADDR     address to listen on (default 127.0.0.1; 0.0.0.0 for all)
  --port-file PATH  write the port there, in decimal with a line feed, once the agent listens
  --work-dir DIR    stands for the folder of the application's executable (default: the folder of this program)
  --codepage N      the system's code page (default 936)
  --classes FILE    parents of classes that the host does not know, one a line: TMyEdit=TEdit
  --journal PATH    write a line there for each event fired, window shown or closed, and message box
  --dump            print the live object tree and end
  --help            this text

While it runs, SIGINT and SIGTERM end it. Exit status: 0 ended as asked, 2 a form file cannot be read, wrong
usage, or no port to listen on.
)";

namespace {

unsigned CodePageOf(const std::string& text) {
    char* end = nullptr;
    const unsigned long number = std::strtoul(text.c_str(), &end, 10);
    if (text.empty() || *end != 0 || number == 0 || number > 65535)
        throw THostUsageError("found \"" + text +
                              "\" behind --codepage, expected a number such as 936 or 1252");
    return static_cast<unsigned>(number);
}

}  // namespace

THostOptions ReadHostOptions(const std::vector<std::string>& args) {
    THostOptions options;
    const std::map<std::string, std::function<void(const std::string&)>> withValue = {
        {"--sample", [&](const std::string& v) { options.Sample = v; }},
        {"--show", [&](const std::string& v) { options.Show.push_back(v); }},
        {"--modal", [&](const std::string& v) { options.Modal.push_back(v); }},
        {"--listen", [&](const std::string& v) { options.Listen = v; }},
        {"--port-file", [&](const std::string& v) { options.PortFile = v; }},
        {"--work-dir", [&](const std::string& v) { options.WorkDir = v; }},
        {"--codepage", [&](const std::string& v) { options.CodePage = CodePageOf(v); }},
        {"--classes", [&](const std::string& v) { options.ClassFile = v; }},
        {"--journal", [&](const std::string& v) { options.JournalFile = v; }},
    };
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--help" || args[i] == "-h") {
            options.Help = true;
        } else if (args[i] == "--dump") {
            options.Dump = true;
        } else if (const auto option = withValue.find(args[i]); option != withValue.end()) {
            if (i + 1 == args.size()) throw THostUsageError(args[i] + " needs a value");
            option->second(args[++i]);
        } else if (args[i].starts_with("-")) {
            throw THostUsageError("unknown option " + args[i]);
        } else {
            options.FormFiles.push_back(args[i]);
        }
    }
    if (options.Help) return options;
    if (!options.Sample.empty() && options.Sample != "orders")
        throw THostUsageError("found \"" + options.Sample + "\" behind --sample, expected orders");
    if (options.Sample.empty() == options.FormFiles.empty())
        throw THostUsageError("give either form files or --sample orders");
    return options;
}

}  // namespace rux
