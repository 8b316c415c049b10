// Files. Names are texts in the code page with backslashes; the service turns them, by characters, into the
// system's own names. Safe from any thread.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rux {

/// A file open for appending; every Write is visible to other processes when it returns.
class TAppendFile {
 public:
    virtual ~TAppendFile() = default;
    /// False when the record was lost.
    virtual bool Write(std::string_view bytes) = 0;
};

struct TFolderEntry {
    std::string Name;
    bool IsFolder = false;
};

class TFileService {
 public:
    virtual ~TFileService() = default;
    virtual bool FileExists(const std::string& name) = 0;
    virtual bool DirectoryExists(const std::string& name) = 0;
    /// Makes the folder and its missing parents. An empty name raises EInOutError "Unable to create
    /// directory".
    virtual bool ForceDirectories(const std::string& name) = 0;
    virtual bool DeleteFile(const std::string& name) = 0;
    /// Removes the folder with all it holds, read-only files too; links are removed, not followed. Goes on
    /// past failures and answers whether all went; a folder that is not there is gone. Never the root.
    virtual bool DeleteTree(const std::string& name) = 0;
    /// The whole content; nothing when it cannot be read.
    virtual std::optional<std::string> ReadFile(const std::string& name) = 0;
    /// Replaces the file as a whole: other processes see the old content or the new one.
    virtual bool WriteFile(const std::string& name, std::string_view bytes) = 0;
    /// A stamp that differs whenever the file was written in between; 0 when there is no such file.
    virtual std::int64_t LastWriteTime(const std::string& name) = 0;
    /// nil when the file cannot be opened.
    virtual std::unique_ptr<TAppendFile> OpenAppend(const std::string& name) = 0;
    /// What the folder holds, in no order, without the folder itself and its parent; what a link leads to
    /// says whether it is a folder. Nothing when it cannot be read; a bounded number of entries.
    virtual std::vector<TFolderEntry> ReadFolder(const std::string& name) = 0;
};

}  // namespace rux
