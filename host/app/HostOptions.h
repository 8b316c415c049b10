// What rux-host is told on its command line.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace rux {

/// Wrong usage; the text says what was found and what was expected.
struct THostUsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// File names as the system spells them; names of forms in UTF-8.
struct THostOptions {
    std::vector<std::string> FormFiles;
    std::string Sample;
    std::vector<std::string> Show;
    std::vector<std::string> Modal;
    std::string Listen = "127.0.0.1";
    std::string PortFile;
    std::string WorkDir;
    unsigned CodePage = 936;
    std::string ClassFile;
    std::string JournalFile;
    bool Dump = false;
    bool Help = false;
};

/// Raises THostUsageError.
THostOptions ReadHostOptions(const std::vector<std::string>& args);
extern const char* const HostUsage;

}  // namespace rux
