#include "host/app/JournalFile.h"

#include <cerrno>
#include <cstring>
#include <stdexcept>

#include "rtl/CodePage.h"

namespace rux {

TJournalFile::TJournalFile(HJournal& journal, const std::string& name)
    : FJournal(journal), FFile(name, std::ios::binary) {
    if (!FFile) throw std::runtime_error(name + ": cannot be written (" + std::strerror(errno) + ")");
    journal.SetSink(HEntriesOfHost, [this](HEntry, std::string_view line) {
        std::string text = AnsiToUtf8(line);
        for (char& c : text)
            if (c == '\r' || c == '\n') c = ' ';  // one line for each entry
        FFile << text << std::endl;
    });
}

}  // namespace rux
