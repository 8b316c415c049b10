#include "platform/posix/TreeDeletion.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cstdio>
#include <memory>
#include <set>
#include <string_view>
#include <vector>

#include "platform/posix/FileDescriptor.h"
#include "platform/shared/ServiceLimits.h"

namespace rux {
namespace {

constexpr int FolderFlags = O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr mode_t OwnerAll = 0700;

/// Opens a folder below `parent` and makes it possible to delete in it.
TFileDescriptor OpenFolder(int parent, const char* name) {
    TFileDescriptor folder(::openat(parent, name, O_RDONLY | FolderFlags));
    if (!folder && errno == EACCES) {
        const TFileDescriptor place(::openat(parent, name, O_PATH | FolderFlags));
        const std::string path = "/proc/self/fd/" + std::to_string(place.Get());
        if (!place || ::chmod(path.c_str(), OwnerAll) != 0) return {};
        folder = TFileDescriptor(::openat(parent, name, O_RDONLY | FolderFlags));
    }
    struct stat facts {};
    if (folder && ::fstat(folder.Get(), &facts) == 0 && (facts.st_mode & OwnerAll) != OwnerAll)
        ::fchmod(folder.Get(), (facts.st_mode & 07777) | OwnerAll);
    return folder;
}

bool IsFolder(int parent, const dirent& entry) {
    if (entry.d_type != DT_UNKNOWN) return entry.d_type == DT_DIR;
    struct stat facts {};
    return ::fstatat(parent, entry.d_name, &facts, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(facts.st_mode);
}

/// Walks by the names of one level at a time and goes up by "..", so that one open folder is enough.
class TTreeDeletion {
 public:
    bool Run(const std::string& path);

 private:
    struct TLevel {
        std::string Name;
        dev_t Device;
        ino_t Node;
        /// What could not be deleted here and is not to be tried again.
        std::set<std::string, std::less<>> Kept;
    };
    bool Enter(int parent, const std::string& name);
    bool GoUp();
    std::string DeleteUntilFolder();
    void Keep(std::string_view name);

    TFileDescriptor FFolder;
    std::vector<TLevel> FLevels;
    std::size_t FFailures = 0;
};

bool TTreeDeletion::Enter(int parent, const std::string& name) {
    TFileDescriptor folder = OpenFolder(parent, name.c_str());
    struct stat facts {};
    if (!folder || ::fstat(folder.Get(), &facts) != 0) return false;
    FFolder = std::move(folder);
    FLevels.push_back({name, facts.st_dev, facts.st_ino, {}});
    return true;
}

/// False when the folder above is not the one that we came from: somebody moves folders about.
bool TTreeDeletion::GoUp() {
    FFolder = TFileDescriptor(::openat(FFolder.Get(), "..", O_RDONLY | FolderFlags));
    struct stat facts {};
    return FFolder && ::fstat(FFolder.Get(), &facts) == 0 && facts.st_dev == FLevels.back().Device &&
           facts.st_ino == FLevels.back().Node;
}

void TTreeDeletion::Keep(std::string_view name) {
    ++FFailures;
    FLevels.back().Kept.emplace(name);
}

/// Deletes entries of the current folder until it comes to a folder that is not empty: its name, or an empty
/// one when nothing more can be deleted here.
std::string TTreeDeletion::DeleteUntilFolder() {
    const int own = ::openat(FFolder.Get(), ".", O_RDONLY | FolderFlags);
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(own < 0 ? nullptr : ::fdopendir(own), ::closedir);
    if (!entries) {
        if (own >= 0) ::close(own);
        ++FFailures;
        return {};
    }
    while (const dirent* entry = ::readdir(entries.get())) {
        const std::string_view name = entry->d_name;
        if (name == "." || name == ".." || FLevels.back().Kept.contains(name)) continue;
        const bool folder = IsFolder(FFolder.Get(), *entry);
        if (::unlinkat(FFolder.Get(), entry->d_name, folder ? AT_REMOVEDIR : 0) == 0) continue;
        if (folder) return std::string(name);
        Keep(name);
        if (FFailures >= DeleteTreeFailureLimit) break;
    }
    return {};
}

bool TTreeDeletion::Run(const std::string& path) {
    if (!Enter(AT_FDCWD, path)) return false;
    while (FFailures < DeleteTreeFailureLimit) {
        const std::string next = DeleteUntilFolder();
        if (!next.empty()) {
            if (!Enter(FFolder.Get(), next)) Keep(next);
            continue;
        }
        const std::string done = FLevels.back().Name;
        FLevels.pop_back();
        if (FLevels.empty()) break;
        if (!GoUp()) return false;
        if (::unlinkat(FFolder.Get(), done.c_str(), AT_REMOVEDIR) != 0) Keep(done);
    }
    return FFailures == 0 && ::rmdir(path.c_str()) == 0;
}

}  // namespace

bool DeleteSystemTree(std::string path) {
    while (path.ends_with('/')) path.pop_back();
    if (path.empty()) return false;
    struct stat facts {
    }, root{};
    if (::lstat(path.c_str(), &facts) != 0) return errno == ENOENT || errno == ENOTDIR;
    const bool rootKnown = ::stat("/", &root) == 0;
    if (!rootKnown || (facts.st_dev == root.st_dev && facts.st_ino == root.st_ino)) return false;
    if (S_ISLNK(facts.st_mode)) return ::unlink(path.c_str()) == 0;
    return S_ISDIR(facts.st_mode) && TTreeDeletion().Run(path);
}

}  // namespace rux
