// The engine's log: one file for each run, records in the system's code page.
#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace rux {

class TAppendFile;

/// Safe from any thread. A record is the level's name, " - ", the message and CR LF; it is in the file, where
/// other processes see it, when the call returns. What cannot be written is lost without a word.
class TLogger {
 public:
    TLogger() = default;
    ~TLogger();
    void Info(std::string_view message) { Write("info", message); }
    void Warn(std::string_view message) { Write("warn", message); }
    void Error(std::string_view message) { Write("error", message); }
    /// Forgets what the log holds and begins anew.
    void Clear();
    /// Lets go of the file.
    void Close();

 private:
    void Write(std::string_view level, std::string_view message);
    void Open();
    std::mutex FLock;
    std::unique_ptr<TAppendFile> FFile;
    std::string FRecord;
    bool FOpened = false;
};

/// The engine's logger.
TLogger& GetLogger();
/// Current date and time in the system's short form, and ": ".
std::string LogTimeStamp();

}  // namespace rux
