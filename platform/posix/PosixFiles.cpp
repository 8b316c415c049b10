#include "platform/posix/PosixFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include "platform/posix/FileContents.h"
#include "platform/posix/SystemNames.h"
#include "platform/posix/TreeDeletion.h"
#include "platform/shared/ServiceLimits.h"
#include "rtl/Exceptions.h"

namespace rux {
namespace {

constexpr mode_t NewFolderMode = 0777;  // less what the process masks
constexpr mode_t NewFileMode = 0666;

class TPosixAppendFile final : public TAppendFile {
 public:
    explicit TPosixAppendFile(TFileDescriptor file) : FFile(std::move(file)) {}
    /// One call of the system for each record: records of several processes do not mix.
    bool Write(std::string_view bytes) override {
        const ssize_t written = Retry([&] { return ::write(FFile.Get(), bytes.data(), bytes.size()); });
        return written >= 0 && static_cast<std::size_t>(written) == bytes.size();
    }

 private:
    TFileDescriptor FFile;
};

bool Look(const std::string& name, struct stat& facts) {
    return ::stat(SystemName(name).c_str(), &facts) == 0;
}

std::uint64_t Mix(std::uint64_t seed, std::uint64_t value) {
    seed = (seed ^ value) * 0x9E3779B97F4A7C15u;
    return seed ^ (seed >> 29);
}

}  // namespace

bool TPosixFiles::FileExists(const std::string& name) {
    struct stat facts {};
    return Look(name, facts) && !S_ISDIR(facts.st_mode);
}

bool TPosixFiles::DirectoryExists(const std::string& name) {
    struct stat facts {};
    return Look(name, facts) && S_ISDIR(facts.st_mode);
}

bool TPosixFiles::ForceDirectories(const std::string& name) {
    if (name.empty()) throw EInOutError("Unable to create directory");
    if (DirectoryExists(name)) return true;
    const std::string path = SystemName(name);
    for (std::size_t end = 0; end != path.npos;) {
        end = path.find('/', end + 1);
        ::mkdir(path.substr(0, end).c_str(), NewFolderMode);
    }
    return DirectoryExists(name);
}

bool TPosixFiles::DeleteFile(const std::string& name) {
    return ::unlink(SystemName(name).c_str()) == 0;
}

bool TPosixFiles::DeleteTree(const std::string& name) {
    return DeleteSystemTree(SystemName(name));
}

std::optional<std::string> TPosixFiles::ReadFile(const std::string& name) {
    std::size_t size = 0;
    const TFileDescriptor file = OpenToRead(SystemName(name), size);
    if (!file || size > ReadFileLimit) return std::nullopt;
    return ReadUpTo(file.Get(), size);
}

bool TPosixFiles::WriteFile(const std::string& name, std::string_view bytes) {
    return ReplaceFile(SystemName(name), bytes);
}

std::int64_t TPosixFiles::LastWriteTime(const std::string& name) {
    struct stat facts {};
    if (!Look(name, facts) || S_ISDIR(facts.st_mode)) return 0;
    // The system's times go by ticks: size and place tell apart what was written within one.
    std::uint64_t stamp = Mix(static_cast<std::uint64_t>(facts.st_mtim.tv_sec),
                              static_cast<std::uint64_t>(facts.st_mtim.tv_nsec));
    stamp = Mix(stamp, static_cast<std::uint64_t>(facts.st_size));
    stamp = Mix(stamp, static_cast<std::uint64_t>(facts.st_ino));
    return static_cast<std::int64_t>(stamp == 0 ? 1 : stamp);
}

std::unique_ptr<TAppendFile> TPosixFiles::OpenAppend(const std::string& name) {
    const std::string path = SystemName(name);
    constexpr int flags = O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    TFileDescriptor file(Retry([&] { return ::open(path.c_str(), flags, NewFileMode); }));
    struct stat facts {};
    if (!file || ::fstat(file.Get(), &facts) != 0 || !S_ISREG(facts.st_mode)) return nullptr;
    return std::make_unique<TPosixAppendFile>(std::move(file));
}

std::vector<TFolderEntry> TPosixFiles::ReadFolder(const std::string& name) {
    std::vector<TFolderEntry> entries;
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(SystemName(name).c_str()), ::closedir);
    while (folder && entries.size() < FolderEntryLimit) {
        const dirent* entry = ::readdir(folder.get());
        if (!entry) break;
        const std::string_view own = entry->d_name;
        if (own == "." || own == "..") continue;
        struct stat facts {};
        const bool known = ::fstatat(::dirfd(folder.get()), entry->d_name, &facts, 0) == 0;
        // A name that is no UTF-8 is none that the engine could use.
        std::string ownName = NameFromSystem(own);
        if (!ownName.empty()) entries.push_back({std::move(ownName), known && S_ISDIR(facts.st_mode)});
    }
    return entries;
}

}  // namespace rux
