// The file service on Windows.
#pragma once

#include "platform/FileService.h"

namespace rux {

/// Without state: one object serves all threads. Names go to the system as they are, in the code page; one
/// that holds #0 or exceeds the system's bound of 259 bytes is the name of nothing.
class TWin32Files : public TFileService {
 public:
    bool FileExists(const std::string& name) override;
    bool DirectoryExists(const std::string& name) override;
    bool ForceDirectories(const std::string& name) override;
    /// False for a read-only file, which stays.
    bool DeleteFile(const std::string& name) override;
    bool DeleteTree(const std::string& name) override;
    /// Nothing also for what exceeds ReadFileLimit and for what is no file of a disk.
    std::optional<std::string> ReadFile(const std::string& name) override;
    /// Fails for a read-only file, and for one that somebody keeps open against being replaced for longer
    /// than a moment.
    bool WriteFile(const std::string& name, std::string_view bytes) override;
    std::int64_t LastWriteTime(const std::string& name) override;
    std::unique_ptr<TAppendFile> OpenAppend(const std::string& name) override;
    std::vector<TFolderEntry> ReadFolder(const std::string& name) override;
};

}  // namespace rux
