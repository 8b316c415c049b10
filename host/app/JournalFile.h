// The journal of a host, for a person to follow.
#pragma once

#include <fstream>
#include <string>

#include "platform/headless/windows/HJournal.h"

namespace rux {

/// Writes each event fired, window shown or closed and message box as a line of UTF-8, at once. Raises
/// std::runtime_error when the file cannot be written.
class TJournalFile {
 public:
    TJournalFile(HJournal& journal, const std::string& name);
    TJournalFile(const TJournalFile&) = delete;
    TJournalFile& operator=(const TJournalFile&) = delete;
    ~TJournalFile() { FJournal.SetSink(0, nullptr); }

 private:
    HJournal& FJournal;
    std::ofstream FFile;
};

}  // namespace rux
