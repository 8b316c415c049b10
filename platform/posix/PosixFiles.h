// The file service on Linux.
#pragma once

#include "platform/FileService.h"

namespace rux {

/// Without state: one object serves all threads.
class TPosixFiles : public TFileService {
 public:
    bool FileExists(const std::string& name) override;
    bool DirectoryExists(const std::string& name) override;
    bool ForceDirectories(const std::string& name) override;
    bool DeleteFile(const std::string& name) override;
    bool DeleteTree(const std::string& name) override;
    /// Nothing also for what exceeds ReadFileLimit and for what is no regular file.
    std::optional<std::string> ReadFile(const std::string& name) override;
    bool WriteFile(const std::string& name, std::string_view bytes) override;
    std::int64_t LastWriteTime(const std::string& name) override;
    std::unique_ptr<TAppendFile> OpenAppend(const std::string& name) override;
    std::vector<TFolderEntry> ReadFolder(const std::string& name) override;
};

}  // namespace rux
