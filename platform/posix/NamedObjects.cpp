#include "platform/posix/NamedObjects.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/stat.h>

#include <cstdio>

#include "platform/posix/FileContents.h"
#include "platform/posix/PosixLimits.h"
#include "platform/posix/SystemErrors.h"
#include "platform/shared/ServiceLimits.h"

namespace rux {
namespace {

// Not the environment's temporary folder: processes of different users must meet in one.
constexpr const char* SharedFolder = P_tmpdir "/rux-objects";
constexpr mode_t FolderMode = 01777;
constexpr mode_t ObjectMode = 0666;
constexpr std::string_view MutexKind = "mutex.";
constexpr std::string_view MappingKind = "mapping.";

bool IsPlain(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' || c == '.';
}

/// Names are bytes with braces and backslashes; different names give different file names.
std::string FileNameOf(std::string_view name) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string out;
    for (const char c : name) {
        if (IsPlain(c)) {
            out += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        out += {'%', digits[byte >> 4], digits[byte & 15]};
    }
    return out;
}

// Locks of the open description, not of the process: two of one process see each other, and closing one file
// does not drop the lock of another.
struct flock WholeFile(short type) {
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    return lock;
}

bool TryLock(int file, short type) {
    struct flock lock = WholeFile(type);
    return ::fcntl(file, F_OFD_SETLK, &lock) == 0;
}

bool SetErrorAndFail(std::uint32_t error) {
    SetLastSystemError(error);
    return false;
}

enum class TTaken { Made, Existed, Failed };

/// A write lock says that nobody else is there; it becomes a read lock, which others may share. While another
/// process is between the two, neither lock is to be had.
TTaken TakeMutex(int file) {
    for (int i = 0; i < MutexAttempts; ++i) {
        if (TryLock(file, F_WRLCK)) return TryLock(file, F_RDLCK) ? TTaken::Made : TTaken::Failed;
        if (TryLock(file, F_RDLCK)) return TTaken::Existed;
        if (errno != EAGAIN && errno != EACCES) return TTaken::Failed;
        ::sched_yield();
    }
    return TTaken::Failed;
}

}  // namespace

TNamedObjects::TNamedObjects(std::string folder)
    : FFolder(folder.empty() ? std::string(SharedFolder) : std::move(folder)) {}

std::string TNamedObjects::PathOf(std::string_view kind, const std::string& name) const {
    return FFolder + "/" + std::string(kind) + FileNameOf(name);
}

bool TNamedObjects::EnsureFolder() const {
    if (::mkdir(FFolder.c_str(), FolderMode) == 0) return ::chmod(FFolder.c_str(), FolderMode) == 0;
    return errno == EEXIST;
}

/// Systems that guard sticky folders refuse to open somebody else's file with O_CREAT, so that flag comes
/// only where there is no file.
TFileDescriptor TNamedObjects::OpenOrMake(const std::string& path) const {
    constexpr int flags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    for (int i = 0; i < TemporaryNameAttempts; ++i) {
        TFileDescriptor file(Retry([&] { return ::open(path.c_str(), flags); }));
        if (file || errno != ENOENT) return file;
        file = TFileDescriptor(
            Retry([&] { return ::open(path.c_str(), flags | O_CREAT | O_EXCL, ObjectMode); }));
        if (file) ::fchmod(file.Get(), ObjectMode);
        if (file || errno != EEXIST) return file;
    }
    return {};
}

bool TNamedObjects::OpenMutex(const std::string& name) {
    const std::string path = PathOf(MutexKind, name);
    const TFileDescriptor file(Retry(
        [&] { return ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY); }));
    if (!file) return SetErrorAndFail(SystemErrorOf(errno));
    struct flock lock = WholeFile(F_WRLCK);
    if (::fcntl(file.Get(), F_OFD_GETLK, &lock) != 0) return SetErrorAndFail(SystemErrorOf(errno));
    if (lock.l_type == F_UNLCK) return SetErrorAndFail(ERROR_FILE_NOT_FOUND);
    SetLastSystemError(0);
    return true;
}

bool TNamedObjects::CreateMutex(const std::string& name) {
    const std::lock_guard lock(FLock);
    if (FHeld.contains(name)) return SetErrorAndFail(ERROR_ALREADY_EXISTS);
    if (!EnsureFolder()) return SetErrorAndFail(SystemErrorOf(errno));
    TFileDescriptor file = OpenOrMake(PathOf(MutexKind, name));
    if (!file) return SetErrorAndFail(SystemErrorOf(errno));
    const TTaken taken = TakeMutex(file.Get());
    if (taken == TTaken::Failed) return SetErrorAndFail(ERROR_ACCESS_DENIED);
    FHeld.emplace(name, std::move(file));
    SetLastSystemError(taken == TTaken::Made ? 0 : ERROR_ALREADY_EXISTS);
    return taken == TTaken::Made;
}

std::optional<std::string> TNamedObjects::ReadMapping(const std::string& name, std::size_t size) {
    std::size_t length = 0;
    const TFileDescriptor file = OpenToRead(PathOf(MappingKind, name), length);
    const std::size_t room = (length + MappingPage - 1) / MappingPage * MappingPage;
    std::optional<std::string> bytes;
    if (file && size <= FileMappingLimit && size <= room) bytes = ReadUpTo(file.Get(), size);
    if (bytes) bytes->resize(size);
    SetLastSystemError(bytes ? 0 : file ? ERROR_ACCESS_DENIED : ERROR_FILE_NOT_FOUND);
    return bytes;
}

bool TNamedObjects::PublishMapping(const std::string& name, std::string_view bytes) {
    return EnsureFolder() && ReplaceFile(PathOf(MappingKind, name), bytes);
}

void TNamedObjects::RemoveMapping(const std::string& name) {
    ::unlink(PathOf(MappingKind, name).c_str());
}

}  // namespace rux
